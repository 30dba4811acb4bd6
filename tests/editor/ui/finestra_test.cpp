#include "finestra_fixture.h"

#include <QClipboard>
#include <QSignalSpy>

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, StateAtStart)
{
    EXPECT_TRUE(checkiva->isChecked() && checkrite->isChecked() && EditNota->isReadOnly());
    EXPECT_TRUE(!PopCatB->isEnabled() && PopCatB->count() == 0 && !EditCerca->isEnabled());
    EXPECT_EQ(Listbox2->Cell(1, 4), u("TOTALE:"));
    EXPECT_EQ(w->windowTitle(), u("Lumetra"));
}

TEST_F(FinestraTest, ValueFilterAsTheUserTypesAndPastes)
{
    digita(EditQuantum, u("12,5"));
    EXPECT_EQ(EditQuantum->Text(), u("12.5"));
    EXPECT_TRUE(globali().modificato);
    EditQuantum->setText(QString());
    QApplication::clipboard()->setText(u("1a"));
    QTest::keyClick(EditQuantum, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(EditQuantum->Text(), u("1"));
    EXPECT_EQ(EditQuantum->cursorPosition(), 1);

    // A word set from outside goes through the filter too, even when unchanged.
    EditQuantum->setText(u("Indeterminabile"));
    EXPECT_EQ(EditQuantum->Text(), u("Indeterminabil"));
    globali().modificato = false;
    EditQuantum->setText(u("Indeterminabil"));
    EXPECT_TRUE(globali().modificato);
}

TEST_F(FinestraTest, LimitsStopTheUserNotTheProgram)
{
    digita(EditQuantum, QString(35, QLatin1Char('7')));
    EXPECT_EQ(EditQuantum->Text().size(), 30);
    EditQuantum->setText(QString(28, QLatin1Char('1')));
    QApplication::clipboard()->setText(u("23456"));
    QTest::keyClick(EditQuantum, Qt::Key_V, Qt::ControlModifier); // cut to the room left
    EXPECT_EQ(EditQuantum->Text(), QString(28, QLatin1Char('1')) + u("23"));

    digita(EditField2, QString(199, QLatin1Char('x')));
    QTest::keyClick(EditField2, Qt::Key_Return);
    digita(EditField2, u("yz"));
    EXPECT_EQ(EditField2->Text(), QString(199, QLatin1Char('x')) + QChar(13));
    // A document may bring longer texts: they are kept, and counted.
    EditField2->setText(QString(250, QLatin1Char('w')));
    EXPECT_EQ(StaticText11->text(), u("250 / 200"));
    EditField1->setText(u("Causa Comune di Milano contro Tizio e Caio.\rOggetto: Causa etc. etc."));
    EXPECT_EQ(StaticText2->text(), u("68 / 280"));
    EXPECT_EQ(EditField1->document()->blockCount(), 2);
}

TEST_F(FinestraTest, KindOfValueAndTaxOptions)
{
    valore(u("12000"));
    PopImport->setCurrentIndex(2);
    EXPECT_FALSE(EditQuantum->isEnabled());
    EXPECT_EQ(EditQuantum->Text(), u("Importante"));
    PopImport->setCurrentIndex(0);
    EXPECT_TRUE(EditQuantum->isEnabled());
    EXPECT_EQ(EditQuantum->Text(), QString());

    // The options mark the bill and redraw nothing.
    scegli(kDiritti, 1);
    QSignalSpy redrawn(Listbox2->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy listed(Listbox1->model(), &QAbstractItemModel::rowsInserted);
    globali().modificato = false;
    checkiva->click();
    EXPECT_TRUE(!globali().iva && globali().modificato);
    globali().modificato = false;
    checkrite->click();
    EXPECT_TRUE(!globali().rite && globali().modificato);
    EXPECT_EQ(redrawn.count() + listed.count(), 0);
}

TEST_F(FinestraTest, CreaOpensTheOutputWindowAndComesBack)
{
    for (int index : {1, 0}) {
        bool seen = false;
        onNextModal([&](QWidget *modal) {
            seen = true;
            EXPECT_EQ(modal->windowTitle(), index ? u("Fattura") : u("Nota spese - Competenze"));
            EXPECT_FALSE(w->isVisible());
            modal->close();
        });
        QTest::mouseClick(PushCrea[size_t(index)], Qt::LeftButton);
        settle();
        EXPECT_TRUE(seen && w->isVisible() && !globali().modificato);
        EXPECT_EQ(globali().elab, index);
    }
}
