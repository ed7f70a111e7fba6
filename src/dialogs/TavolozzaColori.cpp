#include "dialogs/TavolozzaColori.h"

#include "finestre/Guardia.h"
#include "finestre/Icone.h"
#include "model/Numeri.h"
#include "model/Tavolozza.h"

#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include <array>
#include <optional>

namespace {

constexpr int Lato = 16; // device-independent pixels

QPixmap Campione(int indice)
{
    return DisegnaIcona(Lato, [indice](QPainter &penna) {
        // The outline keeps a white one from getting lost on a white menu.
        constexpr double Contorno = 0.06;
        penna.setPen(QPen(QColor(90, 90, 90), Contorno));
        penna.setBrush(QColor::fromRgb(Tavolozza::Rgb(indice)));
        penna.drawRect(QRectF(Contorno, Contorno, 1 - 2 * Contorno, 1 - 2 * Contorno));
    });
}

/// Four of the colours, for the button.
QPixmap IconaTavolozza()
{
    return DisegnaIcona(Lato, [](QPainter &penna) {
        constexpr std::array Colori{12, 10, 9, 14};
        constexpr double Mezzo = 0.5;
        for (std::size_t i = 0; i < Colori.size(); ++i) {
            penna.fillRect(QRectF(i % 2 == 0 ? 0 : Mezzo, i < 2 ? 0 : Mezzo, Mezzo, Mezzo),
                           QColor::fromRgb(Tavolozza::Rgb(Colori.at(i))));
        }
    });
}

void Riempie(QMenu *menu, QLineEdit *casella)
{
    for (int i = 0; i < Tavolozza::Colori; ++i) {
        QAction *colore = menu->addAction(Campione(i), QString::number(i));
        colore->setIconVisibleInMenu(true);
        Collega(colore, &QAction::triggered, casella, [casella, i] {
            casella->setFocus();
            casella->selectAll();
            casella->insert(QString::number(i));
        });
    }
}

} // namespace

void OffreColori(QToolButton *bottone, QLineEdit *casella)
{
    bottone->setIcon(IconaTavolozza());
    bottone->setIconSize(QSize(Lato, Lato));
    bottone->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(bottone);
    menu->setObjectName(bottone->objectName() + QStringLiteral("Menu"));
    bottone->setMenu(menu);
    Collega(menu, &QMenu::aboutToShow, menu, [menu, casella] {
        if (menu->isEmpty()) {
            Riempie(menu, casella);
        }
        const std::optional<double> numero = Numeri::Numerico(casella->text());
        const QList<QAction *> colori = menu->actions();
        for (qsizetype i = 0; i < colori.size(); ++i) {
            if (numero == static_cast<double>(i)) {
                menu->setActiveAction(colori.at(i));
            }
        }
    });
}
