#include "document/ui/stampa.h"

#include "richtext/ui/styled_document.h"
#include "support/documents.h"

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

// What poppler finds on one printed page, in points from the paper's top left.
struct Pagina {
    QSizeF size;
    QStringList words;
    QStringList lines; // the words of one line, joined by a blank
    double left = 1e9, top = 1e9, right = 0, bottom = 0; // extent of the words
};

QList<Pagina> pagine(const QString &pdf)
{
    QProcess p;
    p.start(q("pdftotext"), {q("-bbox"), pdf, q("-")});
    EXPECT_TRUE(p.waitForFinished(60000) && p.exitCode() == 0) << p.readAllStandardError().toStdString();
    static const QRegularExpression tag(q("<page width=\"([\\d.]+)\" height=\"([\\d.]+)\"|<word xMin=\"([\\d.-]+)\" "
                                          "yMin=\"([\\d.-]+)\" xMax=\"([\\d.-]+)\" yMax=\"([\\d.-]+)\">([^<]*)<"));
    QList<Pagina> result;
    double lineBottom = -1;
    for (const auto &m : tag.globalMatch(QString::fromUtf8(p.readAllStandardOutput()))) {
        if (m.capturedLength(1)) {
            result.append(Pagina{});
            result.last().size = QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble());
            continue;
        }
        Pagina &page = result.last();
        const double x0 = m.captured(3).toDouble(), y0 = m.captured(4).toDouble();
        const double x1 = m.captured(5).toDouble(), y1 = m.captured(6).toDouble();
        const QString word = m.captured(7).replace(q("&apos;"), q("'")).replace(q("&amp;"), q("&"));
        page.words << word;
        if (page.lines.isEmpty() || std::abs(y1 - lineBottom) > 0.5)
            page.lines << word;
        else
            page.lines.last() += q(" ") + word;
        lineBottom = y1;
        page.left = std::min(page.left, x0);
        page.top = std::min(page.top, y0);
        page.right = std::max(page.right, x1);
        page.bottom = std::max(page.bottom, y1);
    }
    return result;
}

struct Carta {
    const char *name;
    QPageSize::PageSizeId size;
    QPageLayout::Orientation orientation;
    double rightEnd; // where the widest lines, the right-aligned ones, end
};

} // namespace

// The example bill twice over, so that a block ends inside it and pushes the place line of the second copy to the
// next page, printed as PDF on paper with a printer's unprintable edge of 12 points all round.
TEST(StampaBozza, FitsTheBlockToThePaperKeepingItsPageBreaks)
{
    if (QStandardPaths::findExecutable(q("pdftotext")).isEmpty())
        GTEST_SKIP() << "poppler-utils not installed";
    QTextDocument document;
    setStyledText(document, styledDocument(golden("nota_spese"), 9, 12));
    QStringList rightAligned;
    for (QTextBlock b = document.begin(); b.isValid(); b = b.next())
        if (b.blockFormat().alignment() & Qt::AlignRight && !b.text().simplified().isEmpty())
            rightAligned << b.text().simplified();
    ASSERT_TRUE(rightAligned.contains(q("Avv. Tizio Caio"))) << rightAligned.join(q("|")).toStdString();
    const QTextDocumentFragment bill(&document);
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.setBlockFormat(document.begin().blockFormat());
    end.insertFragment(bill);
    QStringList allWords = document.toPlainText().split(QRegularExpression(q("\\s+")), Qt::SkipEmptyParts);
    allWords.sort();

    constexpr double edge = 12, a4Width = 595.28;
    const Carta carte[] = {
        {"A3, a block at its size", QPageSize::A3, QPageLayout::Portrait, edge + 612},
        {"A4, as wide as it prints", QPageSize::A4, QPageLayout::Portrait, a4Width - edge},
        {"Letter, as wide as it prints", QPageSize::Letter, QPageLayout::Portrait, 612 - edge},
        {"A4 across, as high as it prints", QPageSize::A4, QPageLayout::Landscape,
         edge + 612 * (a4Width - 2 * edge) / 720},
    };
    QTemporaryDir dir;
    QList<QStringList> atItsSize; // the words of each page on A3
    for (const Carta &carta : carte) {
        SCOPED_TRACE(carta.name);
        const QString pdf = dir.filePath(q(carta.name) + q(".pdf"));
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        printer.setPageLayout(QPageLayout(QPageSize(carta.size), carta.orientation, QMarginsF(edge, edge, edge, edge)));
        const int printed = stampaBozza(document, printer);
        const QList<Pagina> pages = pagine(pdf);
        ASSERT_EQ(pages.size(), printed);
        ASSERT_EQ(printed, 2);

        QStringList lines, words;
        QList<QStringList> byPage;
        for (const Pagina &page : pages) {
            // Inside the printable area; poppler's word box is the face's, Qt's line box the font's.
            constexpr double slack = 1;
            EXPECT_GE(page.left, edge - slack);
            EXPECT_GE(page.top, edge - slack);
            EXPECT_LE(page.right, page.size.width() - edge + slack);
            EXPECT_LE(page.bottom, page.size.height() - edge + slack);
            EXPECT_NEAR(page.right, carta.rightEnd, 1.5);
            lines << page.lines;
            words << page.words;
            byPage << page.words;
        }
        for (const QString &line : rightAligned)
            EXPECT_TRUE(lines.contains(line)) << line.toStdString();
        // Each word once: a line pushed to the next page is not also left, clipped, at the foot of this one.
        words.sort();
        EXPECT_EQ(words, allWords);
        // The page breaks of a block printed at its size.
        if (atItsSize.isEmpty())
            atItsSize = byPage;
        EXPECT_EQ(byPage, atItsSize);
    }
}
