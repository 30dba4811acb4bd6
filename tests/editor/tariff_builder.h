#pragma once
// Small tariffs written in the test, and the shipped-for-tests one.

#include "core/encodings.h"
#include "core/tariff.h"
#include "core/text_functions.h"
#include "support/test_files.h"

#include <QStringList>
#include <vector>

// Texts in failure messages as text, not as arrays of characters.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }

namespace lumetra::test {

// One record per entry, each a list of the lines of columns 1, 2, 3...
inline Tabella tabella(const std::vector<QStringList> &records)
{
    QStringList lines;
    for (const auto &r : records) {
        lines += r;
        lines << QStringLiteral("**********");
    }
    return caricaTabella(toMacRoman(lines.join(QLatin1Char('\n'))));
}

// A record of category a / b with the bands given after the note, and the
// INDET. and IMPORT. triples behind them.
inline QStringList voce(const QString &a, const QString &b, const QString &testo, const QString &nota,
                        const QStringList &fasce)
{
    QStringList r{a, b, testo, nota};
    r += fasce;
    r << QStringLiteral("INDET.") << QStringLiteral("40") << QStringLiteral("80") << QStringLiteral("IMPORT.")
      << QStringLiteral("90") << QStringLiteral("150");
    return r;
}

inline Tabella tariffaPiccola() { return caricaTabella(readBytes(dataPath(QStringLiteral("tariffa_piccola.txt")))); }

inline QString u(const char *s) { return QString::fromUtf8(s); }

// Restores the number convention when a test is done with another.
struct ConventionGuard {
    explicit ConventionGuard(NumberConvention c) : saved(numberConvention()) { setNumberConvention(c); }
    ~ConventionGuard() { setNumberConvention(saved); }
    NumberConvention saved;
};

} // namespace lumetra::test
