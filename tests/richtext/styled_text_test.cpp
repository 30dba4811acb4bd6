// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/styled_text.h"

#include "core/failure.h"
#include "support/rtf_describe.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;
using lumetra::test::describe;

TEST(StyledText, ParagraphsEndWithTheirLineEnd)
{
    const QString CR(QChar(13));
    const std::pair<QString, int> counts[] = {{QString(), 0}, {u"abc"_s, 1}, {u"abc"_s + CR, 1}, {CR + CR, 2}};
    for (const auto &[text, count] : counts)
        EXPECT_EQ(StyledText(text).ParagraphCount(), count) << text.toStdString();

    StyledText t(u"ab"_s + CR + CR + u"cde"_s);
    EXPECT_EQ(std::pair(t.Paragraph(1).startPos, t.Paragraph(1).length), std::pair(3, 0));
    EXPECT_EQ(std::pair(t.Paragraph(2).startPos, t.Paragraph(2).length), std::pair(4, 3));
    EXPECT_THROW(t.Paragraph(3), UnhandledFailure);
}

TEST(StyledText, RunsMergeAcrossLineEnds)
{
    StyledText t(u"Titolo\rcorpo\r"_s);
    t.Bold(0, 7, true);
    EXPECT_EQ(describe(t), u"<b>Titolo¶|corpo¶/00"_s);
    t.Bold(7, 6, true);
    EXPECT_EQ(describe(t), u"<b>Titolo¶corpo¶/00"_s);

    t.AppendStyleRun({u"testo"_s, TextStyle{.size = 18}});
    t.ParagraphAlignment(2, 2);
    EXPECT_EQ(describe(t), u"<b>Titolo¶corpo¶|<@18>testo/002"_s);
}

// A range over runs of several styles changes each in its own way; texts that
// reach the same styles by different ways are equal.
TEST(StyledText, RangeStylesOverMixedRunsAndEquality)
{
    StyledText t;
    t.AppendStyleRun({u"ab"_s, {}});
    t.AppendStyleRun({u"cd"_s, {.italic = true}});
    t.AppendStyleRun({u"ef"_s, {}});
    t.Bold(1, 4, true);
    EXPECT_EQ(describe(t), u"a|<b>b|<bi>cd|<b>e|f/0"_s);

    StyledText same(u"abcdef"_s);
    same.Bold(1, 4, true);
    same.Italic(2, 2, true);
    EXPECT_TRUE(same == t);
    same.Bold(5, 1, true);
    EXPECT_FALSE(same == t);
}
