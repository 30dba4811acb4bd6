#include "document/ui/fin_elaborazione.h"

#include "core/globali.h"
#include "core/ui/app.h"
#include "document/crea_stile.h"
#include "document/ui/stampa.h"
#include "editor/ui/finestra.h"
#include "richtext/ui/styled_document.h"
#include "support/documents.h"
#include "support/ui_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPrinter>
#include <QStandardPaths>
#include <QRegularExpression>
#include <QProcess>
#include <QTest>
#include <QTextEdit>

using namespace lumetra;
using namespace lumetra::test;

namespace {

QString q(const char *s) { return QString::fromUtf8(s); }

// The worked example bill, opened as "Apri.." opens it, with its tariff and
// user data.
class Elaborazione : public UiTest {
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        for (const char *name : {"tariffe_database.txt", "utenza.txt"})
            copyData(q("golden/nota_e_fattura/") + q(name), q(name));
        copyData(q("golden/nota_e_fattura/parcella.qX9"), q("Causa.qX9"));
        App::instance()->Event_Open();
        fake.openAnswers = {folderPath(q("Causa.qX9"))};
        App::instance()->_ArchivioApri_Action();
    }
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
    // A golden file of the example, composed on 16/11/11, as composed today.
    static QByteArray oggi(const QString &file)
    {
        const QDate today = QDate::currentDate();
        return readBytes(goldenPath(file))
            .replace("16/11/11", today.toString(q("dd/MM/yy")).toUtf8())
            .replace("XX/2011", "XX/" + QByteArray::number(today.year()));
    }
};


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
        EXPECT_EQ(screen.Text(), QString::fromUtf8(oggi(elab ? q("fattura.txt") : q("nota_spese.txt"))));
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
    EXPECT_EQ(fake.filters.last(), q("text/rtf (*.rtf)"));

    // Untouched: the writer's output on the composed model, byte for byte.
    const QString untouched = folderPath(q("intatto.rtf"));
    fake.saveAnswers = {untouched};
    premi(w, 2);
    EXPECT_EQ(readBytes(untouched), oggi(q("nota_spese.rtf")));

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

// A saved RTF read by a real reader: LibreOffice turns it into plain text and
// into PDF, and poppler tells what stands on the page.
namespace {

struct Word {
    double xMin, yMin, xMax, yMax;
    QString text;
    double height() const { return yMax - yMin; }
};

class LibreOffice : public Elaborazione {
protected:
    void SetUp() override
    {
        Elaborazione::SetUp();
        m_soffice = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        if (m_soffice.isEmpty() || QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            GTEST_SKIP() << "LibreOffice (soffice) or poppler-utils not installed";
    }

    static QByteArray run(const QString &program, const QStringList &arguments)
    {
        QProcess p;
        p.start(program, arguments);
        if (!p.waitForFinished(90000) || p.exitCode() != 0)
            ADD_FAILURE() << program.toStdString() << " failed: " << p.readAllStandardError().toStdString();
        return p.readAllStandardOutput();
    }

    // Converts file in the program's folder; returns the path of the result.
    QString convert(const QString &file, const QString &filter, const QString &extension) const
    {
        run(m_soffice, {QStringLiteral("-env:UserInstallation=file://") + folderPath(QStringLiteral("profilo")),
                        QStringLiteral("--headless"), QStringLiteral("--convert-to"), filter, QStringLiteral("--outdir"),
                        dir.path(), folderPath(file)});
        return folderPath(QFileInfo(file).completeBaseName() + QLatin1Char('.') + extension);
    }

    static std::vector<Word> words(const QString &pdf)
    {
        const QString xhtml = QString::fromUtf8(run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")}));
        static const QRegularExpression re(QStringLiteral(
            "<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"));
        std::vector<Word> out;
        for (const auto &m : re.globalMatch(xhtml))
            out.push_back({m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3).toDouble(),
                           m.captured(4).toDouble(), m.captured(5)});
        return out;
    }

    QString m_soffice;
};

const Word *find(const std::vector<Word> &words, const QString &text)
{
    for (const Word &w : words)
        if (w.text == text)
            return &w;
    return nullptr;
}

} // namespace

TEST_F(LibreOffice, SavedRtfKeepsTextFontsSizesAndColumns)
{
    fin_elaborazione &w = apri(0);
    fake.saveAnswers = {folderPath(QStringLiteral("Parcella.rtf"))};
    premi(w, 2);
    const StyledText shown = styledText(*w.EditF->document());
    const StyMap sty_f = w.sty_f;

    // The text, line by line.
    QString expected = shown.Text();
    expected.replace(QChar(13), QLatin1Char('\n'));
    QString text = QString::fromUtf8(readBytes(convert(QStringLiteral("Parcella.rtf"),
                                                       QStringLiteral("txt:Text (encoded):UTF8"), QStringLiteral("txt"))));
    text.remove(QChar(0xfeff)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    EXPECT_EQ(text, expected);

    // The faces: italic for place and client, bold serif for the title, bold
    // monospaced for the summary.
    const QString pdf = convert(QStringLiteral("Parcella.rtf"), QStringLiteral("pdf"), QStringLiteral("pdf"));
    const QString fonts = QString::fromUtf8(run(QStringLiteral("pdffonts"), {pdf}));
    for (const char *face : {"LiberationSerif-Italic", "LiberationSerif-Bold", "LiberationMono-Bold", "LiberationMono "})
        EXPECT_TRUE(fonts.contains(QLatin1String(face))) << face << "\n" << fonts.toStdString();

    // The sizes: the sender at 9 points, the title at 12.
    const auto all = words(pdf);
    const auto firstWord = [&](int paragraph) {
        const Paragraph p = shown.paragraph(paragraph);
        return shown.Text().mid(p.startPos, p.length).trimmed().section(QLatin1Char(' '), 0, 0);
    };
    const Word *small = find(all, firstWord(0));
    const Word *large = find(all, firstWord(sty_f[2][0]));
    ASSERT_TRUE(small && large);
    EXPECT_NEAR(large->height() / small->height(), 12.0 / 9.0, 0.02);

    // The columns of the monospaced zone: the rates of the summary lines end
    // at one x. (A money line is wider than the reader's default page, so
    // its amount wraps to the next line; the fields before it stay put.)
    static const QRegularExpression rate(QStringLiteral("^\\d+,\\d\\d%$"));
    std::vector<double> ends;
    for (const Word &word : all)
        if (rate.match(word.text).hasMatch())
            ends.push_back(word.xMax);
    ASSERT_GE(ends.size(), 3u);
    for (double x : ends)
        EXPECT_NEAR(x, ends.front(), 0.1);
}
