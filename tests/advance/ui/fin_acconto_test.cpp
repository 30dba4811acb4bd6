#include "advance/ui/fin_acconto.h"
#include "editor/ui/finestra_fixture.h"

#include <QClipboard>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class AccontoTest : public FinestraTest {
protected:
    // Ticks "Pers." on the advance to be requested; `inside` runs in the open calculator.
    void apri(const std::function<void(fin_acconto &)> &inside)
    {
        scegli(kAcconti);
        row = riga(Listbox1, kAccontoRichiesto);
        bool opened = false;
        onNextModal([&](QWidget *modal) {
            auto *calc = qobject_cast<fin_acconto *>(modal);
            ASSERT_NE(calc, nullptr);
            opened = true;
            inside(*calc);
            EXPECT_FALSE(calc->isVisible()) << "the calculator was left open";
        });
        spunta(Listbox1, row, 6);
        EXPECT_TRUE(opened && !fin_acconto::exists()); // made anew for each opening
        w->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(w));
    }

    static QString figures(fin_acconto &c, int other)
    {
        return c.StaticTcpa->text() + u("|") + c.StaticTiva2->text() + u("|") + c.EditQNL[size_t(other)]->Text();
    }

    int row = -1;
};

} // namespace

TEST_F(AccontoTest, NetSumTypedGoesOnTheBill)
{
    valore(u("3000"));
    apri([&](fin_acconto &c) {
        EXPECT_EQ(c.windowTitle(), u("Computa Acconto"));
        const auto &a = globali().acconto_calcolato;
        EXPECT_EQ(QStringList({a[0], a[1], a[2], a[3]}), (QStringList{u("0"), QString::number(row), u("6"), u("15")}));
        EXPECT_FALSE(Listbox1->inModifica()); // the typing in the cell ended when the calculator came
        digita(c.EditQNL[0], u("1000"));
        EXPECT_EQ(figures(c, 1), u("40,00|218,40|1258,40"));
        QTest::mouseClick(c.PushButton1, Qt::LeftButton);
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0) + u("/") + dati().at(kAccontoRichiesto, 53), u("-1000/1000"));
    EXPECT_TRUE(Listbox1->Cell(row, 6) == u("1000") && Listbox1->CellType(row, 6) == 2);
    EXPECT_TRUE(Listbox1->CellCheck(row, 6) && globali().modificato);
    ASSERT_EQ(Listbox2->ListCount(), 3);
    EXPECT_EQ(Listbox2->Cell(0, 1) + u("/") + Listbox2->Cell(0, 4), u("Acconto da richiedere/1000"));
}

TEST_F(AccontoTest, GrossSumTypedGivesTheNet)
{
    apri([&](fin_acconto &c) {
        c.EditQNL[1]->selectAll(); // the user selects the gross field's text
        digita(c.EditQNL[1], u("1258,40"));
        EXPECT_EQ(c.EditQNL[1]->Text(), u("1258.40")); // the comma became a point
        EXPECT_EQ(figures(c, 0), u("40,00|218,40|1000,00"));
        c.close(); // the close button applies too
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-1000,00"));
    EXPECT_EQ(Listbox2->Cell(0, 4), u("1000"));
}

TEST_F(AccontoTest, WithoutIvaAndClosingWithoutTypingLeavesTheItemOff)
{
    checkiva->click();
    apri([&](fin_acconto &c) {
        EXPECT_EQ(c.StaticTiva2->text(), u("non imponibile"));
        EXPECT_FALSE(c.StaticTiva1->isEnabled() || c.StaticTiva2->isEnabled());
        QTest::keyClick(&c, Qt::Key_Escape);
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0) + u("/") + Listbox1->Cell(row, 6), u("-0/0"));
    EXPECT_EQ(Listbox2->ListCount(), 2);
}

TEST_F(AccontoTest, APasteBeforeAnyKeyComputesNothing)
{
    apri([&](fin_acconto &c) {
        QApplication::clipboard()->setText(u("500,5"));
        c.EditQNL[0]->selectAll();
        c.EditQNL[0]->paste(); // from the menu, with the mouse: not filtered either
        EXPECT_EQ(figures(c, 0) + u("/") + c.EditQNL[1]->Text(), u("0|0|500,5/0"));
        EXPECT_EQ(globali().acconto_calcolato[0], u("500,5"));
        // The first key press makes the computation live.
        QTest::keyClick(c.EditQNL[0], Qt::Key_End);
        digita(c.EditQNL[0], u("0"));
        EXPECT_EQ(c.EditQNL[1]->Text(), u("629,20")); // Val reads 500
        c.close();
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-500,50"));
}
