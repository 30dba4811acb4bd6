#include "document/ui/fin_elaborazione.h"

#include "app/app.h"
#include "core/globali.h"
#include "editor/ui/finestra.h"
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
#include <QTextEdit>

using namespace lumetra;
using namespace lumetra::test;

namespace {

// The worked example bill, opened as "Apri.." opens it, with its tariff and user data.
class Elaborazione : public UiTest {
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        for (auto [from, to] : {std::pair{"tariffe_database.txt", "tariffe_database.txt"},
                                {"utenza.txt", "utenza.txt"},
                                {"parcella.qX9", "Causa.qX9"}})
            copyData(q("golden/nota_e_fattura/") + q(from), q(to));
        App::instance()->Event_Open();
        fake.openAnswers = {folderPath(q("Causa.qX9"))};
        App::instance()->ArchivioApri_Action();
    }
    // A "Nota spese - Competenze" in its window, not modal.
    fin_elaborazione &apri()
    {
        globali().elab = 0;
        fin_elaborazione &w = fin_elaborazione::instance();
        w.componi(App::instance()->datiDocumento());
        w.show();
        return w;
    }
    static void premi(fin_elaborazione &w, int index) { QTest::mouseClick(w.bevel[size_t(index)], Qt::LeftButton); }
    static StyledText mostrato(const QTextEdit *field) { return styledText(*field->document()); }
    // A golden file of the example, composed on 16/11/11, as composed today.
    static QByteArray oggi(const QString &file)
    {
        const QDate today = QDate::currentDate();
        return readBytes(goldenPath(file))
            .replace("16/11/11", today.toString(q("dd/MM/yy")).toUtf8())
            .replace("XX/2011", "XX/" + QByteArray::number(today.year()));
    }
};

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess p;
    p.start(program, arguments);
    if (!p.waitForFinished(90000) || p.exitCode() != 0)
        ADD_FAILURE() << program.toStdString() << " failed: " << p.readAllStandardError().toStdString();
    return p.readAllStandardOutput();
}

} // namespace

// The window composes the document once and styles it twice; "Chiudi" and the close box both end the modal run.
TEST_F(Elaborazione, OpensWithTheDocumentStyledTwiceAndClosesBackToTheMainWindow)
{
    for (int elab : {0, 1}) {
        onNextModal([&](QWidget *modal) {
            auto *w = qobject_cast<fin_elaborazione *>(modal);
            ASSERT_NE(w, nullptr);
            EXPECT_EQ(w->windowTitle(), elab ? q("Fattura") : q("Nota spese - Competenze"));
            EXPECT_EQ(w->size(), QSize(540, 690));
            EXPECT_FALSE(w->bevel[3]->isEnabled());
            EXPECT_FALSE(w->EditF2->isVisible());
            const StyledText screen = mostrato(w->EditF);
            EXPECT_EQ(screen.Text(), QString::fromUtf8(oggi(elab ? q("fattura.txt") : q("nota_spese.txt"))));
            EXPECT_TRUE(screen == Crea_stile(screen.Text(), w->sty_f, elab, 9, 12));
            EXPECT_TRUE(mostrato(w->EditF2) == Crea_stile(screen.Text(), w->sty_f, elab, 12, 16));
            // Escape would throw a retouched document away: it does nothing.
            QTest::keyClick(w->EditF, Qt::Key_Escape);
            EXPECT_TRUE(w->isVisible());
            elab ? QTest::mouseClick(w->bevel[0], Qt::LeftButton) : void(w->close());
        });
        QTest::mouseClick(finestra::instance().findChild<QPushButton *>(q(elab ? "PushCrea1" : "PushCrea0")),
                          Qt::LeftButton);
        EXPECT_FALSE(fin_elaborazione::exists());
        EXPECT_TRUE(finestra::instance().isVisible());
    }
}

TEST_F(Elaborazione, CopiaPutsRichAndPlainTextWithoutAlignments)
{
    fin_elaborazione &w = apri();
    premi(w, 1);
    const QMimeData *mime = QApplication::clipboard()->mimeData();
    ASSERT_NE(mime, nullptr);
    EXPECT_EQ(mime->text(), mostrato(w.EditF).Text().replace(QChar(13), QLatin1Char('\n')));
    EXPECT_FALSE(mime->html().contains(q("align=")));
    for (const char *style : {"font-family:'Times New Roman'", "font-size:9pt", "font-size:12pt"})
        EXPECT_TRUE(mime->html().contains(q(style))) << style;
    EXPECT_FALSE(w.EditF->textCursor().hasSelection());
}

TEST_F(Elaborazione, RegistraRtfWritesWhatEditFHolds)
{
    fin_elaborazione &w = apri();
    globali().nome_attuale = q("Causa.qX9");
    premi(w, 2); // cancelled
    EXPECT_EQ(fake.proposals, QStringList{q("Causa.rtf")});
    EXPECT_EQ(fake.filters.last(), q("text/rtf (*.rtf)"));

    // Untouched: the writer's output on the composed model, byte for byte.
    fake.saveAnswers = {folderPath(q("intatto.rtf"))};
    premi(w, 2);
    EXPECT_EQ(readBytes(folderPath(q("intatto.rtf"))), oggi(q("nota_spese.rtf")));

    // Retouched, with a character beyond Latin-1.
    w.EditF->moveCursor(QTextCursor::End);
    QTest::sendKeyEvent(QTest::Click, w.EditF, Qt::Key_unknown, q("Ω"), Qt::NoModifier);
    QTest::keyClick(w.EditF, Qt::Key_K);
    fake.saveAnswers = {folderPath(q("ritoccato.rtf"))};
    premi(w, 2);
    EXPECT_TRUE(readBytes(folderPath(q("ritoccato.rtf"))).endsWith("\\u937 k}"));

    // An export: the bill is left as it was.
    EXPECT_EQ(globali().nome_attuale, q("Causa.qX9"));
    EXPECT_FALSE(globali().modificato);
}

TEST_F(Elaborazione, AnRtfThatCannotBeWrittenIsReportedAndTheWindowStays)
{
    fin_elaborazione &w = apri();
    QStringList failures;
    App::failureSink() = [&](const QString &message) { failures << message; };
    fake.saveAnswers = {folderPath(q("manca/cartella/Parcella.rtf"))};
    premi(w, 2);
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].startsWith(q("Errore imprevisto: impossibile registrare il file")))
        << failures[0].toStdString();
    EXPECT_TRUE(w.isVisible());
}

TEST_F(Elaborazione, StampaPrintsWhatEditFHolds)
{
    fin_elaborazione &w = apri();
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

// A saved RTF read by a real reader: LibreOffice turns it into plain text and into PDF, and poppler tells
// what stands on the page. (Its columns are the golden text's once the monospaced face is there.)
TEST_F(Elaborazione, LibreOfficeKeepsTextFontsAndSizesOfTheSavedRtf)
{
    const QString soffice = QStandardPaths::findExecutable(q("soffice"));
    if (soffice.isEmpty() || QStandardPaths::findExecutable(q("pdftotext")).isEmpty())
        GTEST_SKIP() << "LibreOffice (soffice) or poppler-utils not installed";
    fin_elaborazione &w = apri();
    fake.saveAnswers = {folderPath(q("Parcella.rtf"))};
    premi(w, 2);
    const auto convert = [&](const char *filter, const char *extension) {
        run(soffice,
            {q("-env:UserInstallation=file://") + folderPath(q("profilo")), q("--headless"), q("--convert-to"),
             q(filter), q("--outdir"), dir.path(), folderPath(q("Parcella.rtf"))});
        return folderPath(q("Parcella.") + q(extension));
    };

    QString text = QString::fromUtf8(readBytes(convert("txt:Text (encoded):UTF8", "txt")));
    EXPECT_EQ(text.remove(QChar(0xfeff)).replace(q("\r\n"), q("\n")), mostrato(w.EditF).Text().replace(CR, q("\n")));

    // The faces: italic for place and client, bold serif for the title, bold monospaced for the summary.
    const QString pdf = convert("pdf", "pdf");
    const QByteArray fonts = run(q("pdffonts"), {pdf});
    for (const char *face :
         {"LiberationSerif-Italic", "LiberationSerif-Bold", "LiberationMono-Bold", "LiberationMono "})
        EXPECT_TRUE(fonts.contains(face)) << face << "\n" << fonts.toStdString();

    // The sizes: the sender at 9 points, the title at 12.
    static const QRegularExpression word(q("<word xMin=\"[\\d.]+\" yMin=\"([\\d.]+)\" xMax=\"[\\d.]+\" "
                                           "yMax=\"([\\d.]+)\">([^<]*)</word>"));
    std::map<QString, double> heights;
    for (const auto &m : word.globalMatch(QString::fromUtf8(run(q("pdftotext"), {q("-bbox"), pdf, q("-")}))))
        heights.try_emplace(m.captured(3), m.captured(2).toDouble() - m.captured(1).toDouble());
    ASSERT_TRUE(heights.count(q("Avv.")) && heights.count(q("NOTA")));
    EXPECT_NEAR(heights[q("NOTA")] / heights[q("Avv.")], 12.0 / 9.0, 0.02);
}
