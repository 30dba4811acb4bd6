#include "document/ui/fin_elaborazione.h"

#include "core/globali.h"
#include "core/ui/app.h"
#include "document/crea_stile.h"
#include "document/ui/stampa.h"
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

QString q(const char *s) { return QString::fromUtf8(s); }

} // namespace

TEST_F(Elaborazione, OpensWithTheDocumentStyledTwice)
{
    for (int elab : {0, 1}) {
        fin_elaborazione &w = apri(elab);
        EXPECT_EQ(w.windowTitle(), elab ? q("Fattura") : q("Nota spese - Competenze"));
        EXPECT_EQ(w.size(), QSize(540, 690));
        EXPECT_FALSE(w.bevel[3]->isEnabled());
        EXPECT_FALSE(w.EditF2->isVisible());
        const StyledText screen = mostrato(w.EditF);
        EXPECT_TRUE(screen == Crea_stile(screen.Text(), w.sty_f, elab, 9, 12));
        EXPECT_TRUE(mostrato(w.EditF2) == Crea_stile(screen.Text(), w.sty_f, elab, 12, 16));
        w.close();
        settle();
    }
}

TEST_F(Elaborazione, ChiudiAndTheCloseBoxEndTheModalRunAndShowTheMainWindow)
{
    for (bool byButton : {true, false}) {
        globali().elab = 1;
        finestra::instance().hide();
        onNextModal([&](QWidget *modal) {
            auto *w = qobject_cast<fin_elaborazione *>(modal);
            ASSERT_NE(w, nullptr);
            // Escape would throw a retouched document away: it does nothing.
            QTest::keyClick(w->EditF, Qt::Key_Escape);
            EXPECT_TRUE(w->isVisible());
            if (byButton)
                QTest::mouseClick(w->bevel[0], Qt::LeftButton);
            else
                w->close();
        });
        fin_elaborazione::instance().ShowModal();
        EXPECT_FALSE(fin_elaborazione::exists());
        EXPECT_TRUE(finestra::instance().isVisible());
    }
}

TEST_F(Elaborazione, CopiaPutsRichAndPlainTextWithoutAlignments)
{
    fin_elaborazione &w = apri(0);
    premi(w, 1);
    const QMimeData *mime = QApplication::clipboard()->mimeData();
    ASSERT_NE(mime, nullptr);
    EXPECT_EQ(mime->text(), mostrato(w.EditF).Text().replace(QChar(13), QLatin1Char('\n')));
    const QString html = mime->html();
    EXPECT_FALSE(html.contains(q("align=")));
    EXPECT_TRUE(html.contains(q("font-family:'Times New Roman'")));
    EXPECT_TRUE(html.contains(q("font-size:9pt")));
    EXPECT_TRUE(html.contains(q("font-size:12pt")));
    EXPECT_FALSE(w.EditF->textCursor().hasSelection());
}

TEST_F(Elaborazione, RegistraRtfWritesWhatEditFHolds)
{
    fin_elaborazione &w = apri(0);
    globali().nome_attuale = q("Causa.qX9");
    premi(w, 2); // cancelled
    EXPECT_EQ(fake.proposals, QStringList{q("Causa.rtf")});
    EXPECT_EQ(fake.filters, QStringList{q("text/rtf (*.rtf)")});

    // Untouched: the writer's output on the composed model, byte for byte.
    const QString untouched = folderPath(q("intatto.rtf"));
    fake.saveAnswers = {untouched};
    premi(w, 2);
    EXPECT_EQ(readBytes(untouched), RTFData(Crea_stile(mostrato(w.EditF).Text(), w.sty_f, 0, 9, 12)));

    // Retouched, with a character beyond Latin-1.
    w.EditF->moveCursor(QTextCursor::End);
    QTest::sendKeyEvent(QTest::Click, w.EditF, Qt::Key_unknown, q("Ω"), Qt::NoModifier);
    QTest::keyClick(w.EditF, Qt::Key_K);
    const QString edited = folderPath(q("ritoccato.rtf"));
    fake.saveAnswers = {edited};
    premi(w, 2);
    EXPECT_TRUE(readBytes(edited).endsWith("\\u937 k}"));

    // An export: the bill is left as it was.
    EXPECT_EQ(globali().nome_attuale, q("Causa.qX9"));
    EXPECT_FALSE(globali().modificato);
}

TEST_F(Elaborazione, FileThatCannotBeCreatedEndsTheProgramThroughTheOneHandler)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    fin_elaborazione &w = apri(0);
    fake.saveAnswers = {folderPath(q("manca/cartella/Parcella.rtf"))};
    App::failureSink() = nullptr;
    EXPECT_EXIT(premi(w, 2), testing::ExitedWithCode(1), "Errore imprevisto: impossibile scrivere il file");
}

TEST_F(Elaborazione, StampaPrintsWhatEditFHolds)
{
    fin_elaborazione &w = apri(0);
    const QString pdf = folderPath(q("stampa.pdf"));
    fake.configurePrinter = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
    };
    premi(w, 4); // cancelled
    EXPECT_FALSE(QFile::exists(pdf));

    QTextCursor(w.EditF->document()).insertText(q("RITOCCO "));
    fake.printAnswers = {true};
    premi(w, 4);
    EXPECT_TRUE(readBytes(pdf).startsWith("%PDF"));
}

TEST(StampaBozza, PagesAreBlocksOf720Points)
{
    // 100 lines of 12 points: more than one block of 720, less than two.
    TextStyle style;
    style.size = 12;
    StyledText text;
    for (int i = 0; i < 100; ++i)
        text.AppendStyleRun({QStringLiteral("riga %1\r").arg(i), style});
    QTextDocument document;
    setStyledText(document, text);
    QTemporaryDir dir;
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath(QStringLiteral("bozza.pdf")));
    EXPECT_EQ(stampaBozza(document, printer), 2);
    EXPECT_EQ(readBytes(dir.filePath(QStringLiteral("bozza.pdf"))).count("/Type /Page\n"), 2);
}
