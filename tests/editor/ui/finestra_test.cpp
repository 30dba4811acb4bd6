// SPDX-License-Identifier: GPL-3.0-or-later
#include "finestra_fixture.h"

#include <QClipboard>
#include <QSignalSpy>

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, HeaderFieldsKindOfValueAndTaxOptions)
{
    digita(EditQuantum, u("12,5"));
    EXPECT_TRUE(EditQuantum->Text() == u("12.5") && globali().modificato);
    // Text set from outside runs the field's handler too, even when unchanged.
    globali().modificato = false;
    EditQuantum->setText(u("12.5"));
    EXPECT_TRUE(globali().modificato);
    // The limits stop the user's typing and pasting, not the program.
    EditQuantum->setText(QString(28, QLatin1Char('1')) + u("2"));
    QApplication::clipboard()->setText(u("3456"));
    QTest::keyClick(EditQuantum, Qt::Key_V, Qt::ControlModifier); // cut to the room left
    EXPECT_EQ(EditQuantum->Text(), QString(28, QLatin1Char('1')) + u("23"));
    digita(EditField2, QString(199, QLatin1Char('x')));
    QTest::keyClick(EditField2, Qt::Key_Return);
    digita(EditField2, u("yz"));
    EXPECT_EQ(EditField2->Text(), QString(199, QLatin1Char('x')) + QChar(13));
    EditField2->setText(QString(250, QLatin1Char('w')));
    EXPECT_EQ(StaticText11->text(), u("250 / 200"));

    // The kind of value.
    valore(u("12000"));
    PopImport->setCurrentIndex(2);
    EXPECT_TRUE(!EditQuantum->isEnabled() && EditQuantum->Text() == u("Importante"));
    PopImport->setCurrentIndex(0);
    EXPECT_TRUE(EditQuantum->isEnabled() && EditQuantum->Text().isEmpty());
    // The options mark the bill and redraw nothing.
    scegli(kDiritti, 1);
    QSignalSpy redrawn(Listbox2->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy listed(Listbox1->model(), &QAbstractItemModel::rowsInserted);
    globali().modificato = false;
    checkiva->click();
    checkrite->click();
    EXPECT_TRUE(!globali().iva && !globali().rite && globali().modificato);
    EXPECT_EQ(redrawn.count() + listed.count(), 0);
}

TEST_F(FinestraTest, CategoryNavigation)
{
    scegli(kOnorari, 1);
    EXPECT_TRUE(PopCatB->isEnabled() && EditCerca->hasFocus());
    digita(EditCerca, u("UDIENZE"));
    EXPECT_EQ(colonna(Listbox1, 0), (QStringList{u("10")}));
    PopCatA->setCurrentIndex(kDiritti); // the search text stays
    EXPECT_EQ(Listbox1->ListCount(), 0);
    EditCerca->setText(QString());
    EXPECT_EQ(colonna(Listbox1, 0), (QStringList{u("4"), u("5")}));

    // Back to SELEZIONA: the rows and the sub-list stay until the next listing.
    PopCatA->setCurrentIndex(0);
    EXPECT_TRUE(!PopCatB->isEnabled() && PopCatB->count() == 8 && Listbox1->ListCount() == 2);
    digita(EditQuantum, u("5"));
    EXPECT_EQ(Listbox1->ListCount(), 0);
}

TEST_F(FinestraTest, PickingItemsAndEditingTheBill)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    int row = riga(Listbox1, kEsameDocumenti);
    spunta(Listbox1, row, 3); // a click that ticks shows the note, then picks
    EXPECT_EQ(EditNota->Text(), u("Esame dei documenti (*)\r* Una sola volta per grado"));
    spunta(Listbox1, row, 4); // the tick moves, and the bill keeps one row for the item
    EXPECT_TRUE(!Listbox1->CellCheck(row, 3) && globali().modificato && Listbox2->CellCheck(0, 5));
    EXPECT_EQ(colonna(Listbox2, 5), (QStringList{u("60"), QString(), u("60")}));
    // The bill's cells are edited in place.
    clicca(Listbox2, 0, 1, true);
    scriviInCella(Listbox2, u("Esame degli atti"));
    EXPECT_EQ(dati().at(kEsameDocumenti, kColNome) + u("/") + Listbox2->Cell(0, 1),
              u("Esame degli atti/Esame degli atti"));
    Listbox2->EditCell(0, 3);
    scriviInCella(Listbox2, u("3"));
    EXPECT_EQ(colonna(Listbox2, 5), (QStringList{u("180"), QString(), u("180")}));
    // Unticking "Totale" in the bill clears the tick in the listing.
    spunta(Listbox2, 0, 5);
    row = riga(Listbox1, kEsameDocumenti);
    EXPECT_TRUE(Listbox2->ListCount() == 2 && !Listbox1->CellCheck(row, 4));
    // "Pers.": the cell opens with the whole part of the average, already on the bill.
    spunta(Listbox1, row, 6);
    EXPECT_TRUE(Listbox1->inModifica() && Listbox2->Cell(0, 4) == u("45"));
    scriviInCella(Listbox1, u("75"));
    EXPECT_EQ(Listbox2->Cell(0, 4) + u("/") + Listbox1->Cell(row, 6), u("75/75"));
    // On an advance received the calculator stays shut: the amount is billed with its sign turned.
    scegli(kAcconti);
    spunta(Listbox1, riga(Listbox1, kAccontoPercepito), 6);
    scriviInCella(Listbox1, u("500"));
    EXPECT_EQ(colonna(Listbox2, 5), (QStringList{u("75"), u("-500"), QString(), u("-425")}));
}
