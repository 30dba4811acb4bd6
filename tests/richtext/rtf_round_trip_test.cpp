// What the writer writes, the reader reads back: the same runs, characters and
// alignments. The reader knows no alignment 0: the writer puts 0 and 1 alike
// as \ql, and a first paragraph at 0 writes nothing, so both read back as 1.

#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

#include "support/rtf_describe.h"

#include <gtest/gtest.h>

using namespace lumetra;
using lumetra::test::alignments;
using lumetra::test::describe;

namespace {

const QChar CR(13);
QString q(const char *s) { return QString::fromUtf8(s); }

TextStyle style(const char *font, float size, bool bold = false, bool italic = false, bool underline = false,
                Colour colour = 0)
{
    TextStyle s;
    s.font = q(font);
    s.size = size;
    s.bold = bold;
    s.italic = italic;
    s.underline = underline;
    s.textColor = colour;
    return s;
}

StyledText readBack(const StyledText &t)
{
    StyledText back;
    SetRTFData(back, RTFData(t));
    return back;
}

} // namespace

TEST(RtfRoundTrip, WriterExample)
{
    StyledText t;
    t.AppendStyleRun({q("Città"), style("Arial", 12, true)});
    t.ParagraphAlignment(0, 2);
    const QByteArray rtf = RTFData(t);
    EXPECT_EQ(rtf, QByteArray("{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl\\red0\\green0\\blue0;}"
                              "\\uc0 \\qc\\b\\f0\\fs24 Citt\\u224 }"));
    StyledText back;
    SetRTFData(back, rtf);
    EXPECT_TRUE(back == t);
}

TEST(RtfRoundTrip, RunsCharactersAndAlignmentsComeBack)
{
    struct Case {
        const char *name;
        std::vector<StyleRun> runs;
        std::vector<int> alignments;
    };
    const Case cases[] = {
        {"styles, colours and sizes",
         {{q("Nota spese") + CR, style("Arial", 16, true, false, false, 0x800000)},
          {q("Egregio "), style("Times New Roman", 12)},
          {q("cliente"), style("Times New Roman", 12, false, true, true)},
          {q(", mezzo punto") + CR, style("Times New Roman", 10.5f)},
          {q("Totale € 1.225,00"), style("Courier New", 9, true, false, false, 0x0000ff)}},
         {2, 1, 3}},
        {"escapes and accents",
         {{q("a\\b {c} è à ù — €") + CR, style("Arial", 12)}, {q("fine"), style("Arial", 12)}},
         {0, 0}},
        {"empty lines and alignment back to default",
         {{q("Titolo") + CR + CR, style("Arial", 14, true)}, {q("corpo") + CR, style("Arial", 12)}},
         {2, 2, 0}},
    };
    for (const auto &c : cases) {
        StyledText t;
        for (const auto &run : c.runs)
            t.AppendStyleRun(run);
        for (size_t p = 0; p < c.alignments.size(); ++p)
            t.ParagraphAlignment(int(p), c.alignments[p]);
        const StyledText back = readBack(t);
        EXPECT_EQ(describe(back), describe(t)) << c.name;
        EXPECT_EQ(alignments(back), alignments(t).replace(QLatin1Char('0'), QLatin1Char('1'))) << c.name;
    }
}
