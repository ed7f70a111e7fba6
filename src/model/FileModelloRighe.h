#pragma once

#include <QByteArrayView>

/// What the reader and the writer of the model file agree on.
namespace FileModello {

inline constexpr int RigheLibere = 38; ///< empty lines between the header and the first field
inline constexpr QByteArrayView FineCampi("FINECAMPI");
inline constexpr QByteArrayView FineCornici("FINECORNICI");
inline constexpr QByteArrayView FineImmagini("FINEIMMAGINI");

} // namespace FileModello
