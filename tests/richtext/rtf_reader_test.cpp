#include "richtext/rtf_reader.h"

#include "core/failure.h"
#include "support/rtf_describe.h"

#include <gtest/gtest.h>

using namespace lumetra;
using lumetra::test::alignments;
using lumetra::test::describe;

namespace {

QString q(const char *s) { return QString::fromUtf8(s); }

StyledText read(const QByteArray &rtf)
{
    StyledText t;
    SetRTFData(t, rtf);
    return t;
}

} // namespace

TEST(RtfReader, Documents)
{
    struct Case {
        const char *name;
        QByteArray rtf;
        const char *runs;       // describe(): runs split by '|', '¶' for a line end
        const char *alignments; // one digit per paragraph
    };
    const Case cases[] = {
        // Head
        {"empty", "", "", ""},
        {"no head", "hello {\\b x}", "", ""},
        {"head ignores case", "{\\RTF1 x}", "x", "1"},
        // The writer's own output
        {"writer example",
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl\\red0\\green0\\blue0;}\\uc0 "
         "\\qc\\b\\f0\\fs24 Citt\\u224 }",
         "<b @12 Arial>Città", "2"},
        {"writer escapes", "{\\rtf1\\ansi\\ansicpg256\\uc0 a\\\\b\\{c\\}d}", "a\\b{c}d", "1"},
        // Line ends
        {"first \\par lost", "{\\rtf1\\par a\\par b}", "a¶b", "11"},
        {"leading empty lines lost", "{\\rtf1 \\par\\par\\par a}", "a", "1"},
        {"empty line kept after text", "{\\rtf1 a\\par\\par b}", "a¶¶b", "111"},
        {"file line breaks are no text", "{\\rtf1 a\r\nb\rc\nd}", "abcd", "1"},
        {"backslash newline is \\par", "{\\rtf1 a\\\r\nb}", "a¶b", "11"},
        // Delimiters
        {"one blank swallowed, the next is text", "{\\rtf1\\b  x}", "<b> x", "1"},
        {"any byte is a delimiter", "{\\rtf1\\b1x y}", "<b> y", "1"},
        {"semicolon is not swallowed", "{\\rtf1\\i;x}", "<i>;x", "1"},
        // Groups
        {"style ends with its group", "{\\rtf1{\\b bold} plain}", "<b>bold| plain", "1"},
        {"unknown word at a group's start drops it", "{\\rtf1{\\foo text}x}", "x", "1"},
        {"unknown word elsewhere is passed over", "{\\rtf1 a\\foo text}", "atext", "1"},
        {"\\* keeps a known word from acting", "{\\rtf1{\\*\\b x}y}", "y", "1"},
        {"\\upr keeps its group", "{\\rtf1{\\upr{a}{\\*\\ud{b}}}}", "a", "1"},
        {"script switches keep their group", "{\\rtf1{\\loch a}{\\rtlch\\b b}}", "a|<b>b", "1"},
        {"style sheet and info dropped",
         "{\\rtf1{\\stylesheet{\\s0\\b Normal;}}{\\info{\\title T}{\\author A}}x}", "x", "1"},
        // Binary data
        {"\\bin stepped over", "{\\rtf1 a\\bin3 \\}{b}", "ab", "1"},
        {"\\bin inside a dropped group", "{\\rtf1{\\pict\\bin2 }}}x}", "x", "1"},
        {"\\bin longer than the data", "{\\rtf1 a\\bin99999999999999999999 b}", "a", "1"},
        {"negative \\bin steps over nothing", "{\\rtf1 a\\bin-5 b}", "ab", "1"},
        // Unbalanced braces
        {"stops at a brace with no group", "{\\rtf1 a}}b", "a", "1"},
        {"text behind the last brace dropped", "{\\rtf1 a}b", "a", "1"},
        {"table braces stay open, so text behind the end is read",
         "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red255\\green0\\blue0;}\\f0\\cf1 x}y", "<Arial #ff0000>x|y", "1"},
        // Tables
        {"a byte behind a table's brace is swallowed", "{\\rtf1{\\fonttbl{\\f0 A;}}xy{\\colortbl;}zw}", "yw", "1"},
        {"ends inside a font table", "{\\rtf1{\\fonttbl{\\f0 Arial", "", ""},
        {"ends inside a colour table", "{\\rtf1{\\colortbl\\red255;", "", ""},
        {"font entry with groups of its own",
         "{\\rtf1{\\fonttbl{\\f3\\froman\\fprq2{\\*\\panose 0202}\\fcharset0 Liberation Serif{\\*\\falt Times};}}"
         "\\f3 x}",
         "<Liberation Serif>x", "1"},
        {"\\f of an empty name does nothing", "{\\rtf1{\\fonttbl{\\f0;}{\\f1 Arial;}}\\f1 a\\f0 b\\f7 c}",
         "<Arial>abc", "1"},
        {"\\f and \\cf without tables do nothing", "{\\rtf1 a\\f0\\cf2 b}", "ab", "1"},
        {"colour table without a blank first entry", "{\\rtf1{\\colortbl\\red0\\green0\\blue255;}\\cf0 a}",
         "<#0000ff>a", "1"},
        {"colours are not reset between entries",
         "{\\rtf1{\\colortbl\\red255;\\green255;}\\cf1 a\\cf0 b\\cf9 c}", "<#ffff00>a|<#ff0000>b|c", "1"},
        {"colour components bounded", "{\\rtf1{\\colortbl\\red999\\green-4\\blue99999999999;}\\cf0 a}",
         "<#ff00ff>a", "1"},
        // Switches
        {"\\b0 \\i0 \\ul0 \\ulnone", "{\\rtf1\\b\\i\\ul a\\b0 b\\i0 c\\ul0 d\\ul e\\ulnone f}",
         "<biu>a|<iu>b|<u>c|d|<u>e|f", "1"},
        {"only the text 0 turns a switch off", "{\\rtf1\\b00 a\\b-0 b}", "<b>ab", "1"},
        {"sizes in half points", "{\\rtf1\\fs21 a\\fs b\\fs99999999999 c}", "<@10.5>a|b|<@1e+09>c", "1"},
        {"control words ignore case", "{\\rtf1\\B a\\PAR\\QC b}", "<b>a¶b", "12"},
        // Alignment
        {"alignment goes to the paragraph a run starts",
         "{\\rtf1\\qc a\\par\\qr b\\par\\ql c\\par\\qj d\\par\\qc e\\pard f}", "a¶b¶c¶d¶ef", "23111"},
        {"a committed run keeps its paragraph's alignment", "{\\rtf1 a\\b\\qc b\\par c}", "a|<b>b¶c", "12"},
        {"\\pard resets the alignment only", "{\\rtf1\\qc\\b a\\par\\pard b}", "<b>a¶b", "21"},
    };
    for (const auto &c : cases) {
        const StyledText t = read(c.rtf);
        EXPECT_EQ(describe(t), q(c.runs)) << c.name;
        EXPECT_EQ(alignments(t), q(c.alignments)) << c.name;
    }
}

TEST(RtfReader, NumberedCharacters)
{
    struct Case {
        const char *name;
        QByteArray body; // behind "{\rtf1"
        QString text;
    };
    const Case cases[] = {
        {"\\'hh without \\ansicpg reads as Latin-1", " \\'e9\\'80", q("é\u0080")},
        {"\\u without \\ansicpg: only 0 to 255", " \\u233\\u8364 .", q("é.")},
        {"the fallback of a foreign \\u stays", " Citt\\u224\\'e0", q("Cittàà")},
        {"Unicode", "\\ansicpg256 \\u8364\\u224\\'e9", q("€àé")},
        {"Unicode, negative numbers", "\\ansicpg256 \\u-3913\\u-32768", q("\uF0B7\u8000")},
        {"Unicode, surrogate pair", "\\ansicpg256 \\u55357\\u56832", q("😀")},
        {"Windows-1252", "\\ansicpg1252 \\'80\\'e0\\'9c", q("€àœ")},
        {"Mac Roman", "\\ansicpg10000 \\'8e\\'88\\'db", q("éà€")},
        {"UTF-8 bytes", "\\ansicpg65001 \\'c3\\'a0\\'e2\\'82\\'ac\\u233", q("à€é")},
        {"other code pages read as Windows-1252", "\\ansicpg437 \\'80", q("€")},
        {"plain bytes: ASCII reads Latin-1", " \xe0\x80", q("à\u0080")},
        {"plain bytes: \\ansi", "\\ansi \xe0\x80", q("à€")},
        {"plain bytes: \\mac", "\\mac \x88\xdb", q("à€")},
        {"encoding ends with its group", "{\\ansicpg1252 \\'80}\\'80", q("€\u0080")},
        {"no hex", " \\'zzy", QString(QChar(0)) + QLatin1Char('y')},
    };
    for (const auto &c : cases)
        EXPECT_EQ(read("{\\rtf1" + c.body + "}").Text(), c.text) << c.name;
}

TEST(RtfReader, QueuedBracesAndBackslashesAct)
{
    // A "}" from \'7d closes the document's group; text behind it has no group.
    EXPECT_EQ(read("{\\rtf1 a\\'7d b}").Text(), q("a"));
    // A backslash from \'5c starts a control word from the next byte of the file.
    EXPECT_EQ(describe(read("{\\rtf1 \\'5cb x}")), q("<b>x"));
    // A "{" from \'7b opens a group whose end takes a style away.
    EXPECT_EQ(describe(read("{\\rtf1 \\'7b\\b x} y}")), q("<b>x| y"));
}

TEST(RtfReader, TextBeforeTheFirstFontIsAnUnhandledFailure)
{
    EXPECT_THROW(read("{\\rtf1{\\fonttbl Arial;}}"), UnhandledFailure);
    EXPECT_THROW(read("{\\rtf1{\\fonttbl\n\n{\\f0 Arial;}}}"), UnhandledFailure);
    EXPECT_NO_THROW(read("{\\rtf1{\\fonttbl;{\\f0 Arial;}}}"));
    EXPECT_NO_THROW(read("{\\rtf1{\\fonttbl\r\n{\\f0 Arial;}}}"));
}
