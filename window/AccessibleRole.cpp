#include "window/AccessibleRole.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace {

constexpr char roleProperty[] = "accessibleRole";

class RoleInterface : public QAccessibleWidget
{
public:
    RoleInterface(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (const QAbstractButton* checkable = button(); checkable && checkable->isCheckable()) {
            state.selectable = true;
            state.selected = checkable->isChecked();
            state.checkable = true;
            state.checked = checkable->isChecked();
        }
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (button() && button()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& actionName) override
    {
        if (button() && actionName == pressAction())
            button()->click();
        else
            QAccessibleWidget::doAction(actionName);
    }

private:
    QAbstractButton* button() const { return qobject_cast<QAbstractButton*>(object()); }
};

QAccessibleInterface* make(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = object ? object->property(roleProperty) : QVariant();
    if (!widget || !role.isValid())
        return nullptr;
    return new RoleInterface(widget, static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(&make); // once: Qt leaves out one that it has
    widget.setProperty(roleProperty, static_cast<int>(role));
}
