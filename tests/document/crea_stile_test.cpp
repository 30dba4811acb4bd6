#include "document/crea_stile.h"

#include "richtext/rtf_writer.h"
#include "support/documents.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace lumetra;
using namespace lumetra::test;

namespace {

// Each block as "<look of its characters><alignment>": s or L for size1 or size2, b bold, i italic; the
// alignment of its first paragraph, with "!" when a later one has its own. "-" for an empty block.
QString blocchi(const StyledText &st, const StyMap &sty_f, int size1, int size2)
{
    QStringList out;
    for (size_t r = 0; r < 7; ++r) {
        const auto [first, last, zone] = sty_f[r];
        QSet<QString> looks;
        for (int i = st.Paragraph(first).startPos;
             last >= first && i <= st.Paragraph(last).startPos + st.Paragraph(last).length; ++i) {
            const TextStyle s = st.styleAt(i);
            const QString size = s.size == size1 ? q("s") : s.size == size2 ? q("L") : q("?");
            looks << size + (s.bold ? q("b") : q("")) + (s.italic ? q("i") : q(""));
        }
        QString own;
        for (int p = first + 1; p <= last; ++p)
            own += st.ParagraphAlignment(p) ? q("!") : q("");
        out << (last < first ? q("-")
                             : looks.values().join(q("/")) + QString::number(st.ParagraphAlignment(first)) + own);
    }
    return out.join(q(" "));
}

// The fonts in runs, each with the position after its end.
QString fonts(const StyledText &st)
{
    QString out;
    for (int i = 0; i < st.Text().size(); ++i)
        if (i + 1 == st.Text().size() || st.styleAt(i + 1).font != st.styleAt(i).font)
            out += st.styleAt(i).font + q("<") + QString::number(i + 1) + q(" ");
    return out;
}

} // namespace

TEST(Crea_stile, BlocksOfBothKindsAtBothSizes)
{
    // Block 4 of a "Fattura" is block 3 again, and its treatment comes second: the subject at the small size.
    // The title (three lines and a blank) is bold and at the left.
    const char *const cases[][2] = {{"nota_spese", "s1 Li3 Lb2 L1 s1 sb1 L3"}, {"fattura", "s1 Li3 Lb1 s1 s1 sb1 L3"}};
    for (const auto &c : cases) {
        const Composed doc = golden(c[0]);
        for (auto [size1, size2] : {std::pair{9, 12}, std::pair{12, 16}}) {
            const StyledText st = styledDocument(doc, size1, size2);
            ASSERT_EQ(st.Text(), doc.text);
            EXPECT_EQ(blocchi(st, doc.sty_f, size1, size2), q(c[1])) << c[0] << " " << size1;
            const auto &z = doc.sty_f;
            EXPECT_EQ(fonts(st),
                      QStringLiteral("Times New Roman<%1 System<%2 Courier New<%3 Times New Roman<%4 ")
                          .arg(z[0][2])
                          .arg(z[0][2] + 1)
                          .arg(z[1][2] + 1)
                          .arg(z[2][2] + 1));
        }
        // The file a saved document gives, byte for byte.
        EXPECT_EQ(RTFData(styledDocument(doc, 9, 12)), readBytes(goldenPath(q(c[0]) + q(".rtf")))) << c[0];
    }
}

TEST(Crea_stile, EmptySummaryBlockLeavesItsAlignmentToTheSignature)
{
    const StyMap sty_f{{{0, 0, 7}, {1, 1, 9}, {2, 2, 14}, {3, 3}, {4, 4}, {5, 4}, {5, 6}}};
    EXPECT_EQ(blocchi(Crea_stile(q("S\rP\rT\rO\r \r \rF \r"), sty_f, 0, 9, 12), sty_f, 9, 12),
              q("s1 Li3 Lb2 L1 s1 - L3"));
}
