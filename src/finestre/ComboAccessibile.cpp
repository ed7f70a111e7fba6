#include "finestre/ComboAccessibile.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

namespace {

/// A combo whose name says what it chooses and whose value is what is chosen. Its child is its
/// list, and its box where it has one to type into.
class ComboAccessibile : public QAccessibleWidget
{
public:
    explicit ComboAccessibile(QComboBox *combo)
        : QAccessibleWidget(combo, QAccessible::ComboBox)
    {
    }

    int childCount() const override { return Combo()->isEditable() ? 2 : 1; }

    QAccessibleInterface *child(int indice) const override
    {
        switch (indice) {
        case 0:
            return QAccessible::queryAccessibleInterface(Combo()->view());
        case 1:
            return QAccessible::queryAccessibleInterface(Combo()->lineEdit());
        default:
            return nullptr;
        }
    }

    int indexOfChild(const QAccessibleInterface *figlio) const override
    {
        const QObject *oggetto = figlio == nullptr ? nullptr : figlio->object();
        if (oggetto == nullptr) {
            return -1;
        }
        if (oggetto == Combo()->view()) {
            return 0;
        }
        return oggetto == Combo()->lineEdit() ? 1 : -1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        QAccessibleInterface *casella = Combo()->isEditable() ? child(1) : nullptr;
        return casella != nullptr && casella->rect().contains(x, y) ? casella : nullptr;
    }

    QString text(QAccessible::Text quale) const override
    {
        return quale == QAccessible::Value ? Combo()->currentText()
                                           : QAccessibleWidget::text(quale);
    }

    QAccessible::State state() const override
    {
        QAccessible::State stato = QAccessibleWidget::state();
        stato.expandable = true;
        stato.expanded = Combo()->view()->isVisible();
        stato.collapsed = !stato.expanded;
        stato.editable = Combo()->isEditable();
        return stato;
    }

    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }

    void doAction(const QString &azione) override
    {
        if ((azione != showMenuAction() && azione != pressAction()) || !Combo()->isEnabled()) {
            QAccessibleWidget::doAction(azione);
        } else if (Combo()->view()->isVisible()) {
            Combo()->hidePopup();
        } else {
            Combo()->showPopup();
        }
    }

private:
    QComboBox *Combo() const { return static_cast<QComboBox *>(object()); }
};

QAccessibleInterface *Interfaccia(const QString &classe, QObject *oggetto)
{
    return classe == QLatin1String("QComboBox")
               ? new ComboAccessibile(static_cast<QComboBox *>(oggetto))
               : nullptr;
}

} // namespace

void InstallaComboAccessibili()
{
    QAccessible::installFactory(&Interfaccia); // one that is there already is not added again
}
