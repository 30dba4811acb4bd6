// SPDX-License-Identifier: GPL-3.0-or-later
#include "advance/ui/fin_acconto.h"
#include "document/composer.h"
#include "editor/ui/finestra_fixture.h"

#include <QClipboard>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class AccontoTest : public FinestraTest {
protected:
    // Ticks "Pers." on the advance to be requested; `inside` runs in the calculator, made anew for each opening.
    void apri(const std::function<void(fin_acconto &)> &inside)
    {
        scegli(kAcconti);
        bool opened = false;
        onNextModal([&](QWidget *modal) {
            auto *calc = qobject_cast<fin_acconto *>(modal);
            ASSERT_NE(calc, nullptr);
            opened = true;
            inside(*calc);
            EXPECT_FALSE(calc->isVisible()) << "the calculator was left open";
        });
        const int row = riga(Listbox1, kAccontoRichiesto);
        if (Listbox1->CellCheck(row, 6))
            spunta(Listbox1, row, 6); // off first
        spunta(Listbox1, row, 6);
        EXPECT_TRUE(opened && !fin_acconto::exists());
    }
    QString stato() { return dati().at(kAccontoRichiesto, kColStato) + u("/") + Listbox2->Cell(0, 4); }
};

} // namespace

TEST_F(AccontoTest, NetOrGrossTypedOrPastedGoesOnTheBill)
{
    apri([&](fin_acconto &c) { QTest::keyClick(&c, Qt::Key_Escape); }); // closed without typing: the item stays off
    EXPECT_TRUE(dati().at(kAccontoRichiesto, kColStato) == u("-0") && Listbox2->ListCount() == 2);
    // Cents typed the Italian way reach the bill and the document.
    apri([&](fin_acconto &c) {
        digita(c.EditQNL[0], u("1000,50"));
        EXPECT_EQ(c.StaticTiva2->text() + u("|") + c.EditQNL[1]->Text(), u("218,51|1259,03"));
        QTest::mouseClick(c.PushButton1, Qt::LeftButton);
    });
    EXPECT_EQ(stato(), u("-1000.50/1000,5")); // the field holds the point the filter put for the comma
    EXPECT_TRUE(globali().totale[0] == 1000.5 && globali().modificato);
    const QString document = Crea_testo(App::instance()->datiDocumento()).testo;
    EXPECT_TRUE(document.contains(u("Acconto da richiedere")) && document.contains(u("1000,50 €")));
    apri([&](fin_acconto &c) {
        c.EditQNL[1]->selectAll();
        digita(c.EditQNL[1], u("1258,40"));
        EXPECT_EQ(c.EditQNL[1]->Text() + u("|") + c.EditQNL[0]->Text(), u("1258.40|1000,00"));
        c.close(); // the close button applies too
    });
    EXPECT_EQ(stato(), u("-1000,00/1000"));
    // A paste before any key computes nothing.
    apri([&](fin_acconto &c) {
        QApplication::clipboard()->setText(u("500,5"));
        c.EditQNL[0]->selectAll();
        c.EditQNL[0]->paste(); // from the menu, with the mouse: not filtered either
        EXPECT_EQ(c.StaticTcpa->text() + u("|") + c.EditQNL[0]->Text() + u("|") + c.EditQNL[1]->Text(), u("0|500,5|0"));
        QTest::keyClick(c.EditQNL[0], Qt::Key_End); // the first key press makes the computation live
        digita(c.EditQNL[0], u("0"));
        EXPECT_EQ(c.EditQNL[1]->Text(), u("629,20")); // Val reads 500
        c.close();
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, kColStato), u("-500,50"));
}
