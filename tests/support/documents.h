#pragma once
// The two documents of the worked example bill, as the composer gives them
// (tests/data/golden/nota_e_fattura): the text with its line ends of character
// 13, and the style map.

#include "document/crea_stile.h"
#include "support/test_files.h"

namespace lumetra::test {

struct Composed {
    QString text;
    StyMap sty_f;
    int elab;
};

inline QString goldenPath(const QString &file) { return dataPath(QStringLiteral("golden/nota_e_fattura/") + file); }

inline Composed composed(const QString &name, int elab)
{
    Composed doc{QString::fromUtf8(readBytes(goldenPath(name + QStringLiteral(".txt")))), {}, elab};
    const QStringList rows = QString::fromUtf8(readBytes(goldenPath(name + QStringLiteral(".sty_f"))))
                                 .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (qsizetype r = 0; r < rows.size() && r < qsizetype(doc.sty_f.size()); ++r) {
        const QStringList columns = rows[r].split(QLatin1Char(' '));
        for (qsizetype c = 0; c < columns.size() && c < 3; ++c)
            doc.sty_f[size_t(r)][size_t(c)] = columns[c].toInt();
    }
    return doc;
}

inline Composed notaSpese() { return composed(QStringLiteral("nota_spese"), 0); }
inline Composed fattura() { return composed(QStringLiteral("fattura"), 1); }

inline StyledText styledDocument(const Composed &doc, int size1, int size2)
{
    return Crea_stile(doc.text, doc.sty_f, doc.elab, size1, size2);
}

} // namespace lumetra::test
