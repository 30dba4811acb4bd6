#include "richtext/ui/styled_document.h"

#include "richtext/rtf_writer.h"
#include "support/documents.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

const QChar CR(13);
QString q(const char *s) { return QString::fromUtf8(s); }

StyledText roundTrip(const StyledText &text)
{
    QTextDocument document;
    setStyledText(document, text);
    return styledText(document);
}

StyledText oddText()
{
    StyledText t;
    TextStyle a;
    a.font = q("Arial");
    a.size = 10.5f;
    a.underline = true;
    a.textColor = 0x336699;
    TextStyle b;
    b.font = QString();
    b.italic = true;
    t.AppendStyleRun({q("uno") + CR + CR, a});
    t.AppendStyleRun({q("a capo") + QChar(10) + q("stessa riga") + CR, b});
    t.AppendStyleRun({q("ultima senza fine"), TextStyle{}});
    t.ParagraphAlignment(0, 1);
    t.ParagraphAlignment(1, 0);
    t.ParagraphAlignment(2, 3);
    return t;
}

} // namespace

TEST(StyledDocument, UntouchedDocumentConvertsBackToTheSameText)
{
    struct Case {
        const char *name;
        StyledText text;
    };
    const Case cases[] = {
        {"empty", StyledText()},
        {"one line end", StyledText(QString(CR))},
        {"odd styles, line feed, no final line end", oddText()},
        {"nota spese", styledDocument(notaSpese(), 9, 12)},
        {"nota spese for Word", styledDocument(notaSpese(), 12, 16)},
        {"fattura", styledDocument(fattura(), 9, 12)},
    };
    for (const auto &c : cases) {
        const StyledText back = roundTrip(c.text);
        EXPECT_EQ(back.Text(), c.text.Text()) << c.name;
        EXPECT_TRUE(back == c.text) << c.name;
        EXPECT_EQ(RTFData(back), RTFData(c.text)) << c.name;
    }
}

TEST(StyledDocument, ParagraphsWithoutAlignmentShowTheOneAbove)
{
    QTextDocument document;
    setStyledText(document, styledDocument(notaSpese(), 9, 12));
    const struct {
        int paragraph;
        Qt::Alignment shown;
    } cases[] = {
        {0, Qt::AlignLeft},     {6, Qt::AlignLeft},     {7, Qt::AlignRight}, {12, Qt::AlignRight},
        {13, Qt::AlignHCenter}, {14, Qt::AlignHCenter}, {15, Qt::AlignLeft}, {51, Qt::AlignLeft},
        {52, Qt::AlignRight},   {53, Qt::AlignRight},
    };
    for (const auto &c : cases)
        EXPECT_EQ(document.findBlockByNumber(c.paragraph).blockFormat().alignment() & Qt::AlignHorizontal_Mask,
                  c.shown)
            << c.paragraph;
}

TEST(StyledDocument, EditsTakeTheStyleTheyShow)
{
    QTextDocument document;
    const StyledText composed = styledDocument(notaSpese(), 9, 12);
    setStyledText(document, composed);

    // Typed inside the title: bold, 12 points, Times; beyond Latin-1 as \u.
    QTextCursor cursor(document.findBlockByNumber(13));
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(q(" Ω"));
    // Pasted from elsewhere, as HTML.
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.insertHtml(q("<p>Nuovo</p><p align=\"center\"><span style=\"font-family:Arial; font-size:14pt; "
                     "font-weight:700\">Centrato</span></p>"));

    const StyledText edited = styledText(document);
    const int title = edited.Text().indexOf(q("COMPETENZE Ω"));
    ASSERT_GE(title, 0);
    const TextStyle typed = edited.styleAt(title + 12);
    EXPECT_EQ(typed.font, q("Times New Roman"));
    EXPECT_EQ(typed.size, 12.0f);
    EXPECT_TRUE(typed.bold);

    const TextStyle pasted = edited.styleAt(edited.Text().indexOf(q("Centrato")));
    EXPECT_EQ(pasted.font, q("Arial"));
    EXPECT_EQ(pasted.size, 14.0f);
    EXPECT_TRUE(pasted.bold);
    // The first pasted paragraph joins the empty one it lands in; the next
    // brings its own alignment.
    EXPECT_EQ(edited.ParagraphAlignment(edited.ParagraphCount() - 2), 0);
    EXPECT_EQ(edited.ParagraphAlignment(edited.ParagraphCount() - 1), 2);
    // What was not touched keeps its paragraphs and alignments.
    for (int p = 0; p < composed.ParagraphCount(); ++p)
        ASSERT_EQ(edited.ParagraphAlignment(p), composed.ParagraphAlignment(p)) << p;
}
