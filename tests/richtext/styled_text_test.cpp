#include "richtext/styled_text.h"

#include "core/failure.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {
const QChar CR(13);
QString q(const char *s) { return QString::fromUtf8(s); }
} // namespace

TEST(StyledText, ParagraphsEndWithTheirLineEnd)
{
    struct Case {
        QString text;
        int count;
    };
    const Case cases[] = {
        {QString(), 0},
        {q("abc"), 1},
        {q("abc") + CR, 1},
        {q("a") + CR + q("b"), 2},
        {QString(CR) + CR, 2},
    };
    for (const auto &c : cases)
        EXPECT_EQ(StyledText(c.text).ParagraphCount(), c.count) << c.text.toStdString();

    StyledText t(q("ab") + CR + CR + q("cde"));
    EXPECT_EQ(t.paragraph(0).startPos, 0);
    EXPECT_EQ(t.paragraph(0).length, 2);
    EXPECT_EQ(t.paragraph(1).startPos, 3);
    EXPECT_EQ(t.paragraph(1).length, 0);
    EXPECT_EQ(t.paragraph(2).startPos, 4);
    EXPECT_EQ(t.paragraph(2).length, 3);
    EXPECT_THROW(t.paragraph(3), UnhandledFailure);
}

TEST(StyledText, EqualNeighboursFormOneRunAcrossLineEnds)
{
    StyledText t(q("Titolo") + CR + q("corpo") + CR);
    EXPECT_EQ(t.StyleRunCount(), 1);
    t.Bold(0, 7, true);
    ASSERT_EQ(t.StyleRunCount(), 2);
    EXPECT_EQ(t.styleRun(0).text, q("Titolo") + CR);
    EXPECT_TRUE(t.styleRun(0).style.bold);
    EXPECT_EQ(t.styleRun(1).text, q("corpo") + CR);
    t.Bold(7, 6, true);
    EXPECT_EQ(t.StyleRunCount(), 1);
    EXPECT_EQ(t.styleRun(0).style.font, q("System"));
    EXPECT_EQ(t.styleRun(0).style.size, 0.0f);
}

TEST(StyledText, AppendAndRemoveRuns)
{
    StyledText t;
    TextStyle big;
    big.size = 18;
    t.AppendStyleRun({q("Città") + CR, big});
    t.AppendStyleRun({q("testo"), TextStyle{}});
    EXPECT_EQ(t.ParagraphCount(), 2);
    t.ParagraphAlignment(0, 2);
    EXPECT_EQ(t.ParagraphAlignment(0), 2);
    EXPECT_EQ(t.ParagraphAlignment(1), 0);
    while (t.StyleRunCount() > 0)
        t.RemoveStyleRun(0);
    EXPECT_EQ(t.Text(), QString());
    EXPECT_EQ(t.ParagraphCount(), 0);
}
