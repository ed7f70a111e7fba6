#include "preview/PulsantiStriscia.h"

#include <QAction>
#include <QHBoxLayout>
#include <QToolButton>

namespace {

constexpr int FraGruppi = 8; // device-independent pixels
constexpr int LarghezzaPulsante = 20;

/// As small as the strip: the air that the style wants around an icon is not needed.
class PulsanteStretto : public QToolButton
{
public:
    using QToolButton::QToolButton;
    QSize minimumSizeHint() const override { return iconSize(); }
};

} // namespace

PulsantiStriscia::PulsantiStriscia(QWidget *padre)
    : QWidget(padre)
{
    auto *riga = new QHBoxLayout(this);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(FraGruppi);
    for (QHBoxLayout *&gruppo : gruppi_) {
        gruppo = new QHBoxLayout;
        gruppo->setSpacing(0);
        riga->addLayout(gruppo);
    }
}

void PulsantiStriscia::Aggiunge(QAction *comando, GruppoComandi gruppo)
{
    auto *pulsante = new PulsanteStretto(this);
    pulsante->setObjectName(comando->objectName());
    pulsante->setDefaultAction(comando);
    pulsante->setAccessibleName(comando->text());
    pulsante->setAutoRaise(true);
    pulsante->setIconSize(QSize(LatoIcona, LatoIcona));
    pulsante->setFixedWidth(LarghezzaPulsante);
    pulsante->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    pulsante->setFocusPolicy(Qt::TabFocus);
    gruppi_.at(static_cast<std::size_t>(gruppo))->addWidget(pulsante);
}
