// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/crea_stile.h"

namespace lumetra {

namespace {

enum class Style { None, Italic, Bold, BoldOff };

struct Block {
    bool large;
    Style style;
    int alignment; // -1: 2 - elab
};

// Blocks 0 to 6: sender; place, date and client; title; subject; sections;
// summary; signature.
constexpr Block kBlocks[7] = {
    {false, Style::None, 1}, {true, Style::Italic, 3}, {true, Style::Bold, -1},   {true, Style::None, 1},
    {false, Style::None, 1}, {false, Style::Bold, 1},  {true, Style::BoldOff, 3},
};

} // namespace

StyledText Crea_stile(const QString &text, const StyMap &sty_f, int elab, int size1, int size2)
{
    StyledText st(text);

    // Zones go by character. The first stops one short of the end of block 3,
    // so that line end keeps the default font.
    const int c0 = sty_f[0][2];
    const int c1 = sty_f[1][2];
    const int c2 = sty_f[2][2];
    st.Font(0, c0, QStringLiteral("Times New Roman"));
    st.Font(c0 + 1, c1 - c0, QStringLiteral("Courier New"));
    st.Font(c1 + 1, c2 - c1, QStringLiteral("Times New Roman"));

    // In order: a "Fattura" repeats block 3 as block 4, and that second
    // treatment is the one that stays.
    for (int r = 0; r < 7; ++r) {
        const Block &b = kBlocks[r];
        const int first = sty_f[size_t(r)][0];
        const int last = sty_f[size_t(r)][1];
        int length = 0;
        for (int p = first; p <= last; ++p)
            length += st.Paragraph(p).length + 1;
        const int start = st.Paragraph(first).startPos;
        st.Size(start, length, float(b.large ? size2 : size1));
        switch (b.style) {
        case Style::Italic:
            st.Italic(start, length, true);
            break;
        case Style::Bold:
            st.Bold(start, length, true);
            break;
        case Style::BoldOff:
            st.Bold(start, length, false);
            break;
        case Style::None:
            break;
        }
        st.ParagraphAlignment(first, b.alignment < 0 ? 2 - elab : b.alignment);
    }
    return st;
}

} // namespace lumetra
