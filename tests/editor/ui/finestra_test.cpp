#include "finestra_fixture.h"

#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, EveryControlAtItsPlace)
{
    struct Case {
        const char *name, *kind;
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
            EXPECT_EQ(std::tuple(control->font().family(), control->font().pixelSize(), control->font().bold()),
                      std::tuple(u("Arial"), c.font, c.bold))
                << c.name;
        }
    }
    EXPECT_EQ(w->centralWidget()->size(), QSize(1004, 690));
    EXPECT_EQ(w->windowTitle(), u("Lumetra"));
}

TEST_F(FinestraTest, TextsColoursAndStateAtStart)
{
    struct Label {
        QLabel *label;
        const char *text, *colour;
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
    for (const auto &l : labels)
        EXPECT_EQ(l.label->text() + l.label->palette().color(QPalette::WindowText).name(), u(l.text) + u(l.colour));
    EXPECT_EQ(w->EditField1->palette().color(QPalette::Text).name(), u("#000080"));
    EXPECT_EQ(w->EditField2->palette().color(QPalette::Base).name(), u("#ffffe6"));
    EXPECT_EQ(w->Rectangle1->palette().color(QPalette::Window).name(), u("#556b98"));
    EXPECT_TRUE(w->checkiva->isChecked() && w->checkrite->isChecked() && w->checkiva->text().isEmpty());
    EXPECT_TRUE(!w->PopCatB->isEnabled() && w->PopCatB->count() == 0 && !w->EditCerca->isEnabled());
    EXPECT_TRUE(w->EditNota->isReadOnly());
    EXPECT_EQ(w->Listbox2->Cell(1, 4), u("TOTALE:"));
    const int widths[] = {28, 580, 72, 72, 72, 72, 72};
    for (int c = 0; c < 7; ++c)
        EXPECT_EQ(w->Listbox1->columnWidth(c), widths[c]);
    EXPECT_EQ(w->Listbox2->horizontalHeaderItem(3)->text(), u("Quantità"));
    // Help tags: character 13 is a line break.
    EXPECT_EQ(w->EditField1->toolTip(), u("Inserire l'intestazione della causa, o della fattura.\nEsempio:\n"
                                          "Causa Comune di Milano contro Tizio e Caio.\nOggetto: Causa etc. etc."));
    EXPECT_EQ(w->Listbox1->toolTip().count(QLatin1Char('\n')), 4);
}

TEST_F(FinestraTest, TabOrder)
{
    const QStringList expected{u("EditField2"), u("EditNota"),  u("EditField1"), u("PopImport"), u("EditQuantum"),
                               u("Listbox2"),   u("checkiva"),  u("PushCrea1"),  u("PushCrea0"), u("PopCatA"),
                               u("PopCatB"),    u("EditCerca"), u("Listbox1"),   u("checkrite")};
    QStringList chain;
    for (QWidget *x = w->EditField2; chain.size() < expected.size(); x = x->nextInFocusChain())
        if (expected.contains(x->objectName()))
            chain << x->objectName();
    EXPECT_EQ(chain, expected);
}

TEST_F(FinestraTest, ValueFilterAsTheUserTypesAndPastes)
{
    struct Case {
        const char *typed, *pasted, *shown;
    };
    const Case cases[] = {{"12,5", nullptr, "12.5"}, {"12x", nullptr, "12"}, {"1.2.3", nullptr, "1.2.3"},
                          {nullptr, "a1", "a1"},     {nullptr, "1a", "1"}};
    for (const auto &c : cases) {
        w->EditQuantum->setText(QString());
        if (c.typed)
            digita(w->EditQuantum, u(c.typed));
        if (c.pasted) {
            QApplication::clipboard()->setText(u(c.pasted));
            QTest::keyClick(w->EditQuantum, Qt::Key_V, Qt::ControlModifier);
        }
        EXPECT_EQ(w->EditQuantum->Text(), u(c.shown));
        EXPECT_EQ(w->EditQuantum->cursorPosition(), w->EditQuantum->Text().size());
    }
    EXPECT_TRUE(globali().modificato);

    // A word set from outside goes through the filter too, even when unchanged.
    w->EditQuantum->setText(u("Indeterminabile"));
    EXPECT_EQ(w->EditQuantum->Text(), u("Indeterminabil"));
    EXPECT_EQ(w->PopImport->currentIndex(), 0);
    globali().modificato = false;
    w->EditQuantum->setText(u("Indeterminabil"));
    EXPECT_TRUE(globali().modificato);
}

TEST_F(FinestraTest, LimitTextStopsTheUserNotTheProgram)
{
    digita(w->EditQuantum, QString(35, QLatin1Char('7')));
    EXPECT_EQ(w->EditQuantum->Text().size(), 30);
    w->EditQuantum->setText(QString(40, QLatin1Char('8')));
    QTest::keyClick(w->EditQuantum, Qt::Key_Backspace); // removing from an over-long text is allowed
    digita(w->EditQuantum, u("12"));                    // adding isn't
    EXPECT_EQ(w->EditQuantum->Text().size(), 39);
    w->EditQuantum->setText(QString(28, QLatin1Char('1')));
    QApplication::clipboard()->setText(u("23456"));
    QTest::keyClick(w->EditQuantum, Qt::Key_V, Qt::ControlModifier); // cut to the room left
    EXPECT_EQ(w->EditQuantum->Text(), QString(28, QLatin1Char('1')) + u("23"));

    digita(w->EditField2, QString(199, QLatin1Char('x')));
    QTest::keyClick(w->EditField2, Qt::Key_Return);
    digita(w->EditField2, u("yz"));
    EXPECT_EQ(w->EditField2->Text(), QString(199, QLatin1Char('x')) + QChar(13));
    w->EditField1->setText(QString(270, QLatin1Char('y')));
    w->EditField1->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText(QString(20, QLatin1Char('z')));
    QTest::keyClick(w->EditField1, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(w->EditField1->Text(), QString(270, QLatin1Char('y')) + QString(10, QLatin1Char('z')));

    // A document may bring longer texts: they are kept, and counted.
    w->EditField2->setText(QString(250, QLatin1Char('w')));
    EXPECT_EQ(w->StaticText11->text(), u("250 / 200"));
}

TEST_F(FinestraTest, CountersLineEndsAndSelectAll)
{
    w->EditField1->setText(u("Causa Comune di Milano contro Tizio e Caio.\rOggetto: Causa etc. etc."));
    EXPECT_EQ(w->StaticText2->text(), u("68 / 280"));
    EXPECT_EQ(w->EditField1->document()->blockCount(), 2);
    EXPECT_TRUE(globali().modificato);
    digita(w->EditField2, u("Spett.le"));
    QTest::keyClick(w->EditField2, Qt::Key_Return);
    digita(w->EditField2, u("Comune"));
    EXPECT_EQ(w->EditField2->Text(), u("Spett.le\rComune"));
    EXPECT_EQ(w->StaticText11->text(), u("15 / 200"));

    QTest::keyClick(w->EditField1, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->EditField1->textCursor().selectedText().size(), 68);
    w->EditNota->setText(u("nota"));
    w->EditNota->setFocus();
    QTest::keyClick(w->EditNota, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->EditNota->textCursor().selectedText(), u("nota"));
    valore(u("123"));
    QTest::keyClick(w->EditQuantum, Qt::Key_Home);
    QTest::keyClick(w->EditQuantum, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(w->EditQuantum, Qt::Key_Return); // inert here
    EXPECT_EQ(w->EditQuantum->selectedText(), u("123"));
}

TEST_F(FinestraTest, KindOfValueAndTaxOptions)
{
    valore(u("12000"));
    w->PopImport->setCurrentIndex(2);
    EXPECT_FALSE(w->EditQuantum->isEnabled());
    EXPECT_EQ(w->EditQuantum->Text(), u("Importante"));
    w->PopImport->setCurrentIndex(0);
    EXPECT_TRUE(w->EditQuantum->isEnabled());
    EXPECT_EQ(w->EditQuantum->Text(), QString());

    // The options mark the bill and redraw nothing.
    scegli(kDiritti, 1);
    QSignalSpy redrawn(w->Listbox2->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy inserted(w->Listbox1->model(), &QAbstractItemModel::rowsInserted);
    globali().modificato = false;
    w->checkiva->click();
    EXPECT_TRUE(!globali().iva && globali().modificato);
    globali().modificato = false;
    w->checkrite->click();
    EXPECT_TRUE(!globali().rite && globali().modificato);
    EXPECT_EQ(redrawn.count() + inserted.count(), 0);
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
        QTest::mouseClick(w->PushCrea[size_t(index)], Qt::LeftButton);
        settle();
        EXPECT_TRUE(seen);
        EXPECT_EQ(globali().elab, index);
        EXPECT_TRUE(w->isVisible());
        EXPECT_FALSE(globali().modificato);
    }
}
