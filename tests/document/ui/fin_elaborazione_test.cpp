#include "document/ui/fin_elaborazione.h"

#include "core/failure.h"
#include "core/globali.h"
#include "core/ui/app.h"
#include "document/crea_stile.h"
#include "editor/ui/finestra.h"
#include "richtext/rtf_writer.h"
#include "richtext/ui/styled_document.h"
#include "support/test_files.h"
#include "support/ui_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPrinter>
#include <QTest>
#include <QTextEdit>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class Elaborazione : public UiTest {
protected:
    // What PushCrea does: elab, the main window hidden, the window asked for.
    fin_elaborazione &apri(int elab)
    {
        globali().elab = elab;
        finestra::instance().hide();
        fin_elaborazione &w = fin_elaborazione::instance();
        w.show();
        return w;
    }
    static void premi(fin_elaborazione &w, int index) { QTest::mouseClick(w.bevel[size_t(index)], Qt::LeftButton); }
    static StyledText mostrato(const QTextEdit *field) { return styledText(*field->document()); }
};

const QChar CR(13);
QString q(const char *s) { return QString::fromUtf8(s); }

} // namespace

TEST_F(Elaborazione, WindowAndControls)
{
    fin_elaborazione &w = apri(0);
    EXPECT_EQ(w.size(), QSize(540, 690));
    EXPECT_EQ(w.palette().color(QPalette::Window), QColor(0xcc, 0xcc, 0xcc));
    EXPECT_EQ(w.EditF->geometry(), QRect(10, 40, 520, 640));
    EXPECT_FALSE(w.EditF->isReadOnly());
    EXPECT_TRUE(w.EditF->isVisible());
    EXPECT_EQ(w.EditF2->geometry(), QRect(550, 40, 520, 640));
    EXPECT_FALSE(w.EditF2->isVisible());

    const struct {
        int left;
        const char *caption;
        const char *tipStart;
    } buttons[5] = {
        {10, "Chiudi", "Chiude questa finestra."},
        {115, "Copia", "Copia il testo generato in memoria,\nper essere"},
        {325, "Registra RTF..", "Regista il testo generato come RTF,\nformato"},
        {430, "Porta su Word", "Su piattaforma Windows, se installato, porta direttamente\nil testo"},
        {220, "Stampa..", "Stampa una bozza del testo generato;\nper un"},
    };
    for (int i = 0; i < 5; ++i) {
        auto *b = w.bevel[size_t(i)];
        EXPECT_EQ(b->objectName(), QStringLiteral("BevelBE%1").arg(i));
        EXPECT_EQ(b->Index, i);
        EXPECT_EQ(b->geometry(), QRect(buttons[i].left, 10, 100, 22)) << i;
        EXPECT_EQ(b->text(), q(buttons[i].caption));
        EXPECT_TRUE(b->toolTip().startsWith(q(buttons[i].tipStart))) << b->toolTip().toStdString();
        EXPECT_EQ(b->isEnabled(), i != 3) << i;
    }
    // Tab order: EditF, buttons 0 to 4.
    EXPECT_EQ(w.bevel[0]->nextInFocusChain(), w.bevel[1]);
    EXPECT_EQ(w.bevel[1]->nextInFocusChain(), w.bevel[2]);
    EXPECT_EQ(w.bevel[2]->nextInFocusChain(), w.bevel[3]);
    EXPECT_EQ(w.bevel[3]->nextInFocusChain(), w.bevel[4]);
}

TEST_F(Elaborazione, TitleAndTheTwoStyledCopies)
{
    for (int elab : {0, 1}) {
        fin_elaborazione &w = apri(elab);
        EXPECT_EQ(w.windowTitle(), elab ? q("Fattura") : q("Nota spese - Competenze"));
        const StyledText screen = mostrato(w.EditF);
        const StyledText word = mostrato(w.EditF2);
        EXPECT_TRUE(screen == Crea_stile(screen.Text(), w.sty_f, elab, 9, 12));
        EXPECT_TRUE(word == Crea_stile(screen.Text(), w.sty_f, elab, 12, 16));
        EXPECT_EQ(screen.styleAt(0).size, 9.0f);
        EXPECT_EQ(word.styleAt(0).size, 12.0f);
        w.close();
        settle();
        EXPECT_FALSE(fin_elaborazione::exists());
    }
}

TEST_F(Elaborazione, ChiudiAndTheCloseBoxShowTheMainWindow)
{
    for (bool byButton : {true, false}) {
        fin_elaborazione &w = apri(0);
        EXPECT_FALSE(finestra::instance().isVisible());
        if (byButton)
            premi(w, 0);
        else
            w.close();
        settle();
        EXPECT_TRUE(finestra::instance().isVisible()) << byButton;
        EXPECT_FALSE(fin_elaborazione::exists()) << byButton;
    }
}

TEST_F(Elaborazione, ShowModalRunsUntilClosedAndEscapeDoesNotClose)
{
    globali().elab = 1;
    finestra::instance().hide();
    bool sawWindow = false;
    onNextModal([&](QWidget *modal) {
        auto *w = qobject_cast<fin_elaborazione *>(modal);
        ASSERT_NE(w, nullptr);
        sawWindow = true;
        QTest::keyClick(w->EditF, Qt::Key_Escape);
        EXPECT_TRUE(w->isVisible());
        QTest::mouseClick(w->bevel[0], Qt::LeftButton);
    });
    fin_elaborazione::instance().ShowModal();
    EXPECT_TRUE(sawWindow);
    EXPECT_FALSE(fin_elaborazione::exists());
    EXPECT_TRUE(finestra::instance().isVisible());
}

TEST_F(Elaborazione, CopiaPutsRichAndPlainTextWithoutAlignments)
{
    fin_elaborazione &w = apri(0);
    QApplication::clipboard()->clear();
    premi(w, 1);
    const QMimeData *mime = QApplication::clipboard()->mimeData();
    ASSERT_NE(mime, nullptr);
    EXPECT_TRUE(mime->hasHtml());
    EXPECT_TRUE(mime->hasText());
    QString plain = mostrato(w.EditF).Text();
    plain.replace(CR, QLatin1Char('\n'));
    EXPECT_EQ(mime->text(), plain);
    EXPECT_FALSE(mime->html().contains(q("align=")));
    EXPECT_TRUE(mime->html().contains(q("Times New Roman")));
    EXPECT_FALSE(w.EditF->textCursor().hasSelection());
}

TEST_F(Elaborazione, RegistraRtfProposesTheNameAndWritesWhatEditFHolds)
{
    const struct {
        const char *nome;
        const char *proposta;
    } names[] = {{"", "Parcella.rtf"}, {"Causa.qX9", "Causa.rtf"}, {"causa.QX9", "causa.rtf"}, {"Causa.old", "Causa.old.rtf"}};
    fin_elaborazione &w = apri(0);
    for (const auto &n : names) {
        globali().nome_attuale = q(n.nome);
        premi(w, 2); // cancelled
    }
    EXPECT_EQ(fake.proposals, (QStringList{q("Parcella.rtf"), q("Causa.rtf"), q("causa.rtf"), q("Causa.old.rtf")}));
    EXPECT_EQ(fake.filters.first(), q("text/rtf (*.rtf)"));
    EXPECT_TRUE(QDir(dir.path()).entryList({q("*.rtf")}).isEmpty());

    // Untouched: the writer's output on the composed model, byte for byte.
    const QString untouched = folderPath(q("intatto.rtf"));
    fake.saveAnswers = {untouched};
    premi(w, 2);
    const StyledText composed = Crea_stile(mostrato(w.EditF).Text(), w.sty_f, 0, 9, 12);
    EXPECT_EQ(readBytes(untouched), RTFData(composed));

    // Retouched, with a character beyond Latin-1.
    QTextCursor cursor(w.EditF->document());
    cursor.movePosition(QTextCursor::End);
    w.EditF->setTextCursor(cursor);
    QTest::sendKeyEvent(QTest::Click, w.EditF, Qt::Key_unknown, q("Ω"), Qt::NoModifier);
    QTest::keyClick(w.EditF, Qt::Key_K);
    const QString edited = folderPath(q("ritoccato.rtf"));
    fake.saveAnswers = {edited};
    premi(w, 2);
    EXPECT_TRUE(readBytes(edited).endsWith("\\u937 k}"));
    EXPECT_EQ(readBytes(edited), RTFData(mostrato(w.EditF)));

    // An export: the bill is left as it was.
    EXPECT_EQ(globali().nome_attuale, q("Causa.old"));
    EXPECT_FALSE(globali().modificato);
    EXPECT_TRUE(globali().file_attuale.isEmpty());
}

TEST_F(Elaborazione, FileThatCannotBeCreatedIsAnUnhandledFailure)
{
    fin_elaborazione &w = apri(0);
    fake.saveAnswers = {folderPath(q("manca/cartella/Parcella.rtf"))};
    EXPECT_THROW(w.BevelBE_Action(w.bevel[2]), UnhandledFailure);
}

TEST_F(Elaborazione, FileThatCannotBeCreatedEndsTheProgramThroughTheOneHandler)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    fin_elaborazione &w = apri(0);
    fake.saveAnswers = {folderPath(q("manca/cartella/Parcella.rtf"))};
    App::failureSink() = nullptr;
    EXPECT_EXIT(premi(w, 2), testing::ExitedWithCode(1), "Errore imprevisto: impossibile scrivere il file");
}

TEST_F(Elaborazione, StampaPrintsEditFInBlocksOf720)
{
    fin_elaborazione &w = apri(0);
    // Cancelled: nothing printed, and saving works afterwards.
    premi(w, 4);
    const QString pdf = folderPath(q("stampa.pdf"));
    EXPECT_FALSE(QFile::exists(pdf));
    const QString saved = folderPath(q("dopo.rtf"));
    fake.saveAnswers = {saved};
    premi(w, 2);
    EXPECT_TRUE(QFile::exists(saved));

    // Typed text is printed too.
    QTextCursor cursor(w.EditF->document());
    cursor.insertText(q("RITOCCO "));
    fake.printAnswers = {true};
    fake.configurePrinter = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
    };
    premi(w, 4);
    const QByteArray bytes = readBytes(pdf);
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_GE(bytes.count("/Type /Page\n") + bytes.count("/Type /Page "), 1);
}

TEST_F(Elaborazione, PortaSuWordCannotBePressedHere)
{
    fin_elaborazione &w = apri(1);
    EXPECT_FALSE(w.bevel[3]->isEnabled());
    premi(w, 3);
    EXPECT_TRUE(fake.messages.isEmpty());
}
