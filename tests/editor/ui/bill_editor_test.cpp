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
    EXPECT_EQ(StaticTextPop->text(), u("Prestazioni:"));
    EXPECT_TRUE(PopCatB->isEnabled() && EditCerca->isEnabled() && EditCerca->hasFocus());
    EXPECT_EQ(colonna(Listbox1, 1), (QStringList{u("Esame dei documenti (*)")}));

    // The search text stays across a change of category.
    scegli(kOnorari, 1);
    digita(EditCerca, u("UDIENZE"));
    EXPECT_EQ(colonna(Listbox1, 0), (QStringList{u("10")}));
    PopCatA->setCurrentIndex(kDiritti);
    EXPECT_EQ(Listbox1->ListCount(), 0);
    EditCerca->setText(QString());
    EXPECT_EQ(colonna(Listbox1, 0), (QStringList{u("4"), u("5")}));
    clicca(Listbox1, 0, 1);
    EXPECT_FALSE(globali().modificato); // steering the listing doesn't change the bill

    // Back to SELEZIONA: the rows and the sub-list stay until the next listing.
    PopCatA->setCurrentIndex(0);
    EXPECT_TRUE(!PopCatB->isEnabled() && !EditCerca->isEnabled() && PopCatB->count() == 8);
    EXPECT_EQ(Listbox1->ListCount(), 2);
    digita(EditQuantum, u("5"));
    EXPECT_EQ(Listbox1->ListCount(), 0);
    // The divider acts as SELEZIONA.
    PopCatA->setCurrentIndex(1);
    EXPECT_EQ(PopCatA->currentIndex(), 0);
}

TEST_F(FinestraTest, TickMaxRenameQuantityThenMoveTheValue)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    spunta(Listbox1, riga(Listbox1, kEsameDocumenti), 4);
    EXPECT_EQ(dati().at(kEsameDocumenti, 0) + u("/") + dati().at(kEsameDocumenti, 53), u("2/60"));
    EXPECT_TRUE(globali().modificato && Listbox2->CellCheck(0, 5));
    EXPECT_EQ(cells(Listbox2, 0) + u("/") + cells(Listbox2, 2), u("6|Esame dei documenti|1|1|60|60/||||TOTALE:|60"));
    EXPECT_DOUBLE_EQ(globali().totale[0], 60);

    clicca(Listbox2, 0, 1, true);
    scriviInCella(Listbox2, u("Esame degli atti"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55) + u("/") + Listbox2->Cell(0, 1), u("Esame degli atti/Esame degli atti"));
    // Back to the table's text in other letter case: the replacement goes.
    Listbox2->EditCell(0, 1);
    scriviInCella(Listbox2, u("ESAME DEI DOCUMENTI"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55) + u("/") + Listbox2->Cell(0, 1), u("/Esame dei documenti"));
    Listbox2->EditCell(0, 3);
    scriviInCella(Listbox2, u("3"));
    EXPECT_EQ(Listbox2->Cell(0, 5) + u("/") + Listbox2->Cell(2, 5), u("180/180"));

    // Past the limit of 5000 the maximum is a coefficient of the value.
    digita(EditQuantum, u("0"));
    EXPECT_EQ(Listbox2->Cell(0, 2) + u("/") + Listbox2->Cell(0, 4) + u("/") + Listbox2->Cell(2, 5), u("0,02/600/1800"));
    EXPECT_TRUE(Listbox1->CellCheck(riga(Listbox1, kEsameDocumenti), 4));
    PopImport->setCurrentIndex(2); // the IMPORT. triple
    EXPECT_EQ(Listbox2->Cell(0, 4), u("150"));
    Listbox2->EditCell(0, 3);
    scriviInCella(Listbox2, u("tre")); // a total of 0, and the row stays
    EXPECT_EQ(Listbox2->Cell(0, 5) + u("/") + Listbox2->Cell(2, 5), u("0/0"));
}

TEST_F(FinestraTest, BoxesNotesAndUntickingInTheBill)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    int row = riga(Listbox1, kEsameDocumenti);
    spunta(Listbox1, row, 3); // a click that ticks shows the note, then picks
    EXPECT_EQ(EditNota->Text(), u("Esame dei documenti (*)\r* Una sola volta per grado"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("1"));
    spunta(Listbox1, row, 5);
    EXPECT_TRUE(!Listbox1->CellCheck(row, 3) && Listbox1->CellCheck(row, 5));
    ASSERT_EQ(Listbox2->ListCount(), 3); // one bill row for the item
    EXPECT_EQ(Listbox2->Cell(0, 4), u("45"));
    clicca(Listbox2, 0, 4);
    EXPECT_EQ(EditNota->Text(), u("Esame dei documenti\r* Una sola volta per grado"));
    clicca(Listbox2, 2, 4); // the rows under the items read tariff row 0
    EXPECT_EQ(EditNota->Text(), QString());
    spunta(Listbox1, row, 5); // unticking in the listing takes it off
    EXPECT_EQ(Listbox2->ListCount(), 2);

    spunta(Listbox1, row, 4);
    dati().at(kEsameDocumenti, 55) = u("Mio nome");
    dati().at(kEsameDocumenti, 54) = u("3");
    w->mostra_notaspese();
    globali().modificato = false;
    spunta(Listbox2, 0, 5);
    EXPECT_TRUE(globali().modificato && Listbox2->ListCount() == 2);
    row = riga(Listbox1, kEsameDocumenti);
    EXPECT_FALSE(Listbox1->CellCheck(row, 4));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0) + dati().at(kEsameDocumenti, 54), u("01"));
    // Taken on again: quantity 1, the name kept.
    spunta(Listbox1, row, 4);
    EXPECT_EQ(Listbox2->Cell(0, 1) + u("/") + Listbox2->Cell(0, 3), u("Mio nome/1"));
    // Return in the note box redraws the listing, which empties the box.
    clicca(Listbox1, row, 0);
    QTest::keyClick(EditNota, Qt::Key_Return);
    EXPECT_EQ(EditNota->Text(), QString());
}

TEST_F(FinestraTest, PersonalAmount)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    const int row = riga(Listbox1, kEsameDocumenti);
    spunta(Listbox1, row, 6);
    // The cell opens with the whole part of the average, already on the bill.
    EXPECT_TRUE(Listbox1->inModifica() && Listbox1->CellType(row, 6) == 3 && Listbox2->Cell(0, 4) == u("45"));
    scriviInCella(Listbox1, u("75"));
    EXPECT_TRUE(!Listbox1->inModifica() && Listbox1->CellType(row, 6) == 2 && Listbox1->CellCheck(row, 6));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("-75"));
    digita(EditQuantum, u("0")); // the amount stays in another band
    EXPECT_EQ(Listbox2->Cell(0, 4) + u("/") + Listbox1->Cell(row, 6), u("75/75"));

    // An amount that reads as 0 leaves the item off, and the next listing unticks it.
    Listbox1->setCellType(row, 6, 3);
    Listbox1->EditCell(row, 6);
    scriviInCella(Listbox1, u("abc"));
    EXPECT_EQ(Listbox2->ListCount(), 2);
    w->mostra_ricerca(w->testoCerca());
    EXPECT_FALSE(Listbox1->CellCheck(row, 6));
}

TEST_F(FinestraTest, WorkedExampleOfTheBill)
{
    valore(u("10000"));
    scegli(kSpese);
    spunta(Listbox1, riga(Listbox1, kNotifica), 6);
    scriviInCella(Listbox1, u("50"));
    Listbox2->EditCell(0, 3);
    scriviInCella(Listbox2, u("2"));
    scegli(kDiritti, 0);
    spunta(Listbox1, riga(Listbox1, kEsameStudio), 3);
    scegli(kOnorari, 1);
    spunta(Listbox1, riga(Listbox1, kStudioTribunale), 4);
    scegli(kAcconti);
    spunta(Listbox1, riga(Listbox1, kAccontoPercepito), 6);
    scriviInCella(Listbox1, u("500"));

    EXPECT_EQ(colonna(Listbox2, 0).join(u("|")), u("1|4|9|16||"));
    EXPECT_EQ(colonna(Listbox2, 4).join(u("|")), u("50|200|800|-500||TOTALE:"));
    EXPECT_EQ(colonna(Listbox2, 5).join(u("|")), u("100|200|800|-500||600"));
    EXPECT_DOUBLE_EQ(globali().totale[0], 600);
    EXPECT_EQ(dati().at(kAccontoPercepito, 53), u("500"));
}

TEST_F(FinestraTest, OnlyTheUsersTogglesRaiseCellAction)
{
    scegli(kDiritti, 1);
    QSignalSpy actions(Listbox1, &Listbox::CellAction);
    dati().at(kEsameDocumenti, 0) = u("-12");
    w->mostra_ricerca(w->testoCerca());
    Listbox1->setCellCheck(0, 3, true);
    Listbox1->setCellType(0, 6, 3);
    Listbox1->EditCell(0, 6);
    Listbox1->chiudiModifica();
    EXPECT_EQ(actions.count(), 0);
    Listbox1->setCellType(0, 6, 2);
    spunta(Listbox1, 0, 4);
    ASSERT_EQ(actions.count(), 1);
    EXPECT_EQ(actions.at(0).at(1).toInt(), 4);
}

TEST_F(FinestraTest, ABrokenTariffRowIsReportedAndTheProgramGoesOn)
{
    dati().at(kEsameDocumenti, 8) = u("abc"); // no band ends the scan any more
    dati().at(kEsameDocumenti, 11) = u("0");
    scegli(kDiritti, 1);
    QStringList failures;
    App::failureSink() = [&](const QString &message) { failures << message; };
    digita(EditQuantum, u("2000")); // past the first band at the last key
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].startsWith(u("Errore imprevisto: indice fuori dai limiti"))) << failures[0].toStdString();
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(EditQuantum->Text(), u("2000"));
}
