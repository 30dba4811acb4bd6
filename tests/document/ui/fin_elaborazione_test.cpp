// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/app.h"
#include "core/globali.h"
#include "document/ui/fin_elaborazione.h"
#include "document/ui/stampa.h"
#include "editor/ui/finestra.h"
#include "richtext/rtf_writer.h"
#include "richtext/ui/styled_document.h"
#include "support/documents.h"
#include "support/ui_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextEdit>

using namespace lumetra;
using namespace lumetra::test;

namespace {

#ifdef Q_OS_WIN
constexpr bool kAutomazioneWord = true;
#else
constexpr bool kAutomazioneWord = false; // Microsoft Word's automation is Windows's alone
#endif

// The worked example bill, opened as "Apri.." opens it, with its tariff and user data.
class Elaborazione : public UiTest {
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        for (const char *file : {"tariffe_database.txt", "utenza.txt", "parcella.qX9"})
            copyData(u("golden/nota_e_fattura/") + u(file), u(file));
        App::instance()->Event_Open();
        fake.openAnswers = {folderPath(u("parcella.qX9"))};
        App::instance()->ArchivioApri_Action();
    }
    // A "Nota spese - Competenze" in its window, not modal.
    fin_elaborazione &apri()
    {
        fin_elaborazione &w = fin_elaborazione::instance();
        w.componi(App::instance()->datiDocumento());
        w.show();
        return w;
    }
    static void premi(fin_elaborazione &w, int index) { QTest::mouseClick(w.bevel[size_t(index)], Qt::LeftButton); }
    static StyledText mostrato(const QTextEdit *field) { return styledText(*field->document()); }
};

// The words poppler finds on one printed page, and how far right they reach, in points.
struct Pagina {
    QStringList words;
    double right = 0;
};

QList<Pagina> pagine(const QString &pdf)
{
    QProcess p;
    p.start(u("pdftotext"), {u("-bbox"), pdf, u("-")});
    EXPECT_TRUE(p.waitForFinished(60000) && p.exitCode() == 0) << p.readAllStandardError().toStdString();
    static const QRegularExpression tag(u("(<page )|xMax=\"([\\d.-]+)\" yMax=\"[\\d.-]+\">([^<]*)<"));
    QList<Pagina> result;
    for (const auto &m : tag.globalMatch(QString::fromUtf8(p.readAllStandardOutput()))) {
        if (m.capturedLength(1)) {
            result.append(Pagina{});
            continue;
        }
        result.last().words << m.captured(3).replace(u("&apos;"), u("'")).replace(u("&amp;"), u("&"));
        result.last().right = std::max(result.last().right, m.captured(2).toDouble());
    }
    return result;
}

} // namespace

// The window shows the golden document composed today, styled twice; "Chiudi" and the close box both end the
// modal run.
TEST_F(Elaborazione, OpensWithTheDocumentStyledTwiceAndClosesBackToTheMainWindow)
{
    const QDate today = QDate::currentDate();
    for (int elab : {0, 1}) {
        onNextModal([&](QWidget *modal) {
            auto *w = qobject_cast<fin_elaborazione *>(modal);
            ASSERT_NE(w, nullptr);
            EXPECT_EQ(w->windowTitle(), elab ? u("Fattura") : u("Nota spese - Competenze"));
            EXPECT_EQ(w->bevel[3]->isEnabled(), kAutomazioneWord);
            const StyledText screen = mostrato(w->EditF);
            EXPECT_EQ(screen.Text(),
                      golden(elab ? "fattura" : "nota_spese")
                          .text.replace(u("16/11/11"), today.toString(u("dd/MM/yy")))
                          .replace(u("XX/2011"), u("XX/") + QString::number(today.year())));
            EXPECT_TRUE(screen == Crea_stile(screen.Text(), w->sty_f, elab, 9, 12));
            EXPECT_TRUE(mostrato(w->EditF2) == Crea_stile(screen.Text(), w->sty_f, elab, 12, 16));
            // Escape would throw a retouched document away: it does nothing.
            QTest::keyClick(w->EditF, Qt::Key_Escape);
            EXPECT_TRUE(w->isVisible());
            elab ? QTest::mouseClick(w->bevel[0], Qt::LeftButton) : void(w->close());
        });
        QTest::mouseClick(finestra::instance().findChild<QPushButton *>(u(elab ? "PushCrea1" : "PushCrea0")),
                          Qt::LeftButton);
        EXPECT_FALSE(fin_elaborazione::exists());
        EXPECT_TRUE(finestra::instance().isVisible());
    }
}

// The bill file has the same bytes on every system: the golden bill, opened and saved again, is the golden file.
TEST_F(Elaborazione, TheGoldenBillSavedAgainIsTheSameFile)
{
    fake.saveAnswers = {folderPath(u("copia.qX9"))};
    App::instance()->ArchivioRegistracome_Action();
    EXPECT_EQ(readBytes(folderPath(u("copia.qX9"))), readBytes(goldenPath(u("parcella.qX9"))));
}

// What is copied, saved and printed is what EditF holds; a cancelled print leaves no trace.
TEST_F(Elaborazione, RegistraRtfAndStampaTakeWhatEditFHolds)
{
    fin_elaborazione &w = apri();
    fake.configurePrinter = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folderPath(u("stampa.pdf")));
    };
    premi(w, 1);
    const QMimeData *mime = QApplication::clipboard()->mimeData();
    EXPECT_EQ(mime->text(), mostrato(w.EditF).Text().replace(CR, u("\n")));
    premi(w, 4); // print cancelled
    fake.saveAnswers = {folderPath(u("intatto.rtf")), folderPath(u("ritoccato.rtf"))};
    premi(w, 2);
    EXPECT_EQ(fake.proposals, QStringList{u("parcella.rtf")});
    EXPECT_EQ(fake.filters.last(), u("Documento RTF (*.rtf)"));
    EXPECT_EQ(readBytes(folderPath(u("intatto.rtf"))),
              RTFData(Crea_stile(mostrato(w.EditF).Text(), w.sty_f, 0, 9, 12)));
    // Retouched, with a character beyond Latin-1.
    w.EditF->moveCursor(QTextCursor::End);
    QTest::sendKeyEvent(QTest::Click, w.EditF, Qt::Key_unknown, u("Ω"), Qt::NoModifier);
    QTest::keyClick(w.EditF, Qt::Key_K);
    premi(w, 2);
    EXPECT_TRUE(readBytes(folderPath(u("ritoccato.rtf"))).endsWith("\\u937 k}"));
    EXPECT_FALSE(QFile::exists(folderPath(u("stampa.pdf"))));
    fake.printAnswers = {true};
    premi(w, 4);
    EXPECT_TRUE(readBytes(folderPath(u("stampa.pdf"))).startsWith("%PDF"));
}

#ifdef Q_OS_WIN
// Here, under Wine, there is no Microsoft Word: the automation fails at its start, the one message is shown, the
// window stays, and the clipboard holds the 12/16-point copy, without the retouch made in EditF, for pasting by hand.
TEST_F(Elaborazione, PortaSuWordWithoutWordShowsTheMessageAndTheClipboardKeepsTheText)
{
    fin_elaborazione &w = apri();
    w.EditF->moveCursor(QTextCursor::End);
    QTest::keyClick(w.EditF, Qt::Key_K);
    premi(w, 3);
    EXPECT_EQ(fake.messages, QStringList{u("Errore con Microsoft Word!")});
    EXPECT_TRUE(w.isVisible());
    const QMimeData *mime = QApplication::clipboard()->mimeData();
    EXPECT_EQ(mime->text(), mostrato(w.EditF2).Text().replace(CR, u("\n")));
    EXPECT_FALSE(mime->text().endsWith(u("k")));
    EXPECT_TRUE(mime->html().contains(u("16pt"))) << mime->html().left(2000).toStdString();
}
#endif

// The example bill twice over, so that a block ends inside it and pushes the place line of the second copy to the
// next page, printed as PDF on paper with a printer's unprintable edge of 12 points all round.
TEST(StampaBozza, FitsTheBlockToThePaperKeepingItsPageBreaks)
{
    if (QStandardPaths::findExecutable(u("pdftotext")).isEmpty())
        GTEST_SKIP() << "poppler-utils not installed";
    QTextDocument document;
    setStyledText(document, styledDocument(golden("nota_spese"), 9, 12));
    const QTextDocumentFragment bill(&document);
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.setBlockFormat(document.begin().blockFormat());
    end.insertFragment(bill);
    QStringList allWords = document.toPlainText().split(QRegularExpression(u("\\s+")), Qt::SkipEmptyParts);
    allWords.sort();

    // The paper, and where the widest lines, the right-aligned ones such as the sender's, end: whole, at the edge.
    constexpr double edge = 12;
    const std::tuple<const char *, QPageSize::PageSizeId, double> carte[] = {
        {"A3, a block at its size", QPageSize::A3, edge + 612},
        {"A4, as wide as it prints", QPageSize::A4, 595.28 - edge},
        {"Letter, as wide as it prints", QPageSize::Letter, 612 - edge},
    };
    QTemporaryDir dir;
    QList<QStringList> atItsSize; // the words of each page on A3
    for (const auto &[name, size, rightEnd] : carte) {
        SCOPED_TRACE(name);
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir.filePath(u("stampa.pdf")));
        printer.setPageLayout(QPageLayout(QPageSize(size), QPageLayout::Portrait, QMarginsF(edge, edge, edge, edge)));
        ASSERT_EQ(stampaBozza(document, printer), 2);
        const QList<Pagina> pages = pagine(dir.filePath(u("stampa.pdf")));
        ASSERT_EQ(pages.size(), 2);
        QStringList words;
        QList<QStringList> byPage;
        for (const Pagina &page : pages) {
            EXPECT_NEAR(page.right, rightEnd, 1.5);
            words << page.words;
            byPage << page.words;
        }
        // Each word once: a line pushed to the next page is not also left, clipped, at the foot of this one.
        words.sort();
        EXPECT_EQ(words, allWords);
        if (atItsSize.isEmpty())
            atItsSize = byPage;
        EXPECT_EQ(byPage, atItsSize);
    }
}
