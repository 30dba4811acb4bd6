// SPDX-License-Identifier: GPL-3.0-or-later
// Amounts typed the Italian way, through the window, to the bill; the calculator's cents are the advance test's.

#include "finestra_fixture.h"

#include <QLabel>

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, AnOwnAmountAndAQuantityWithAPoint)
{
    valore(u("10000"));
    scegli(kDiritti, 1);
    const int row = riga(Listbox1, kEsameDocumenti);
    spunta(Listbox1, row, 6);
    scriviInCella(Listbox1, u("1.5")); // euro, not a coefficient of the value
    EXPECT_EQ(Listbox2->Cell(0, 2) + u("|") + Listbox2->Cell(0, 4), u("1|1,5"));
    Listbox1->setCellType(row, 6, TipoModificabile); // 50 euro instead, three times and a half
    Listbox1->EditCell(row, 6);
    scriviInCella(Listbox1, u("50"));
    Listbox2->EditCell(0, 3);
    scriviInCella(Listbox2, u("1.5"));
    EXPECT_EQ(Listbox2->Cell(0, 5), u("75"));
}

TEST_F(FinestraTest, AValueWithThousandsPointsIsPointedOut)
{
    auto *avviso = w->findChild<QLabel *>(u("StaticAvviso"));
    ASSERT_NE(avviso, nullptr);
    scegli(kDiritti, 0);
    spunta(Listbox1, riga(Listbox1, kEsameStudio), 3); // Min
    // value typed, warning shown, the bill's amount (the band by Val, coefficients by CDbl)
    const std::tuple<const char *, bool, const char *> cases[] = {
        {"150.000", true, "100"}, // the first band, the band of 150
        {"150000", false, "3000"}, // 0,02 of 150000
        {"12000.5", false, "240,01"},
        {"25.000,50", true, "100"}, // the field holds 25.000.50: the band of 25, as Val reads it
    };
    for (const auto &[typed, shown, importo] : cases) {
        valore(u(typed));
        EXPECT_EQ(avviso->isVisible(), shown) << typed;
        EXPECT_EQ(Listbox2->Cell(0, 4), u(importo)) << typed;
    }
    EXPECT_EQ(avviso->text(), u("Attenzione: fascia di 25,00 €.\nPer 25000,50 € scrivere 25000,50, senza punti."));
    // Outside the controls' places: it covers none of them.
    for (QWidget *control : avviso->parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(control == avviso || !control->geometry().intersects(avviso->geometry()))
            << control->objectName().toStdString();
}
