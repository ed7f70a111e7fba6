#pragma once

#include "base/ErroreSistema.h"

#include <array>

/// The slots of one kind of element: 0 to 100. Slot 0 holds no element; an index outside the table
/// throws ErroreSistema 9, which is the system's limit of 100 elements of a kind.
template <typename Elemento>
class Tabella
{
public:
    static constexpr int UltimoSlot = 100;

    Elemento &operator[](int indice) { return slot_[Controllato(indice)]; }
    const Elemento &operator[](int indice) const { return slot_[Controllato(indice)]; }

    bool operator==(const Tabella &) const = default;

private:
    static std::size_t Controllato(int indice)
    {
        if (indice < 0 || indice > UltimoSlot) {
            throw ErroreSistema(ErroreSistema::Indice);
        }
        return static_cast<std::size_t>(indice);
    }

    std::array<Elemento, UltimoSlot + 1> slot_{};
};
