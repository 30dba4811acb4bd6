// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Helpers of the document tests: the golden documents of the worked example
// (tests/data/golden/nota_e_fattura/), bills on a tariff table as the last
// rebuild of the bill list leaves them, and composed text made easy to compare.

#include "core/tariff.h"
#include "document/crea_stile.h"
#include "support/test_files.h"

#include <QStringList>
#include <initializer_list>

namespace lumetra::test {

inline const QString CR(QChar(13));

struct Voce {
    const char *categoria, *testo, *stato = "0", *valore = "0", *quantita = "1", *nome = "";
};

inline Tabella tabella(std::initializer_list<Voce> voci)
{
    Tabella dati;
    for (const Voce &v : voci) {
        const int r = dati.addRow();
        for (auto [col, text] : {std::pair{kColCategoria, v.categoria},
                                 {kColVoce, v.testo},
                                 {kColStato, v.stato},
                                 {kColValore, v.valore},
                                 {kColQuantita, v.quantita},
                                 {kColNome, v.nome}})
            dati.at(r, col) = u(text);
    }
    return dati;
}

// The lines of a composed text with their runs of blanks made one and the rule
// over a total shortened to "—", joined by "|", so that an expectation reads as
// the document does. The columns themselves are checked byte for byte by the
// golden documents.
inline QString righe(const QString &text)
{
    QStringList lines = text.split(CR);
    for (QString &line : lines)
        line = line.simplified().replace(QString(14, QChar(0x2014)), u("—"));
    return lines.join(QLatin1Char('|'));
}

inline QString goldenPath(const QString &file) { return dataPath(u("golden/nota_e_fattura/") + file); }

// A golden document, "nota_spese" or "fattura": its text, style map and kind.
struct Composed {
    QString text;
    StyMap sty_f{};
    int elab;
};

inline Composed golden(const char *name)
{
    Composed doc{QString::fromUtf8(readBytes(goldenPath(u(name) + u(".txt")))), {}, u(name) == u("fattura")};
    const QStringList numbers
        = QString::fromUtf8(readBytes(goldenPath(u(name) + u(".sty_f")))).simplified().split(QLatin1Char(' '));
    for (qsizetype i = 0; i < numbers.size(); ++i)
        doc.sty_f[size_t(i / 3)][size_t(i % 3)] = numbers[i].toInt();
    return doc;
}

inline StyledText styledDocument(const Composed &doc, int size1, int size2)
{
    return Crea_stile(doc.text, doc.sty_f, doc.elab, size1, size2);
}

} // namespace lumetra::test
