// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/accessibile.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>

namespace lumetra {

namespace {

// A menu as Qt's own accessible menu shows it, but for its name: the
// program's, on every platform; the current entry stays its value.
class MenuAccessibile : public QAccessibleWidget {
public:
    explicit MenuAccessibile(QComboBox *menu) : QAccessibleWidget(menu, QAccessible::ComboBox) {}

    QString text(QAccessible::Text t) const override
    {
        return t == QAccessible::Value ? menu()->currentText() : QAccessibleWidget::text(t);
    }

    // Its one child is the list of entries.
    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(menu()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == menu()->view() ? 0 : -1;
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.expandable = true;
        s.expanded = menu()->view()->isVisible();
        return s;
    }

    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString &action) override
    {
        if (action != showMenuAction() && action != pressAction())
            return;
        if (menu()->view()->isVisible())
            menu()->hidePopup();
        else
            menu()->showPopup();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QComboBox *menu() const { return static_cast<QComboBox *>(object()); }
};

// Asked for each class of an object's hierarchy, before Qt's own; nothing
// for anything else, which Qt then makes as always.
QAccessibleInterface *fabbrica(const QString &classe, QObject *object)
{
    if (classe != QLatin1String("QComboBox"))
        return nullptr;
    auto *menu = qobject_cast<QComboBox *>(object);
    if (!menu || menu->accessibleName().isEmpty())
        return nullptr;
    return new MenuAccessibile(menu);
}

} // namespace

void nomina(QLabel *etichetta, QWidget *controllo)
{
    const QString nome = etichetta->text().replace(QLatin1Char('\n'), QLatin1Char(' ')).simplified();
    etichetta->setBuddy(controllo);
    controllo->setAccessibleName(nome);
    if (auto *menu = qobject_cast<QComboBox *>(controllo)) {
        // Its list of entries, when it opens, is the menu's too.
        menu->view()->setAccessibleName(nome);
        // Qt makes a menu's interface, and keeps it, as soon as the menu is
        // filled: one made before the menu had its name is made anew, ours.
        QAccessibleInterface *made = QAccessible::queryAccessibleInterface(controllo);
        if (made && !dynamic_cast<MenuAccessibile *>(made))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
    }
}

void installaAccessibilita() { QAccessible::installFactory(fabbrica); }

} // namespace lumetra
