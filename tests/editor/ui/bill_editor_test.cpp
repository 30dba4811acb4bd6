#include "finestra_fixture.h"

#include <QSignalSpy>

using namespace lumetra;
using namespace lumetra::test;

namespace {
// Row r of a list, its first six cells joined by "|".
QString cells(const Listbox *list, int r)
{
    QStringList t;
    for (int c = 0; c < 6; ++c)
        t << list->Cell(r, c);
    return t.join(u("|"));
}
} // namespace

TEST_F(FinestraTest, CategoryNavigation)
{
    scegli(kDiritti, 1);
    EXPECT_EQ(w->StaticTextPop->text(), u("Prestazioni:"));
    EXPECT_TRUE(w->PopCatB->isEnabled() && w->EditCerca->isEnabled() && w->EditCerca->hasFocus());
    EXPECT_EQ(colonna(w->Listbox1, 1), (QStringList{u("Esame dei documenti (*)")}));

    // The search text stays across a change of category.
    scegli(kOnorari, 1);
    digita(w->EditCerca, u("UDIENZE"));
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("10")}));
    w->PopCatA->setCurrentIndex(kDiritti);
    EXPECT_EQ(w->Listbox1->ListCount(), 0);
    w->EditCerca->setText(QString());
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("4"), u("5")}));
    clicca(w->Listbox1, 0, 1);
    EXPECT_FALSE(globali().modificato); // steering the listing doesn't change the bill

    // Back to SELEZIONA: the rows and the sub-list stay until the next listing.
    w->PopCatA->setCurrentIndex(0);
    EXPECT_TRUE(!w->PopCatB->isEnabled() && !w->EditCerca->isEnabled() && w->PopCatB->count() == 8);
    EXPECT_EQ(w->Listbox1->ListCount(), 2);
    digita(w->EditQuantum, u("5"));
    EXPECT_EQ(w->Listbox1->ListCount(), 0);
    // The divider acts as SELEZIONA.
    w->PopCatA->setCurrentIndex(1);
    EXPECT_EQ(w->PopCatA->currentIndex(), 0);
}

TEST_F(FinestraTest, TickMaxRenameQuantityThenMoveTheValue)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    spunta(w->Listbox1, riga(w->Listbox1, kEsameDocumenti), 4);
    EXPECT_EQ(dati().at(kEsameDocumenti, 0) + u("/") + dati().at(kEsameDocumenti, 53), u("2/60"));
    EXPECT_TRUE(globali().modificato && w->Listbox2->CellCheck(0, 5));
    EXPECT_EQ(cells(w->Listbox2, 0) + u("/") + cells(w->Listbox2, 2),
              u("6|Esame dei documenti|1|1|60|60/||||TOTALE:|60"));
    EXPECT_DOUBLE_EQ(globali().totale[0], 60);

    clicca(w->Listbox2, 0, 1, true);
    scriviInCella(w->Listbox2, u("Esame degli atti"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55) + u("/") + w->Listbox2->Cell(0, 1),
              u("Esame degli atti/Esame degli atti"));
    // Back to the table's text in other letter case: the replacement goes.
    w->Listbox2->EditCell(0, 1);
    scriviInCella(w->Listbox2, u("ESAME DEI DOCUMENTI"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55) + u("/") + w->Listbox2->Cell(0, 1), u("/Esame dei documenti"));
    w->Listbox2->EditCell(0, 3);
    scriviInCella(w->Listbox2, u("3"));
    EXPECT_EQ(w->Listbox2->Cell(0, 5) + u("/") + w->Listbox2->Cell(2, 5), u("180/180"));

    // Past the limit of 5000 the maximum is a coefficient of the value.
    digita(w->EditQuantum, u("0"));
    EXPECT_EQ(w->Listbox2->Cell(0, 2) + u("/") + w->Listbox2->Cell(0, 4) + u("/") + w->Listbox2->Cell(2, 5),
              u("0,02/600/1800"));
    EXPECT_TRUE(w->Listbox1->CellCheck(riga(w->Listbox1, kEsameDocumenti), 4));
    w->PopImport->setCurrentIndex(2); // the IMPORT. triple
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("150"));
    w->Listbox2->EditCell(0, 3);
    scriviInCella(w->Listbox2, u("tre")); // a total of 0, and the row stays
    EXPECT_EQ(w->Listbox2->Cell(0, 5) + u("/") + w->Listbox2->Cell(2, 5), u("0/0"));
}

TEST_F(FinestraTest, BoxesNotesAndUntickingInTheBill)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    int row = riga(w->Listbox1, kEsameDocumenti);
    spunta(w->Listbox1, row, 3); // a click that ticks shows the note, then picks
    EXPECT_EQ(w->EditNota->Text(), u("Esame dei documenti (*)\r* Una sola volta per grado"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("1"));
    spunta(w->Listbox1, row, 5);
    EXPECT_TRUE(!w->Listbox1->CellCheck(row, 3) && w->Listbox1->CellCheck(row, 5));
    ASSERT_EQ(w->Listbox2->ListCount(), 3); // one bill row for the item
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("45"));
    clicca(w->Listbox2, 0, 4);
    EXPECT_EQ(w->EditNota->Text(), u("Esame dei documenti\r* Una sola volta per grado"));
    clicca(w->Listbox2, 2, 4); // the rows under the items read tariff row 0
    EXPECT_EQ(w->EditNota->Text(), QString());
    spunta(w->Listbox1, row, 5); // unticking in the listing takes it off
    EXPECT_EQ(w->Listbox2->ListCount(), 2);

    spunta(w->Listbox1, row, 4);
    dati().at(kEsameDocumenti, 55) = u("Mio nome");
    dati().at(kEsameDocumenti, 54) = u("3");
    w->mostra_notaspese();
    globali().modificato = false;
    spunta(w->Listbox2, 0, 5);
    EXPECT_TRUE(globali().modificato && w->Listbox2->ListCount() == 2);
    row = riga(w->Listbox1, kEsameDocumenti);
    EXPECT_FALSE(w->Listbox1->CellCheck(row, 4));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0) + dati().at(kEsameDocumenti, 54), u("01"));
    // Taken on again: quantity 1, the name kept.
    spunta(w->Listbox1, row, 4);
    EXPECT_EQ(w->Listbox2->Cell(0, 1) + u("/") + w->Listbox2->Cell(0, 3), u("Mio nome/1"));
    // Return in the note box redraws the listing, which empties the box.
    clicca(w->Listbox1, row, 0);
    QTest::keyClick(w->EditNota, Qt::Key_Return);
    EXPECT_EQ(w->EditNota->Text(), QString());
}

TEST_F(FinestraTest, PersonalAmount)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    const int row = riga(w->Listbox1, kEsameDocumenti);
    spunta(w->Listbox1, row, 6);
    // The cell opens with the whole part of the average, already on the bill.
    EXPECT_TRUE(w->Listbox1->inModifica() && w->Listbox1->CellType(row, 6) == 3 && w->Listbox2->Cell(0, 4) == u("45"));
    scriviInCella(w->Listbox1, u("75"));
    EXPECT_TRUE(!w->Listbox1->inModifica() && w->Listbox1->CellType(row, 6) == 2 && w->Listbox1->CellCheck(row, 6));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("-75"));
    digita(w->EditQuantum, u("0")); // the amount stays in another band
    EXPECT_EQ(w->Listbox2->Cell(0, 4) + u("/") + w->Listbox1->Cell(row, 6), u("75/75"));

    // An amount that reads as 0 leaves the item off, and the next listing unticks it.
    w->Listbox1->setCellType(row, 6, 3);
    w->Listbox1->EditCell(row, 6);
    scriviInCella(w->Listbox1, u("abc"));
    EXPECT_EQ(w->Listbox2->ListCount(), 2);
    w->mostra_ricerca(w->testoCerca());
    EXPECT_FALSE(w->Listbox1->CellCheck(row, 6));
}

TEST_F(FinestraTest, WorkedExampleOfTheBill)
{
    valore(u("10000"));
    scegli(kSpese);
    spunta(w->Listbox1, riga(w->Listbox1, kNotifica), 6);
    scriviInCella(w->Listbox1, u("50"));
    w->Listbox2->EditCell(0, 3);
    scriviInCella(w->Listbox2, u("2"));
    scegli(kDiritti, 0);
    spunta(w->Listbox1, riga(w->Listbox1, kEsameStudio), 3);
    scegli(kOnorari, 1);
    spunta(w->Listbox1, riga(w->Listbox1, kStudioTribunale), 4);
    scegli(kAcconti);
    spunta(w->Listbox1, riga(w->Listbox1, kAccontoPercepito), 6);
    scriviInCella(w->Listbox1, u("500"));

    EXPECT_EQ(colonna(w->Listbox2, 0).join(u("|")), u("1|4|9|16||"));
    EXPECT_EQ(colonna(w->Listbox2, 4).join(u("|")), u("50|200|800|-500||TOTALE:"));
    EXPECT_EQ(colonna(w->Listbox2, 5).join(u("|")), u("100|200|800|-500||600"));
    EXPECT_DOUBLE_EQ(globali().totale[0], 600);
    EXPECT_EQ(dati().at(kAccontoPercepito, 53), u("500"));
}

TEST_F(FinestraTest, OnlyTheUsersTogglesRaiseCellAction)
{
    scegli(kDiritti, 1);
    QSignalSpy actions(w->Listbox1, &Listbox::CellAction);
    dati().at(kEsameDocumenti, 0) = u("-12");
    w->mostra_ricerca(w->testoCerca());
    w->Listbox1->setCellCheck(0, 3, true);
    w->Listbox1->setCellType(0, 6, 3);
    w->Listbox1->EditCell(0, 6);
    w->Listbox1->chiudiModifica();
    EXPECT_EQ(actions.count(), 0);
    w->Listbox1->setCellType(0, 6, 2);
    spunta(w->Listbox1, 0, 4);
    ASSERT_EQ(actions.count(), 1);
    EXPECT_EQ(actions.at(0).at(1).toInt(), 4);
}

using FinestraDeathTest = FinestraTest;

TEST_F(FinestraDeathTest, ABrokenTariffRowEndsTheProgram)
{
    dati().at(kEsameDocumenti, 8) = u("abc"); // no band ends the scan any more
    dati().at(kEsameDocumenti, 11) = u("0");
    scegli(kDiritti, 1);
    EXPECT_EXIT(digita(w->EditQuantum, u("2000")), ::testing::ExitedWithCode(1), "Errore imprevisto");
}
