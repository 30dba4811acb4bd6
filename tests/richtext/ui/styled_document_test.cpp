// SPDX-License-Identifier: GPL-3.0-or-later
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

// Odd styles, an empty paragraph, a line feed inside one, no final line end.
StyledText oddText()
{
    StyledText t;
    const TextStyle a{.font = u("Arial"), .size = 10.5f, .underline = true, .textColor = 0x336699};
    const TextStyle b{.font = QString(), .italic = true};
    t.AppendStyleRun({u("uno") + CR + CR, a});
    t.AppendStyleRun({u("a capo") + QChar(10) + u("stessa riga") + CR, b});
    t.AppendStyleRun({u("ultima senza fine"), TextStyle{}});
    t.ParagraphAlignment(0, 1);
    t.ParagraphAlignment(2, 3);
    return t;
}

} // namespace

TEST(StyledDocument, UntouchedDocumentConvertsBackToTheSameText)
{
    const StyledText cases[] = {StyledText(), StyledText(CR), oddText(), styledDocument(golden("nota_spese"), 9, 12),
                                styledDocument(golden("fattura"), 12, 16)};
    for (const StyledText &text : cases) {
        QTextDocument document;
        setStyledText(document, text);
        const StyledText back = styledText(document);
        EXPECT_TRUE(back == text) << back.Text().toStdString();
        EXPECT_EQ(RTFData(back), RTFData(text));
    }
}

TEST(StyledDocument, ParagraphsWithoutAlignmentShowTheOneAboveAndEditsTakeTheStyleTheyShow)
{
    QTextDocument document;
    const StyledText composed = styledDocument(golden("nota_spese"), 9, 12);
    setStyledText(document, composed);
    const std::pair<int, Qt::Alignment> shown[] = {
        {0, Qt::AlignLeft},     {6, Qt::AlignLeft},  {7, Qt::AlignRight}, {12, Qt::AlignRight}, {13, Qt::AlignHCenter},
        {14, Qt::AlignHCenter}, {15, Qt::AlignLeft}, {51, Qt::AlignLeft}, {52, Qt::AlignRight}, {53, Qt::AlignRight}};
    for (auto [paragraph, alignment] : shown)
        EXPECT_EQ(document.findBlockByNumber(paragraph).blockFormat().alignment() & Qt::AlignHorizontal_Mask, alignment)
            << paragraph;

    // Typed inside the title: bold, 12 points, Times. Pasted from elsewhere, as HTML.
    QTextCursor cursor(document.findBlockByNumber(13));
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(u(" Ω"));
    cursor.movePosition(QTextCursor::End);
    cursor.insertHtml(u("<p>Nuovo</p><p align=\"center\"><span style=\"font-family:Arial; font-size:14pt; "
                        "font-weight:700\">Centrato</span></p>"));
    const StyledText edited = styledText(document);
    const int typed = edited.Text().indexOf(u("COMPETENZE Ω")) + 12, pasted = edited.Text().indexOf(u("Centrato"));
    ASSERT_GE(typed, 12);
    for (auto [at, font, size] : {std::tuple{typed, "Times New Roman", 12.0f}, {pasted, "Arial", 14.0f}}) {
        EXPECT_EQ(edited.styleAt(at).font, u(font));
        EXPECT_EQ(edited.styleAt(at).size, size);
        EXPECT_TRUE(edited.styleAt(at).bold);
    }
    // The first pasted paragraph joins the empty one it lands in; the next brings its own alignment.
    EXPECT_EQ(edited.ParagraphAlignment(edited.ParagraphCount() - 2), 0);
    EXPECT_EQ(edited.ParagraphAlignment(edited.ParagraphCount() - 1), 2);
    // What was not touched keeps its paragraphs and alignments.
    for (int p = 0; p < composed.ParagraphCount(); ++p)
        ASSERT_EQ(edited.ParagraphAlignment(p), composed.ParagraphAlignment(p)) << p;
}
