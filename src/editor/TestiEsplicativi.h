#pragma once

#include <QString>

/// The explanatory texts of the editor's pages, in the order of the pages.
namespace TestiEsplicativi {

QString Campi();
QString Righe();
QString Cornici();
QString Immagini();
QString Spostamento();
QString Sfondo();

} // namespace TestiEsplicativi
