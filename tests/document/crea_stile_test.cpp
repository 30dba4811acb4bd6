#include "document/crea_stile.h"

#include "richtext/rtf_writer.h"
#include "support/documents.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

const QChar CR(13);
const QString kTimes = QStringLiteral("Times New Roman");
const QString kCourier = QStringLiteral("Courier New");

struct Expected {
    bool large;
    bool bold;
    bool italic;
    int alignment;
};

// Every character of every block, and every paragraph's alignment.
void checkBlocks(const Composed &doc, const StyledText &st, int size1, int size2, const Expected (&blocks)[7])
{
    ASSERT_EQ(st.Text(), doc.text);
    std::vector<int> alignments(size_t(st.ParagraphCount()), 0);
    for (int r = 0; r < 7; ++r) {
        const int first = doc.sty_f[size_t(r)][0];
        const int last = doc.sty_f[size_t(r)][1];
        if (last < first)
            continue;
        alignments[size_t(first)] = blocks[r].alignment;
        const int start = st.paragraph(first).startPos;
        const int end = st.paragraph(last).startPos + st.paragraph(last).length + 1;
        for (int i = start; i < end; ++i) {
            const TextStyle s = st.styleAt(i);
            ASSERT_EQ(s.size, float(blocks[r].large ? size2 : size1)) << "block " << r << " position " << i;
            ASSERT_EQ(s.bold, blocks[r].bold) << "block " << r << " position " << i;
            ASSERT_EQ(s.italic, blocks[r].italic) << "block " << r << " position " << i;
        }
    }
    for (int p = 0; p < st.ParagraphCount(); ++p)
        EXPECT_EQ(st.ParagraphAlignment(p), alignments[size_t(p)]) << "paragraph " << p;
}

void checkZones(const Composed &doc, const StyledText &st)
{
    const int c0 = doc.sty_f[0][2], c1 = doc.sty_f[1][2], c2 = doc.sty_f[2][2];
    ASSERT_EQ(c2, st.Text().size() - 1);
    for (int i = 0; i <= c2; ++i) {
        const QString expected = i < c0 ? kTimes : i == c0 ? QStringLiteral("System") : i <= c1 ? kCourier : kTimes;
        ASSERT_EQ(st.styleAt(i).font, expected) << "position " << i;
    }
    EXPECT_EQ(st.Text()[c0], CR);
}

} // namespace

// Sizes, styles and alignments of every block, for both kinds and both pairs
// of sizes.
TEST(Crea_stile, BlocksOfBothKinds)
{
    struct Case {
        const char *name;
        Composed doc;
        Expected blocks[7];
    };
    const Case cases[] = {
        {"nota spese", notaSpese(),
         {{false, false, false, 1}, {true, false, true, 3}, {true, true, false, 2}, {true, false, false, 1},
          {false, false, false, 1}, {false, true, false, 1}, {true, false, false, 3}}},
        // Block 4 is block 3 again, and its treatment comes second: the
        // subject at the small size. The title (three lines and a blank) is
        // bold and at the left.
        {"fattura", fattura(),
         {{false, false, false, 1}, {true, false, true, 3}, {true, true, false, 1}, {false, false, false, 1},
          {false, false, false, 1}, {false, true, false, 1}, {true, false, false, 3}}},
    };
    for (const auto &c : cases) {
        for (auto [size1, size2] : {std::pair{9, 12}, std::pair{12, 16}}) {
            SCOPED_TRACE(std::string(c.name) + " " + std::to_string(size1));
            const StyledText st = Crea_stile(c.doc.text, c.doc.sty_f, c.doc.elab, size1, size2);
            checkZones(c.doc, st);
            checkBlocks(c.doc, st, size1, size2, c.blocks);
        }
    }
}

TEST(Crea_stile, EmptySummaryBlockLeavesItsAlignmentToTheSignature)
{
    // Blocks of one line each, block 5 empty (its last paragraph before its first).
    const QString text = QStringLiteral("S\rP\rT\rO\r \r \rF \r");
    const StyMap sty_f = styMap({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 4}, {5, 6}}, 7, 9, 14);
    const StyledText st = Crea_stile(text, sty_f, 0, 9, 12);
    EXPECT_EQ(st.ParagraphAlignment(4), 1);
    EXPECT_EQ(st.ParagraphAlignment(5), 3);
    EXPECT_EQ(st.ParagraphAlignment(6), 0);
    for (int i = 10; i < text.size(); ++i) {
        EXPECT_EQ(st.styleAt(i).size, 12.0f) << i;
        EXPECT_FALSE(st.styleAt(i).bold) << i;
    }
    EXPECT_EQ(st.styleAt(8).size, 9.0f);
}

// The file a saved document gives, byte for byte.
TEST(Crea_stile, RtfOfTheComposedDocuments)
{
    struct Case {
        const char *name;
        Composed doc;
        QByteArray alignments;
    };
    const Case cases[] = {
        // Right for place and client to the last line, the title centred,
        // the subject at the left again, the signature right. The line end
        // outside the font zones starts a run in a paragraph of alignment 0,
        // so \ql goes out twice more around it.
        {"nota_spese", notaSpese(), "l r c l l l r"},
        {"fattura", fattura(), "l r l l l r"},
    };
    for (const auto &c : cases) {
        const QByteArray rtf = RTFData(Crea_stile(c.doc.text, c.doc.sty_f, c.doc.elab, 9, 12));
        EXPECT_EQ(rtf, readBytes(goldenPath(QStringLiteral("%1.rtf").arg(QLatin1StringView(c.name)))))
            << c.name;
        QByteArrayList words;
        for (qsizetype i = rtf.indexOf("\\q"); i >= 0; i = rtf.indexOf("\\q", i + 1))
            words << rtf.mid(i + 2, 1);
        EXPECT_EQ(words.join(' '), c.alignments) << c.name;
    }
}
