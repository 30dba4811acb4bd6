#pragma once
// The two documents of the worked example bill, as the composer gives them:
// the text with its line ends of character 13, and the style map.

#include "document/crea_stile.h"
#include "support/test_files.h"

#include <initializer_list>

namespace lumetra::test {

struct Composed {
    QString text;
    StyMap sty_f;
    int elab;
};

inline StyMap styMap(std::initializer_list<std::array<int, 2>> blocks, int c0, int c1, int c2)
{
    StyMap m{};
    size_t r = 0;
    for (const auto &b : blocks) {
        m[r][0] = b[0];
        m[r][1] = b[1];
        ++r;
    }
    m[0][2] = c0;
    m[1][2] = c1;
    m[2][2] = c2;
    return m;
}

// The golden documents of the worked example, tests/data/golden/nota_e_fattura/.
inline QString goldenPath(const QString &file) { return dataPath(QStringLiteral("golden/nota_e_fattura/") + file); }

inline QString documentText(const QString &name)
{
    return QString::fromUtf8(readBytes(goldenPath(name + QStringLiteral(".txt"))));
}

inline Composed notaSpese()
{
    return {documentText(QStringLiteral("nota_spese")),
            styMap({{0, 6}, {7, 12}, {13, 14}, {15, 17}, {18, 27}, {28, 51}, {52, 53}}, 261, 1894, 1913), 0};
}

inline Composed fattura()
{
    return {documentText(QStringLiteral("fattura")),
            styMap({{0, 4}, {5, 10}, {11, 14}, {15, 17}, {15, 17}, {18, 41}, {42, 43}}, 256, 1656, 1675), 1};
}

inline StyledText styledDocument(const Composed &doc, int size1, int size2)
{
    return Crea_stile(doc.text, doc.sty_f, doc.elab, size1, size2);
}

} // namespace lumetra::test
