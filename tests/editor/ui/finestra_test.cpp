#include "finestra_fixture.h"

#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>

using namespace lumetra;
using namespace lumetra::test;

namespace {

QString rgb(const QWidget *w, QPalette::ColorRole role) { return w->palette().color(role).name(); }

} // namespace

TEST_F(FinestraTest, EveryControlAtItsPlace)
{
    struct Case {
        const char *name;
        const char *kind;
        QRect rect;
        int font; // pixel size; 0: not checked
        bool bold;
    };
    const Case cases[] = {
        {"Rectangle1", "QWidget", {0, 398, 1005, 292}, 0, false},
        {"StaticText10", "QLabel", {10, 8, 78, 20}, 14, true},
        {"StaticText11", "QLabel", {10, 28, 78, 20}, 14, false},
        {"StaticText13", "QLabel", {10, 50, 78, 24}, 10, true},
        {"EditField2", "lumetra::EditText", {90, 8, 250, 88}, 12, true},
        {"StaticText1", "QLabel", {355, 9, 140, 20}, 14, true},
        {"StaticText2", "QLabel", {355, 29, 140, 20}, 14, false},
        {"StaticText12", "QLabel", {355, 51, 140, 24}, 10, true},
        {"EditField1", "lumetra::EditText", {500, 8, 493, 88}, 12, true},
        {"StaticText5", "QLabel", {10, 106, 140, 20}, 14, false},
        {"PopImport", "QComboBox", {160, 104, 180, 22}, 14, false},
        {"StaticText6", "QLabel", {355, 106, 140, 20}, 14, false},
        {"EditQuantum", "lumetra::EditLine", {500, 104, 180, 22}, 14, false},
        {"Listbox2", "lumetra::Listbox", {11, 134, 984, 226}, 12, false},
        {"StaticText14", "QLabel", {11, 369, 110, 20}, 14, false},
        {"checkiva", "QCheckBox", {128, 369, 20, 20}, 0, false},
        {"PushCrea1", "QPushButton", {160, 367, 180, 22}, 14, true},
        {"StaticText15", "QLabel", {355, 369, 100, 20}, 14, false},
        {"checkrite", "QCheckBox", {469, 369, 20, 20}, 0, false},
        {"PushCrea0", "QPushButton", {500, 368, 493, 22}, 14, true},
        {"StaticText3", "QLabel", {11, 407, 140, 20}, 14, false},
        {"PopCatA", "QComboBox", {161, 405, 180, 22}, 14, false},
        {"StaticTextPop", "QLabel", {356, 407, 140, 20}, 14, false},
        {"PopCatB", "QComboBox", {501, 405, 494, 22}, 14, false},
        {"StaticText4", "QLabel", {11, 434, 140, 20}, 14, true},
        {"EditCerca", "lumetra::EditLine", {161, 432, 180, 22}, 14, false},
        {"Listbox1", "lumetra::Listbox", {11, 461, 984, 170}, 12, false},
        {"StaticText8", "QLabel", {11, 638, 140, 20}, 14, false},
        {"EditNota", "lumetra::EditText", {159, 638, 834, 48}, 12, false},
    };
    for (const auto &c : cases) {
        auto *control = w->findChild<QWidget *>(QString::fromLatin1(c.name));
        ASSERT_NE(control, nullptr) << c.name;
        EXPECT_STREQ(control->metaObject()->className(), c.kind) << c.name;
        EXPECT_EQ(control->geometry(), c.rect) << c.name;
        if (c.font) {
            EXPECT_EQ(control->font().family(), u("Arial")) << c.name;
            EXPECT_EQ(control->font().pixelSize(), c.font) << c.name;
            EXPECT_EQ(control->font().bold(), c.bold) << c.name;
        }
    }
    EXPECT_EQ(w->centralWidget()->size(), QSize(1004, 690));
    EXPECT_EQ(w->windowTitle(), u("Lumetra"));
    EXPECT_EQ(w->PushCrea[0]->objectName(), u("PushCrea0"));
}

TEST_F(FinestraTest, TextsColoursAndStateAtStart)
{
    struct Label {
        QLabel *label;
        const char *text;
        const char *colour;
    };
    const Label labels[] = {
        {w->StaticText10, "Assistito:", "#ffff66"},       {w->StaticText11, "0 / 200", "#e6e6e6"},
        {w->StaticText13, "caratteri\nmax.", "#e6e6e6"}, {w->StaticText1, "Intestazione causa:", "#ffff66"},
        {w->StaticText2, "0 / 280", "#e6e6e6"},           {w->StaticText12, "caratteri\nmax.", "#e6e6e6"},
        {w->StaticText5, "Valore controversia €:", "#ffff66"}, {w->StaticText6, "Importo in €:", "#ffff66"},
        {w->StaticText14, "Applica IVA 21%", "#ffff66"}, {w->StaticText15, "Ritenuta 20%", "#ffff66"},
        {w->StaticText3, "Tipo di compenso:", "#ffffff"}, {w->StaticTextPop, "Sotto-Categoria:", "#ffffff"},
        {w->StaticText4, "RICERCA VOCE", "#ffffff"},      {w->StaticText8, "Testo voce e nota:", "#ffffff"},
    };
    for (const auto &l : labels) {
        EXPECT_EQ(l.label->text(), u(l.text)) << l.text;
        EXPECT_EQ(rgb(l.label, QPalette::WindowText), u(l.colour)) << l.text;
    }
    EXPECT_EQ(rgb(w->EditField2, QPalette::Text), u("#800000"));
    EXPECT_EQ(rgb(w->EditField2, QPalette::Base), u("#ffffe6"));
    EXPECT_EQ(rgb(w->EditField1, QPalette::Text), u("#000080"));
    EXPECT_EQ(rgb(w->EditNota, QPalette::Text), u("#800000"));
    EXPECT_EQ(rgb(w->Rectangle1, QPalette::Window), u("#556b98"));
    EXPECT_EQ(rgb(w->centralWidget(), QPalette::Window), u("#3b4459"));

    EXPECT_EQ(w->PushCrea[0]->text(), u("Crea Nota Spese - Competenze"));
    EXPECT_EQ(w->PushCrea[1]->text(), u("Crea Fattura"));
    EXPECT_TRUE(w->checkiva->isChecked() && w->checkiva->text().isEmpty());
    EXPECT_TRUE(w->checkrite->isChecked() && w->checkrite->text().isEmpty());
    EXPECT_EQ(w->PopImport->currentIndex(), 0);
    EXPECT_EQ(w->PopImport->count(), 3);
    EXPECT_EQ(w->PopCatA->currentIndex(), 0);
    EXPECT_EQ(w->PopCatA->count(), 8);
    EXPECT_FALSE(w->PopCatB->isEnabled());
    EXPECT_EQ(w->PopCatB->count(), 0);
    EXPECT_FALSE(w->EditCerca->isEnabled());
    EXPECT_TRUE(w->EditQuantum->isEnabled());
    EXPECT_TRUE(w->EditNota->isReadOnly());
    EXPECT_EQ(w->EditField2->LimitText(), 200);
    EXPECT_EQ(w->EditField1->LimitText(), 280);
    EXPECT_EQ(w->EditQuantum->LimitText(), 30);
    EXPECT_EQ(w->EditCerca->LimitText(), 80);
    EXPECT_EQ(w->EditNota->LimitText(), 2000);
    EXPECT_EQ(w->Listbox1->ListCount(), 0);
    EXPECT_EQ(w->Listbox2->ListCount(), 2);
    EXPECT_EQ(w->Listbox2->Cell(1, 4), u("TOTALE:"));

    const QStringList heads2{u("Rif."), u("Voce"), u("Coefficiente"), u("Quantità"), u("Importo"), u("Totale")};
    const QStringList heads1{u("Rif."), u("Voce"), u("Fino a €"), u("Min"), u("Max"), u("Med"), u("Pers.")};
    const int widths2[] = {28, 580, 90, 90, 90, 90};
    const int widths1[] = {28, 580, 72, 72, 72, 72, 72};
    ASSERT_EQ(w->Listbox2->columnCount(), 6);
    ASSERT_EQ(w->Listbox1->columnCount(), 7);
    for (int c = 0; c < 6; ++c) {
        EXPECT_EQ(w->Listbox2->horizontalHeaderItem(c)->text(), heads2[c]);
        EXPECT_EQ(w->Listbox2->columnWidth(c), widths2[c]);
    }
    for (int c = 0; c < 7; ++c) {
        EXPECT_EQ(w->Listbox1->horizontalHeaderItem(c)->text(), heads1[c]);
        EXPECT_EQ(w->Listbox1->columnWidth(c), widths1[c]);
    }
    EXPECT_EQ(w->Listbox1->horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(w->Listbox1->selectionMode(), QAbstractItemView::SingleSelection);
}

TEST_F(FinestraTest, HelpTagsBreakLines)
{
    EXPECT_EQ(w->EditField2->toolTip(),
              u("Inserire i dati dell'assistito,\nsi consiglia di usare gli \"a capo\".\nEsempio:\nSpett.le\n"
                "Comune di Siracusa\nPiazza Duomo, 1\nP.IVA.: 0000000000\nC.Fiscale: 0000000000"));
    EXPECT_EQ(w->checkrite->toolTip(), u("Selezionare questa opzione per applicare la ritenuta d'acconto "
                                         "(deselezionare per fatturare a privati)."));
    EXPECT_EQ(w->PopCatA->toolTip(),
              u("Scegliere la categoria principale del tipo di compenso, secondo il tariffario.\nPer creare una "
                "fattura di acconto, o per immettere in elenco una voce di acconto già percepito,\nscegliere la "
                "voci \"Acconti\"."));
    EXPECT_EQ(w->Listbox1->toolTip().count(QLatin1Char('\n')), 4);
    EXPECT_EQ(w->Listbox2->toolTip().count(QLatin1Char('\n')), 4);
    for (QWidget *c : {static_cast<QWidget *>(w->EditField1), static_cast<QWidget *>(w->EditQuantum),
                       static_cast<QWidget *>(w->PopImport), static_cast<QWidget *>(w->checkiva),
                       static_cast<QWidget *>(w->PushCrea[0]), static_cast<QWidget *>(w->PushCrea[1]),
                       static_cast<QWidget *>(w->PopCatB), static_cast<QWidget *>(w->EditCerca),
                       static_cast<QWidget *>(w->EditNota)})
        EXPECT_FALSE(c->toolTip().isEmpty()) << c->objectName().toStdString();
    EXPECT_FALSE(w->toolTip().contains(QChar(13)));
}

TEST_F(FinestraTest, TabOrder)
{
    const QStringList expected{u("EditField2"), u("EditNota"),  u("EditField1"), u("PopImport"), u("EditQuantum"),
                               u("Listbox2"),   u("checkiva"),  u("PushCrea1"),  u("PushCrea0"), u("PopCatA"),
                               u("PopCatB"),    u("EditCerca"), u("Listbox1"),   u("checkrite")};
    QStringList chain;
    QWidget *x = w->EditField2;
    do {
        if (expected.contains(x->objectName()))
            chain << x->objectName();
        x = x->nextInFocusChain();
    } while (x != w->EditField2 && chain.size() < 30);
    EXPECT_EQ(chain, expected);
}

TEST_F(FinestraTest, ValueFilterAsTheUserTypes)
{
    struct Case {
        const char *typed;
        const char *shown;
    };
    const Case cases[] = {{"12,5", "12.5"}, {"12x", "12"}, {"1.2.3", "1.2.3"}, {"abc", ""}, {"25000", "25000"}};
    for (const auto &c : cases) {
        valore(u(c.typed));
        EXPECT_EQ(w->EditQuantum->Text(), u(c.shown)) << c.typed;
        EXPECT_EQ(w->EditQuantum->cursorPosition(), w->EditQuantum->Text().size()) << c.typed;
    }
    EXPECT_TRUE(globali().modificato);
}

TEST_F(FinestraTest, APasteIsJudgedByItsLastCharacter)
{
    struct Case {
        const char *pasted;
        const char *shown;
    };
    const Case cases[] = {{"a1", "a1"}, {"1a", "1"}, {"3,", "3."}};
    for (const auto &c : cases) {
        w->EditQuantum->setText(QString());
        QApplication::clipboard()->setText(u(c.pasted));
        QTest::keyClick(w->EditQuantum, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(w->EditQuantum->Text(), u(c.shown)) << c.pasted;
    }
}

TEST_F(FinestraTest, LimitTextStopsTheUserNotTheProgram)
{
    digita(w->EditQuantum, QString(35, QLatin1Char('7')));
    EXPECT_EQ(w->EditQuantum->Text(), QString(30, QLatin1Char('7')));
    w->EditQuantum->setText(QString(40, QLatin1Char('8')));
    EXPECT_EQ(w->EditQuantum->Text().size(), 40);
    // Removing from an over-long text is allowed, adding isn't.
    QTest::keyClick(w->EditQuantum, Qt::Key_Backspace);
    EXPECT_EQ(w->EditQuantum->Text().size(), 39);
    digita(w->EditQuantum, u("12"));
    EXPECT_EQ(w->EditQuantum->Text().size(), 39);

    // A paste that doesn't fit is cut to the room left.
    w->EditQuantum->setText(QString(28, QLatin1Char('1')));
    QApplication::clipboard()->setText(u("23456"));
    QTest::keyClick(w->EditQuantum, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(w->EditQuantum->Text(), QString(28, QLatin1Char('1')) + u("23"));

    w->EditField2->setFocus();
    digita(w->EditField2, QString(205, QLatin1Char('x')));
    EXPECT_EQ(w->EditField2->Text().size(), 200);
    EXPECT_EQ(w->StaticText11->text(), u("200 / 200"));
    QTest::keyClick(w->EditField2, Qt::Key_Return);
    EXPECT_EQ(w->EditField2->Text().size(), 200);

    w->EditField1->setText(QString(270, QLatin1Char('y')));
    w->EditField1->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText(QString(20, QLatin1Char('z')));
    QTest::keyClick(w->EditField1, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(w->EditField1->Text(), QString(270, QLatin1Char('y')) + QString(10, QLatin1Char('z')));

    // A document may bring longer texts; they are kept, and counted.
    w->EditField2->setText(QString(250, QLatin1Char('w')));
    EXPECT_EQ(w->EditField2->Text().size(), 250);
    EXPECT_EQ(w->StaticText11->text(), u("250 / 200"));
}

TEST_F(FinestraTest, CountersAndLineEnds)
{
    w->EditField1->setText(u("Causa Comune di Milano contro Tizio e Caio.\rOggetto: Causa etc. etc."));
    EXPECT_EQ(w->StaticText2->text(), u("68 / 280"));
    EXPECT_EQ(w->EditField1->Text(), u("Causa Comune di Milano contro Tizio e Caio.\rOggetto: Causa etc. etc."));
    EXPECT_EQ(w->EditField1->document()->blockCount(), 2);
    EXPECT_TRUE(globali().modificato);

    w->EditField2->setFocus();
    digita(w->EditField2, u("Spett.le"));
    QTest::keyClick(w->EditField2, Qt::Key_Return);
    digita(w->EditField2, u("Comune"));
    EXPECT_EQ(w->EditField2->Text(), u("Spett.le\rComune"));
    EXPECT_EQ(w->StaticText11->text(), u("15 / 200"));

    // The program's write runs the handler even when the text is the same.
    globali().modificato = false;
    w->EditField2->setText(u("Spett.le\rComune"));
    EXPECT_TRUE(globali().modificato);
    const int before = w->Listbox1->ListCount();
    EXPECT_EQ(w->Listbox1->ListCount(), before); // the counters don't touch the lists
}

TEST_F(FinestraTest, AWordSetFromOutsideGoesThroughTheFilter)
{
    w->EditQuantum->setText(u("Indeterminabile"));
    EXPECT_EQ(w->EditQuantum->Text(), u("Indeterminabil"));
    EXPECT_EQ(w->PopImport->currentIndex(), 0);

    // The same text set again still runs the handler.
    w->EditQuantum->setText(u("12"));
    globali().modificato = false;
    w->EditQuantum->setText(u("12"));
    EXPECT_TRUE(globali().modificato);
}

TEST_F(FinestraTest, KindOfValue)
{
    valore(u("12000"));
    w->PopImport->setCurrentIndex(2);
    EXPECT_FALSE(w->EditQuantum->isEnabled());
    EXPECT_EQ(w->EditQuantum->Text(), u("Importante"));
    w->PopImport->setCurrentIndex(1);
    EXPECT_EQ(w->EditQuantum->Text(), u("Indeterminabile"));
    globali().modificato = false;
    w->PopImport->setCurrentIndex(0);
    EXPECT_TRUE(w->EditQuantum->isEnabled());
    EXPECT_EQ(w->EditQuantum->Text(), QString());
    EXPECT_TRUE(globali().modificato);
}

TEST_F(FinestraTest, TaxOptionsMarkTheBillButRedrawNothing)
{
    valore(u("3000"));
    scegli(kDiritti, 1);
    spunta(w->Listbox1, riga(w->Listbox1, kEsameDocumenti), 4);
    QSignalSpy spy2(w->Listbox2->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy spy1(w->Listbox1->model(), &QAbstractItemModel::rowsInserted);

    struct Case {
        QCheckBox *box;
        bool *flag;
    };
    const Case cases[] = {{w->checkiva, &globali().iva}, {w->checkrite, &globali().rite}};
    for (const auto &c : cases) {
        globali().modificato = false;
        c.box->click();
        EXPECT_FALSE(*c.flag);
        EXPECT_TRUE(globali().modificato);
        c.box->click();
        EXPECT_TRUE(*c.flag);
    }
    EXPECT_EQ(spy1.count(), 0);
    EXPECT_EQ(spy2.count(), 0);
}

TEST_F(FinestraTest, SelectAllWithTheCommandKey)
{
    w->EditField1->setText(u("uno\rdue"));
    w->EditField1->setFocus();
    QTest::keyClick(w->EditField1, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->EditField1->textCursor().selectedText().size(), 7);

    w->EditNota->setText(u("nota"));
    w->EditNota->setFocus();
    QTest::keyClick(w->EditNota, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->EditNota->textCursor().selectedText(), u("nota"));

    valore(u("123"));
    QTest::keyClick(w->EditQuantum, Qt::Key_Home);
    QTest::keyClick(w->EditQuantum, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->EditQuantum->selectedText(), u("123"));
    // Return has no effect in the value field.
    QTest::keyClick(w->EditQuantum, Qt::Key_Return);
    EXPECT_EQ(w->EditQuantum->Text(), u("123"));
}

TEST_F(FinestraTest, CreaOpensTheOutputWindowAndComesBack)
{
    struct Case {
        int index;
        const char *title;
    };
    const Case cases[] = {{1, "Fattura"}, {0, "Nota spese - Competenze"}};
    for (const auto &c : cases) {
        bool seen = false;
        onNextModal([&](QWidget *modal) {
            seen = true;
            EXPECT_EQ(modal->windowTitle(), u(c.title));
            EXPECT_FALSE(w->isVisible());
            modal->close();
        });
        globali().modificato = false;
        QTest::mouseClick(w->PushCrea[size_t(c.index)], Qt::LeftButton);
        settle();
        EXPECT_TRUE(seen) << c.title;
        EXPECT_EQ(globali().elab, c.index);
        EXPECT_TRUE(w->isVisible());
        EXPECT_FALSE(globali().modificato);
    }
}
