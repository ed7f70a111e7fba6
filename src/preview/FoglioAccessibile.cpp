#include "preview/FoglioAccessibile.h"

#include "grafica/Testo.h"
#include "preview/AccessoFoglio.h"
#include "preview/Controlli.h"
#include "preview/VistaFoglio.h"

#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QGraphicsScene>
#include <QPointer>

namespace {

struct Mossa
{
    const char16_t *nome;
    QPointF di; ///< mm of paper
};

constexpr std::array<Mossa, 4> Mosse{
    Mossa{u"sposta a sinistra", {-1, 0}}, Mossa{u"sposta a destra", {1, 0}},
    Mossa{u"sposta in su", {0, -1}}, Mossa{u"sposta in giù", {0, 1}}};

QString Nome(const Mossa &mossa)
{
    return QString::fromUtf16(mossa.nome);
}

/// The sheet: its children are its elements, in reading order.
class FoglioAccessibile : public QAccessibleWidget
{
public:
    explicit FoglioAccessibile(VistaFoglio *foglio)
        : QAccessibleWidget(foglio, QAccessible::Canvas)
    {
    }

    int childCount() const override { return static_cast<int>(Elementi().size()); }

    QAccessibleInterface *child(int indice) const override
    {
        const QList<Chiave> elementi = Elementi();
        return indice >= 0 && indice < elementi.size() ? Accesso()->Interfaccia(elementi.at(indice))
                                                       : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *figlio) const override
    {
        const auto *controllo =
            figlio == nullptr ? nullptr : qobject_cast<ControlloElemento *>(figlio->object());
        return controllo == nullptr
                   ? -1
                   : static_cast<int>(Elementi().indexOf({controllo->genere, controllo->indice}));
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        const AccessoFoglio *accesso = Accesso();
        const auto chiave = accesso == nullptr ? std::nullopt : accesso->ElementoIn({x, y});
        return chiave ? accesso->Interfaccia(*chiave) : nullptr;
    }

    QAccessibleInterface *focusChild() const override
    {
        for (const Chiave &chiave : Elementi()) {
            if (Accesso()->HaIlFuoco(chiave)) {
                return Accesso()->Interfaccia(chiave);
            }
        }
        return QAccessibleWidget::focusChild();
    }

    QAccessible::State state() const override
    {
        QAccessible::State stato = QAccessibleWidget::state();
        stato.multiSelectable = true;
        stato.extSelectable = true;
        return stato;
    }

private:
    /// Null while the window is being made or taken down.
    AccessoFoglio *Accesso() const { return AccessoFoglio::Di(object()); }
    QList<Chiave> Elementi() const
    {
        const AccessoFoglio *accesso = Accesso();
        return accesso == nullptr ? QList<Chiave>() : accesso->InOrdine();
    }
};

/// An element on the sheet.
class ElementoAccessibile : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    ElementoAccessibile(ControlloElemento *controllo, AccessoFoglio *accesso)
        : QAccessibleObject(controllo)
        , accesso_(accesso)
        , chiave_{controllo->genere, controllo->indice}
    {
    }

    bool isValid() const override { return QAccessibleObject::isValid() && accesso_; }

    QAccessibleInterface *parent() const override
    {
        return accesso_ ? QAccessible::queryAccessibleInterface(&accesso_->Foglio()) : nullptr;
    }
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QAccessible::Role role() const override
    {
        return chiave_.genere == Genere::Immagine ? QAccessible::Graphic : QAccessible::StaticText;
    }
    QString text(QAccessible::Text quale) const override;
    QRect rect() const override { return isValid() ? accesso_->Rettangolo(chiave_) : QRect(); }
    QAccessible::State state() const override;

    void *interface_cast(QAccessible::InterfaceType tipo) override
    {
        return tipo == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }
    QStringList actionNames() const override;
    QString localizedActionName(const QString &azione) const override;
    QString localizedActionDescription(const QString &azione) const override;
    void doAction(const QString &azione) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QString Testo() const;
    QString Descrizione() const;

    QPointer<AccessoFoglio> accesso_;
    Chiave chiave_;
};

QString ElementoAccessibile::Testo() const
{
    return accesso_->Aperto().Con(chiave_.genere, [&](const auto &tabella) {
        QString testo;
        if constexpr (requires { tabella[0].Testo; }) {
            testo = SuUnaRiga(tabella[chiave_.indice].Testo);
        }
        return testo;
    });
}

QString ElementoAccessibile::Descrizione() const
{
    // The text once more: not every screen reader asks for the value of a label.
    QStringList parti{Testo()};
    if (chiave_.genere == Genere::Campo && accesso_->Aperto().Campi[chiave_.indice].Barrato()) {
        parti.append(QStringLiteral("non stampato"));
    }
    parti.removeAll(QString());
    return parti.join(QStringLiteral(", "));
}

QString ElementoAccessibile::text(QAccessible::Text quale) const
{
    if (!isValid()) {
        return {};
    }
    switch (quale) {
    case QAccessible::Name:
        return (QString(NomeDi(chiave_.genere)).toLower() + u' ' +
                SuUnaRiga(accesso_->Aperto().Di(chiave_).Nome))
            .trimmed();
    case QAccessible::Value:
        return Testo();
    case QAccessible::Description:
        return Descrizione();
    default:
        return {};
    }
}

QAccessible::State ElementoAccessibile::state() const
{
    QAccessible::State stato;
    if (!isValid() || !accesso_->InVista(chiave_)) {
        stato.invisible = true;
        return stato;
    }
    stato.selectable = true;
    stato.extSelectable = true;
    stato.focusable = true;
    stato.movable = true;
    stato.readOnly = true;
    stato.selected = accesso_->Scelto(chiave_);
    stato.focused = accesso_->HaIlFuoco(chiave_);
    stato.offscreen = !accesso_->Scoperto(chiave_);
    return stato;
}

QStringList ElementoAccessibile::actionNames() const
{
    QStringList nomi{pressAction(), setFocusAction()};
    for (const Mossa &mossa : Mosse) {
        nomi.append(Nome(mossa));
    }
    return nomi;
}

QString ElementoAccessibile::localizedActionName(const QString &azione) const
{
    if (azione == pressAction()) {
        return QStringLiteral("apri");
    }
    return azione == setFocusAction() ? QStringLiteral("scegli") : azione;
}

QString ElementoAccessibile::localizedActionDescription(const QString &azione) const
{
    if (azione == pressAction()) {
        return QStringLiteral("apre le impostazioni dell'elemento");
    }
    return azione == setFocusAction() ? QStringLiteral("sceglie l'elemento, come un clic")
                                      : QStringLiteral("di un millimetro");
}

void ElementoAccessibile::doAction(const QString &azione)
{
    if (!isValid()) {
        return;
    }
    if (azione == pressAction()) {
        accesso_->Apre(chiave_);
    } else if (azione == setFocusAction()) {
        accesso_->Sceglie(chiave_);
    }
    for (const Mossa &mossa : Mosse) {
        if (azione == Nome(mossa)) {
            accesso_->Sposta(chiave_, mossa.di);
        }
    }
}

QAccessibleInterface *Interfaccia(const QString &classe, QObject *oggetto)
{
    if (classe == QLatin1String("VistaFoglio")) {
        return new FoglioAccessibile(static_cast<VistaFoglio *>(oggetto));
    }
    if (classe == QLatin1String("ControlloElemento")) {
        auto *controllo = static_cast<ControlloElemento *>(oggetto);
        const QList<QGraphicsView *> viste =
            controllo->scene() == nullptr ? QList<QGraphicsView *>() : controllo->scene()->views();
        AccessoFoglio *accesso = viste.isEmpty() ? nullptr : AccessoFoglio::Di(viste.constFirst());
        return accesso == nullptr ? nullptr : new ElementoAccessibile(controllo, accesso);
    }
    return nullptr;
}

} // namespace

void InstallaFoglioAccessibile()
{
    QAccessible::installFactory(&Interfaccia); // one that is there already is not added again
}
