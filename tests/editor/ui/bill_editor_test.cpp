#include "finestra_fixture.h"

#include <QSignalSpy>

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, CategoryNavigation)
{
    w->PopCatA->setCurrentIndex(kDiritti);
    EXPECT_EQ(w->StaticTextPop->text(), u("Prestazioni:"));
    EXPECT_TRUE(w->PopCatB->isEnabled());
    EXPECT_EQ(w->PopCatB->count(), 8);
    EXPECT_EQ(w->PopCatB->currentIndex(), 0);
    EXPECT_TRUE(w->EditCerca->isEnabled());
    EXPECT_TRUE(w->EditCerca->hasFocus());
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("4"), u("5")}));

    w->PopCatB->setCurrentIndex(1);
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("6")}));
    EXPECT_EQ(w->Listbox1->Cell(0, 1), u("Esame dei documenti (*)"));

    // The search text stays across a change of category.
    w->PopCatA->setCurrentIndex(kOnorari);
    w->PopCatB->setCurrentIndex(1);
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("9"), u("10")}));
    digita(w->EditCerca, u("UDIENZE"));
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("10")}));
    w->PopCatA->setCurrentIndex(kDiritti);
    EXPECT_EQ(w->EditCerca->Text(), u("UDIENZE"));
    EXPECT_EQ(w->Listbox1->ListCount(), 0);
    w->EditCerca->setText(QString());
    EXPECT_EQ(w->Listbox1->ListCount(), 2);
    EXPECT_FALSE(globali().modificato); // steering the listing doesn't change the bill

    // Back to SELEZIONA: the rows and the sub-list stay, disabled, until the next listing.
    w->PopCatA->setCurrentIndex(0);
    EXPECT_FALSE(w->PopCatB->isEnabled());
    EXPECT_FALSE(w->EditCerca->isEnabled());
    EXPECT_EQ(w->PopCatB->count(), 8);
    EXPECT_EQ(w->StaticTextPop->text(), u("Sotto-Categoria:"));
    EXPECT_EQ(w->Listbox1->ListCount(), 2);
    digita(w->EditQuantum, u("5"));
    EXPECT_EQ(w->Listbox1->ListCount(), 0);

    // The divider acts as SELEZIONA.
    w->PopCatA->setCurrentIndex(kAcconti);
    EXPECT_EQ(w->StaticTextPop->text(), u("Acconti:"));
    EXPECT_EQ(colonna(w->Listbox1, 0), (QStringList{u("15"), u("16")}));
    w->PopCatA->setCurrentIndex(1);
    EXPECT_EQ(w->PopCatA->currentIndex(), 0);
    EXPECT_FALSE(w->PopCatB->isEnabled());
}

TEST_F(FinestraTest, TickMaxThenMoveTheValue)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    const int row = riga(w->Listbox1, kEsameDocumenti);
    globali().modificato = false;
    spunta(w->Listbox1, row, 4);
    EXPECT_TRUE(w->Listbox1->CellCheck(row, 4));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("2"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 53), u("60"));
    EXPECT_TRUE(globali().modificato);
    ASSERT_EQ(w->Listbox2->ListCount(), 3);
    const QStringList expected{u("6"), u("Esame dei documenti"), u("1"), u("1"), u("60"), u("60")};
    for (int c = 0; c < 6; ++c)
        EXPECT_EQ(w->Listbox2->Cell(0, c), expected[c]) << c;
    EXPECT_TRUE(w->Listbox2->CellCheck(0, 5));
    EXPECT_EQ(w->Listbox2->CellType(0, 5), 2);
    EXPECT_TRUE(w->Listbox2->CellBold(0, 3) && w->Listbox2->CellItalic(0, 3));
    EXPECT_EQ(w->Listbox2->Cell(2, 4), u("TOTALE:"));
    EXPECT_EQ(w->Listbox2->Cell(2, 5), u("60"));
    EXPECT_TRUE(w->Listbox2->CellBold(2, 5));
    EXPECT_DOUBLE_EQ(globali().totale[0], 60);

    // Past the limit of 5000 the maximum is a coefficient of the value.
    digita(w->EditQuantum, u("0"));
    EXPECT_EQ(w->EditQuantum->Text(), u("30000"));
    EXPECT_EQ(w->Listbox2->Cell(0, 2), u("0,02"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("600"));
    EXPECT_EQ(w->Listbox2->Cell(2, 5), u("600"));
    EXPECT_TRUE(w->Listbox1->CellCheck(riga(w->Listbox1, kEsameDocumenti), 4));
    EXPECT_EQ(w->Listbox1->Cell(riga(w->Listbox1, kEsameDocumenti), 2), QString(QChar(0x2014)));

    // "Importante" takes the IMPORT. triple.
    w->PopImport->setCurrentIndex(2);
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("150"));
}

TEST_F(FinestraTest, BoxesAreExclusiveAndUntickingInTheBillClearsTheListing)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    int row = riga(w->Listbox1, kEsameDocumenti);
    spunta(w->Listbox1, row, 3);
    spunta(w->Listbox1, row, 4);
    EXPECT_FALSE(w->Listbox1->CellCheck(row, 3));
    EXPECT_TRUE(w->Listbox1->CellCheck(row, 4));
    ASSERT_EQ(w->Listbox2->ListCount(), 3); // one bill row for the item
    spunta(w->Listbox1, row, 5);
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("3"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("45"));

    // Unticking in the listing takes the item off.
    spunta(w->Listbox1, row, 5);
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("0"));
    EXPECT_EQ(w->Listbox2->ListCount(), 2);

    spunta(w->Listbox1, row, 4);
    dati().at(kEsameDocumenti, 55) = u("Mio nome");
    dati().at(kEsameDocumenti, 54) = u("3");
    w->mostra_notaspese();
    globali().modificato = false;
    spunta(w->Listbox2, 0, 5);
    EXPECT_TRUE(globali().modificato);
    EXPECT_EQ(w->Listbox2->ListCount(), 2);
    row = riga(w->Listbox1, kEsameDocumenti);
    for (int c = 3; c <= 6; ++c)
        EXPECT_FALSE(w->Listbox1->CellCheck(row, c)) << c;
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("0"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 53), u("0"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 54), u("1"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55), u("Mio nome"));

    // Taken on again: quantity 1, the name kept.
    spunta(w->Listbox1, row, 4);
    EXPECT_EQ(w->Listbox2->Cell(0, 1), u("Mio nome"));
    EXPECT_EQ(w->Listbox2->Cell(0, 3), u("1"));
}

TEST_F(FinestraTest, PicksSurviveAChangeOfSubCategory)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    spunta(w->Listbox1, riga(w->Listbox1, kEsameDocumenti), 3);
    w->PopCatB->setCurrentIndex(0);
    EXPECT_EQ(w->Listbox2->ListCount(), 3);
    w->PopCatB->setCurrentIndex(1);
    EXPECT_TRUE(w->Listbox1->CellCheck(riga(w->Listbox1, kEsameDocumenti), 3));
}

TEST_F(FinestraTest, PersonalAmount)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    const int row = riga(w->Listbox1, kEsameDocumenti);
    spunta(w->Listbox1, row, 6);
    // The cell opens with the whole part of the average, already on the bill.
    EXPECT_TRUE(w->Listbox1->inModifica());
    EXPECT_EQ(w->Listbox1->CellType(row, 6), 3);
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("-45"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("45"));

    scriviInCella(w->Listbox1, u("75"));
    EXPECT_FALSE(w->Listbox1->inModifica());
    EXPECT_EQ(w->Listbox1->CellType(row, 6), 2);
    EXPECT_TRUE(w->Listbox1->CellCheck(row, 6));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("-75"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 53), u("75"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("75"));

    // The amount stays when the value moves to another band.
    digita(w->EditQuantum, u("0"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("75"));
    EXPECT_EQ(w->Listbox1->Cell(riga(w->Listbox1, kEsameDocumenti), 6), u("75"));
}

TEST_F(FinestraTest, PersonalAmountsThatReadAsZeroStayOffTheBill)
{
    struct Case {
        const char *typed;
        const char *stato;
    };
    const Case cases[] = {{"abc", "-abc"}, {"-5", "--5"}};
    for (const auto &c : cases) {
        valore(u("3000"));
        scegli(kDiritti, 1);
        const int row = riga(w->Listbox1, kEsameDocumenti);
        spunta(w->Listbox1, row, 6);
        scriviInCella(w->Listbox1, u(c.typed));
        EXPECT_EQ(dati().at(kEsameDocumenti, 0), u(c.stato)) << c.typed;
        EXPECT_EQ(w->Listbox2->ListCount(), 2) << c.typed;
        w->mostra_ricerca(w->testoCerca());
        EXPECT_FALSE(w->Listbox1->CellCheck(riga(w->Listbox1, kEsameDocumenti), 6)) << c.typed;
        dati().at(kEsameDocumenti, 0) = u("0");
    }
}

TEST_F(FinestraTest, PersonalAmountAdvanceReceivedIsBilledNegated)
{
    valore(u("3000"));
    scegli(kAcconti);
    spunta(w->Listbox1, riga(w->Listbox1, kAccontoPercepito), 6);
    scriviInCella(w->Listbox1, u("500"));
    EXPECT_EQ(w->Listbox2->Cell(0, 4), u("-500"));
    EXPECT_EQ(w->Listbox2->Cell(2, 5), u("-500"));
}

TEST_F(FinestraTest, RenameAndQuantity)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    spunta(w->Listbox1, riga(w->Listbox1, kEsameDocumenti), 4);

    doppioClic(w->Listbox2, 0, 1);
    scriviInCella(w->Listbox2, u("Esame degli atti"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55), u("Esame degli atti"));
    EXPECT_EQ(w->Listbox2->Cell(0, 1), u("Esame degli atti"));
    EXPECT_EQ(w->Listbox1->Cell(riga(w->Listbox1, kEsameDocumenti), 1), u("Esame dei documenti (*)"));

    // Back to the table's text in other letter case: the replacement goes.
    w->Listbox2->EditCell(0, 1);
    scriviInCella(w->Listbox2, u("ESAME DEI DOCUMENTI"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 55), QString());
    EXPECT_EQ(w->Listbox2->Cell(0, 1), u("Esame dei documenti"));

    globali().modificato = false;
    w->Listbox2->EditCell(0, 3);
    scriviInCella(w->Listbox2, u("3"));
    EXPECT_TRUE(globali().modificato);
    EXPECT_EQ(dati().at(kEsameDocumenti, 54), u("3"));
    EXPECT_EQ(w->Listbox2->Cell(0, 5), u("180"));
    EXPECT_EQ(w->Listbox2->Cell(2, 5), u("180"));

    // Letters under "Quantità": a total of 0, and the row stays.
    w->Listbox2->EditCell(0, 3);
    scriviInCella(w->Listbox2, u("tre"));
    EXPECT_EQ(w->Listbox2->ListCount(), 3);
    EXPECT_EQ(w->Listbox2->Cell(0, 5), u("0"));
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

    EXPECT_EQ(colonna(w->Listbox2, 5), (QStringList{u("100"), u("200"), u("800"), u("-500"), QString(), u("600")}));
    EXPECT_EQ(colonna(w->Listbox2, 4), (QStringList{u("50"), u("200"), u("800"), u("-500"), QString(), u("TOTALE:")}));
    EXPECT_DOUBLE_EQ(globali().totale[0], 600);
}

TEST_F(FinestraTest, ClickShowsTheItemAndItsNote)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    const int row = riga(w->Listbox1, kEsameDocumenti);
    globali().modificato = false;
    clicca(w->Listbox1, row, 1);
    EXPECT_EQ(w->EditNota->Text(), u("Esame dei documenti (*)\r* Una sola volta per grado"));
    EXPECT_FALSE(globali().modificato);

    // A click that ticks a box shows the note, then picks.
    w->EditNota->setText(QString());
    spunta(w->Listbox1, row, 3);
    EXPECT_EQ(w->EditNota->Text(), u("Esame dei documenti (*)\r* Una sola volta per grado"));
    EXPECT_EQ(dati().at(kEsameDocumenti, 0), u("1"));

    clicca(w->Listbox2, 0, 4);
    EXPECT_EQ(w->EditNota->Text(), u("Esame dei documenti\r* Una sola volta per grado"));
    clicca(w->Listbox2, 2, 4); // the rows under the items read tariff row 0
    EXPECT_EQ(w->EditNota->Text(), QString());

    scegli(kDiritti, 0);
    clicca(w->Listbox1, riga(w->Listbox1, kEsameStudio), 0);
    EXPECT_EQ(w->EditNota->Text(), u("Esame e studio della pratica"));

    // Return in the note box redraws the listing, which empties the box.
    w->EditNota->setFocus();
    QTest::keyClick(w->EditNota, Qt::Key_Return);
    EXPECT_EQ(w->EditNota->Text(), QString());
    EXPECT_EQ(w->Listbox1->ListCount(), 2);
}

TEST_F(FinestraTest, TheProgramsWritesRaiseNoCellAction)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    QSignalSpy actions1(w->Listbox1, &Listbox::CellAction);
    QSignalSpy actions2(w->Listbox2, &Listbox::CellAction);
    dati().at(kEsameDocumenti, 0) = u("-12");
    w->mostra_ricerca(w->testoCerca());
    EXPECT_TRUE(w->Listbox1->CellCheck(0, 6));
    w->Listbox1->setCellCheck(0, 3, true);
    w->Listbox1->setCell(0, 6, u("99"));
    w->Listbox1->setCellType(0, 6, 3);
    w->Listbox1->EditCell(0, 6);
    w->Listbox1->chiudiModifica();
    w->Listbox2->setCellCheck(0, 5, false);
    EXPECT_EQ(actions1.count(), 0);
    EXPECT_EQ(actions2.count(), 0);

    // A user's toggle raises it once, after the click.
    QSignalSpy clicks(w->Listbox1, &Listbox::CellClick);
    w->Listbox1->setCellType(0, 6, 2);
    spunta(w->Listbox1, 0, 4);
    ASSERT_EQ(clicks.count(), 1);
    ASSERT_EQ(actions1.count(), 1);
    EXPECT_EQ(actions1.at(0).at(0).toInt(), 0);
    EXPECT_EQ(actions1.at(0).at(1).toInt(), 4);
}

TEST_F(FinestraTest, NavigationSearchAndClicksLeaveTheBillUnchanged)
{
    scegli(kDiritti, 1);
    digita(w->EditCerca, u("esame"));
    clicca(w->Listbox1, 0, 1);
    w->PopCatA->setCurrentIndex(0);
    EXPECT_FALSE(globali().modificato);
}

using FinestraDeathTest = FinestraTest;

TEST_F(FinestraDeathTest, ABrokenTariffRowEndsTheProgram)
{
    dati().at(kEsameDocumenti, 8) = u("abc"); // no band ends the scan any more
    dati().at(kEsameDocumenti, 11) = u("0");
    scegli(kDiritti, 1);
    EXPECT_EXIT(digita(w->EditQuantum, u("2000")), ::testing::ExitedWithCode(1), "Errore imprevisto");
}

// A bill of every kind of item, as the user sees it. With LUMETRA_SCREENSHOT
// set to a file name, the window is saved there as a picture.
TEST_F(FinestraTest, ABillOfSeveralItems)
{
    w->EditField2->setText(u("Spett.le\rComune di Siracusa\rPiazza Duomo, 1"));
    w->EditField1->setText(u("Causa Comune di Milano contro Tizio e Caio.\rOggetto: recupero crediti"));
    valore(u("12000"));
    scegli(kSpese);
    spunta(w->Listbox1, riga(w->Listbox1, kNotifica), 6);
    scriviInCella(w->Listbox1, u("35,50"));
    scegli(kDiritti, 0);
    spunta(w->Listbox1, riga(w->Listbox1, kEsameStudio), 5);
    spunta(w->Listbox1, riga(w->Listbox1, 5), 4);
    w->Listbox2->EditCell(1, 3);
    scriviInCella(w->Listbox2, u("2"));
    scegli(kOnorari, 1);
    spunta(w->Listbox1, riga(w->Listbox1, kStudioTribunale), 3);
    clicca(w->Listbox1, riga(w->Listbox1, 10), 1);

    EXPECT_EQ(colonna(w->Listbox2, 0), (QStringList{u("1"), u("4"), u("5"), u("9"), QString(), QString()}));
    EXPECT_EQ(colonna(w->Listbox2, 2), (QStringList{u("1"), u("0,025"), u("0,02"), u("1"), QString(), QString()}));
    EXPECT_EQ(colonna(w->Listbox2, 5),
              (QStringList{u("35,5"), u("600"), u("240"), u("400"), QString(), u("1275,5")}));
    EXPECT_EQ(w->EditNota->Text(), u("Partecipazione alle udienze (*)\r* Per ogni udienza"));

    const QByteArray path = qgetenv("LUMETRA_SCREENSHOT");
    if (!path.isEmpty()) {
        settle(50);
        EXPECT_TRUE(w->grab().save(QString::fromLocal8Bit(path)));
    }
}
