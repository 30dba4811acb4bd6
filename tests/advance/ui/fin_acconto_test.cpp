#include "advance/ui/fin_acconto.h"
#include "editor/ui/finestra_fixture.h"

#include <QClipboard>
#include <QFrame>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class AccontoTest : public FinestraTest {
protected:
    // Ticks "Pers." on the advance to be requested; `inside` runs in the open calculator.
    void apri(const std::function<void(fin_acconto &)> &inside)
    {
        scegli(kAcconti);
        row = riga(w->Listbox1, kAccontoRichiesto);
        bool opened = false;
        onNextModal([&](QWidget *modal) {
            opened = true;
            auto *calc = qobject_cast<fin_acconto *>(modal);
            ASSERT_NE(calc, nullptr);
            inside(*calc);
            if (calc->isVisible())
                ADD_FAILURE() << "the calculator was left open";
        });
        spunta(w->Listbox1, row, 6);
        EXPECT_TRUE(opened);
        EXPECT_FALSE(fin_acconto::exists()); // made anew for each opening
        w->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(w));
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
        EXPECT_FALSE(w->Listbox1->inModifica()); // the typing in the cell ended when the calculator came
        digita(c.EditQNL[0], u("1000"));
        EXPECT_EQ(c.StaticTcpa->text() + u("|") + c.StaticTiva2->text() + u("|") + c.EditQNL[1]->Text(),
                  u("40,00|218,40|1258,40"));
        EXPECT_EQ(globali().acconto_calcolato[0], u("1000"));
        QTest::mouseClick(c.PushButton1, Qt::LeftButton);
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-1000"));
    EXPECT_EQ(dati().at(kAccontoRichiesto, 53), u("1000"));
    EXPECT_EQ(w->Listbox1->Cell(row, 6), u("1000"));
    EXPECT_EQ(w->Listbox1->CellType(row, 6), 2);
    EXPECT_TRUE(w->Listbox1->CellCheck(row, 6));
    ASSERT_EQ(w->Listbox2->ListCount(), 3);
    EXPECT_EQ(w->Listbox2->Cell(0, 1), u("Acconto da richiedere"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("1000"));
    EXPECT_EQ(w->Listbox2->Cell(2, 5), u("1000"));
    EXPECT_TRUE(globali().modificato);
}

TEST_F(AccontoTest, GrossSumTypedGivesTheNet)
{
    apri([&](fin_acconto &c) {
        c.EditQNL[1]->selectAll(); // the user selects the gross field's text
        digita(c.EditQNL[1], u("1258,40"));
        EXPECT_EQ(c.EditQNL[1]->Text(), u("1258.40")); // the comma became a point
        EXPECT_EQ(c.StaticTcpa->text() + u("|") + c.StaticTiva2->text() + u("|") + c.EditQNL[0]->Text(),
                  u("40,00|218,40|1000,00"));
        EXPECT_EQ(globali().acconto_calcolato[0], u("1000,00"));
        c.close(); // the close button applies too
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-1000,00"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("1000"));
}

TEST_F(AccontoTest, ClosingWithoutTypingLeavesTheItemOff)
{
    apri([&](fin_acconto &c) { QTest::keyClick(&c, Qt::Key_Escape); });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-0"));
    EXPECT_EQ(w->Listbox1->Cell(row, 6), u("0"));
    EXPECT_EQ(w->Listbox2->ListCount(), 2);
}

TEST_F(AccontoTest, WithoutIvaUntilTheFirstComputation)
{
    w->checkiva->click();
    apri([&](fin_acconto &c) {
        EXPECT_EQ(c.StaticTiva2->text(), u("non imponibile"));
        EXPECT_FALSE(c.StaticTiva1->isEnabled());
        EXPECT_FALSE(c.StaticTiva2->isEnabled());
        c.EditQNL[1]->selectAll();
        digita(c.EditQNL[1], u("1040"));
        EXPECT_EQ(c.StaticTiva2->text(), u(",00"));
        EXPECT_EQ(c.EditQNL[0]->Text(), u("1000,00"));
        QTest::keyClick(c.EditQNL[1], Qt::Key_Return); // the default button
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-1000,00"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("1000"));
}

TEST_F(AccontoTest, APasteBeforeAnyKeyComputesNothing)
{
    apri([&](fin_acconto &c) {
        QApplication::clipboard()->setText(u("500,5"));
        c.EditQNL[0]->selectAll();
        c.EditQNL[0]->paste(); // from the menu, with the mouse
        EXPECT_EQ(c.EditQNL[0]->Text(), u("500,5")); // not filtered either
        EXPECT_EQ(c.EditQNL[1]->Text(), u("0"));
        EXPECT_EQ(c.StaticTcpa->text(), u("0"));
        EXPECT_EQ(globali().acconto_calcolato[0], u("500,5"));
        // The first key press makes the computation live.
        QTest::keyClick(c.EditQNL[0], Qt::Key_End);
        digita(c.EditQNL[0], u("0"));
        EXPECT_EQ(c.EditQNL[1]->Text(), u("629,20")); // Val reads 500
        c.close();
    });
    EXPECT_EQ(dati().at(kAccontoRichiesto, 0), u("-500,50"));
}

TEST_F(AccontoTest, EveryControlAtItsPlace)
{
    apri([&](fin_acconto &c) {
        EXPECT_EQ(c.size(), QSize(300, 260));
        struct Case {
            const char *name;
            QRect rect;
            const char *text;
        };
        const Case cases[] = {
            {"StaticText6", {10, 10, 280, 38}, "Inserire il totale lordo per\ncalcolare l'acconto o viceversa"},
            {"StaticText1", {0, 61, 140, 20}, "Acconto €"},       {"EditQNL0", {150, 60, 140, 22}, nullptr},
            {"StaticText2", {0, 101, 140, 20}, "4% C.P.A. €"},    {"StaticTcpa", {154, 101, 140, 20}, "0"},
            {"StaticTiva1", {40, 141, 100, 20}, "21% I.V.A. €"},  {"StaticTiva2", {154, 141, 140, 20}, "0"},
            {"Line1", {20, 170, 270, 1}, nullptr},                {"StaticText5", {0, 181, 140, 20}, "TOTALE LORDO €"},
            {"EditQNL1", {150, 180, 140, 22}, nullptr},           {"PushButton1", {20, 220, 260, 22}, nullptr},
        };
        for (const auto &k : cases) {
            auto *x = c.findChild<QWidget *>(QString::fromLatin1(k.name));
            ASSERT_NE(x, nullptr) << k.name;
            EXPECT_EQ(x->geometry(), k.rect) << k.name;
            if (auto *l = qobject_cast<QLabel *>(x)) {
                EXPECT_EQ(l->text(), u(k.text)) << k.name;
            }
        }
        EXPECT_EQ(c.EditQNL[0]->Text() + c.EditQNL[1]->Text(), u("00"));
        EXPECT_TRUE(c.PushButton1->isDefault() && c.PushButton1->font().bold());
        EXPECT_EQ(c.StaticText1->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
        EXPECT_EQ(c.StaticTcpa->palette().color(QPalette::WindowText).name(), u("#800000"));
        EXPECT_EQ(c.StaticText5->palette().color(QPalette::WindowText).name(), u("#4c4c4c"));
        c.close();
    });
}

TEST_F(AccontoTest, AnItemThatBeginsWithTheWordsOpensItToo)
{
    dati().at(kAccontoRichiesto, 3) = u("Acconto da richiedere al cliente");
    apri([&](fin_acconto &c) {
        digita(c.EditQNL[0], u("200"));
        c.close();
    });
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("200"));

}
