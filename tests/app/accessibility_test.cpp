// SPDX-License-Identifier: GPL-3.0-or-later
#include "advance/ui/fin_acconto.h"
#include "core/ui/fin_avverti.h"
#include "core/ui/fin_dati_utente.h"
#include "document/ui/fin_elaborazione.h"
#include "editor/ui/finestra_fixture.h"
#include "help/ui/fin_aiuto.h"
#include "help/ui/finestrainfo.h"

#include <QAccessible>
#include <QMetaEnum>
#include <cstdio>

using namespace lumetra;
using namespace lumetra::test;

// Every control a user can reach with the keyboard, in every window, has a
// name a screen reader speaks, and the name says what the control is for, not
// only what it holds: on Linux Qt names a menu after its current entry. The
// windows are spoken by a name too. The list is printed, to be read.
TEST_F(FinestraTest, EveryControlAUserCanReachHasANameThatIsNotItsValue)
{
    scegli(kDiritti); // the sub-category menu holds entries too
    QWidget *const finestre[] = {w,
                                 &fin_acconto::instance(),
                                 &fin_elaborazione::instance(),
                                 &fin_dati_utente::instance(),
                                 &fin_avverti::instance(),
                                 &fin_aiuto::instance(),
                                 &finestrainfo::instance()};
    const QMetaEnum ruoli = QMetaEnum::fromType<QAccessible::Role>();
    const auto riga = [&](const QWidget *owner, const QWidget *c, const QAccessibleInterface *iface) {
        std::printf("%-17s %-17s %-13s %s\n", qPrintable(owner->objectName()), qPrintable(c->objectName()),
                    ruoli.valueToKey(iface->role()), qPrintable(iface->text(QAccessible::Name)));
    };
    for (QWidget *finestra : finestre) {
        int controlli = 0;
        QAccessibleInterface *window = QAccessible::queryAccessibleInterface(finestra);
        ASSERT_NE(window, nullptr);
        riga(finestra, finestra, window);
        EXPECT_FALSE(window->text(QAccessible::Name).isEmpty()) << finestra->objectName().toStdString();
        for (QWidget *c : finestra->findChildren<QWidget *>()) {
            if (!(c->focusPolicy() & Qt::TabFocus) || c->focusProxy() || !c->isVisibleTo(finestra))
                continue;
            QAccessibleInterface *iface = QAccessible::queryAccessibleInterface(c);
            ASSERT_NE(iface, nullptr);
            riga(finestra, c, iface);
            const QString name = iface->text(QAccessible::Name);
            const std::string where = finestra->objectName().toStdString() + "." + c->objectName().toStdString();
            EXPECT_FALSE(name.trimmed().isEmpty()) << where << " has no name";
            if (const auto *menu = qobject_cast<const QComboBox *>(c)) {
                EXPECT_NE(name, menu->currentText()) << where << " is named by its entry";
            }
            ++controlli;
        }
        EXPECT_GT(controlli, 0) << finestra->objectName().toStdString(); // the walk found the controls
    }
    // The sub-category menu's label says what the category holds, and the menu is spoken so.
    const auto *etichetta = w->findChild<QLabel *>(u("StaticTextPop"));
    EXPECT_EQ(PopCatB->accessibleName(), etichetta->text());
    EXPECT_NE(etichetta->text(), u("Sotto-Categoria:"));
}
