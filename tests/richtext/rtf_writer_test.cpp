#include "richtext/rtf_writer.h"

#include <gtest/gtest.h>

#include <vector>

using namespace lumetra;

namespace {

const QChar CR(13);
QString q(const char *s) { return QString::fromUtf8(s); }

TextStyle style(const char *font, float size, bool bold = false, Colour colour = 0)
{
    TextStyle s;
    s.font = q(font);
    s.size = size;
    s.bold = bold;
    s.textColor = colour;
    return s;
}

StyledText build(const std::vector<StyleRun> &runs, const std::vector<int> &alignments = {})
{
    StyledText t;
    for (const auto &r : runs)
        t.AppendStyleRun(r);
    for (size_t i = 0; i < alignments.size(); ++i)
        t.ParagraphAlignment(int(i), alignments[i]);
    return t;
}

const char kHeadArial[] = "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl\\red0\\green0\\blue0;}\\uc0 ";
const char kHeadSystem[] = "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil System;}}{\\colortbl\\red0\\green0\\blue0;}\\uc0 ";

} // namespace

TEST(RTFData, WholeDocuments)
{
    TextStyle italic = style("Arial", 12);
    italic.italic = true;
    TextStyle underlined = style("Arial", 12);
    underlined.underline = true;

    struct Case {
        const char *name;
        StyledText text;
        QByteArray expected;
    };
    const Case cases[] = {
        {"the example", build({{q("Città"), style("Arial", 12, true)}}, {2}),
         QByteArray(kHeadArial) + "\\qc\\b\\f0\\fs24 Citt\\u224 }"},
        {"empty text", StyledText(), "{\\rtf1\\ansi\\ansicpg256{\\fonttbl}{\\colortbl}\\uc0 }"},
        {"default style, line break at the end", StyledText(q("abc") + CR),
         QByteArray(kHeadSystem) + "\\f0 abc\\par }"},
        {"escapes", StyledText(q("a\\b{c}")), QByteArray(kHeadSystem) + "\\f0 a\\\\b\\{c\\}}"},
        {"equal neighbours are one run", build({{q("ab"), style("Arial", 0)}, {q("cd"), style("Arial", 0)}}),
         QByteArray(kHeadArial) + "\\f0 abcd}"},
        {"empty font name writes no \\f", build({{q("x"), style("", 0)}}),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil ;}}{\\colortbl\\red0\\green0\\blue0;}\\uc0 x}"},
        {"centre back to default", build({{q("a") + CR, style("Arial", 0)}, {q("b"), style("Arial", 0, true)}}, {2, 0}),
         QByteArray(kHeadArial) + "\\qc\\f0 a\\par \\ql\\b b}"},
        {"alignment only where a run starts",
         build({{q("a") + CR + q("b") + CR, style("Arial", 0)}, {q("c"), style("Arial", 0, true)}}, {3, 2, 1}),
         QByteArray(kHeadArial) + "\\qr\\f0 a\\par b\\par \\ql\\b c}"},
        {"style carries over and is switched off",
         build({{q("a"), style("Arial", 12, true)}, {q("b"), italic}, {q("c"), underlined}, {q("d"), style("Arial", 12)}}),
         QByteArray(kHeadArial) + "\\b\\f0\\fs24 a\\b0\\i b\\i0\\ul c\\ul0 d}"},
        {"half points rounded half away from zero",
         build({{q("a"), style("Arial", 12)}, {q("b"), style("Arial", 10.5f)}, {q("c"), style("Arial", 10.25f)},
                {q("d"), style("Arial", 9)}}),
         QByteArray(kHeadArial) + "\\f0\\fs24 a\\fs21 b\\fs21 c\\fs18 d}"},
        {"colours numbered by first use, black first written as \\cf",
         build({{q("r"), style("Arial", 0, false, 0xff0000)}, {q("k"), style("Arial", 0)},
                {q("g"), style("Arial", 0, false, 0x00ff80)}}),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Arial;}}"
         "{\\colortbl\\red255\\green0\\blue0;\\red0\\green0\\blue0;\\red0\\green255\\blue128;}\\uc0 "
         "\\f0\\cf0 r\\cf1 k\\cf2 g}"},
        {"font names looked up ignoring case, first spelling kept",
         build({{q("a"), style("Courier New", 0)}, {q("b"), style("COURIER NEW", 0, true)}, {q("c"), style("Arial", 0)}}),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Courier New;}{\\f1\\fnil Arial;}}"
         "{\\colortbl\\red0\\green0\\blue0;}\\uc0 \\f0 a\\b b\\b0\\f1 c}"},
        {"non-ASCII font name as raw UTF-8", build({{q("x"), style("Città", 0)}}),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Citt\xc3\xa0;}}{\\colortbl\\red0\\green0\\blue0;}\\uc0 \\f0 x}"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(RTFData(c.text), c.expected) << c.name;
}

TEST(RTFData, EncodeNonAsciiText)
{
    struct Case {
        QString text;
        QByteArray expected;
    };
    const Case cases[] = {
        {QString(), ""},
        {q("abc"), "abc"},
        {QString(CR) + CR, "\\par\\par "},
        {QString(CR) + QChar(10), "\\par\\par "},
        {q("a") + CR + q("b"), "a\\par b"},
        {q("èà"), "\\u232\\u224 "},
        {q("è a"), "\\u232  a"},
        {q("1,00 €"), "1,00 \\u8364 "},
        {q("\\{}"), "\\\\\\{\\}"},
        {q("ü\\"), "\\u252 \\\\"},
        {QString(QChar(0x7fff)), "\\u32767 "},
        // From 0x8000 on a unit is negative: the character itself, in UTF-8.
        {QString(QChar(0x8000)), "\xe8\x80\x80"},
        {q("è") + QChar(0x8000), "\\u232 \xe8\x80\x80"},
        {q("😀x"), "\xf0\x9f\x98\x80x"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(EncodeNonAsciiText(c.text), c.expected) << c.text.toStdString();
}
