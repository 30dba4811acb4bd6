// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Small tariffs written in the test, and the shipped-for-tests one.

#include "core/encodings.h"
#include "core/tariff.h"
#include "core/text_functions.h"
#include "support/test_files.h"

#include <QStringList>
#include <vector>

namespace lumetra::test {

// One record per entry, each the lines of columns 1, 2, 3...
inline Tabella tabella(const std::vector<QStringList> &records)
{
    QStringList lines;
    for (const auto &r : records)
        lines << r << u("**********");
    return caricaTabella(toMacRoman(lines.join(QLatin1Char('\n'))));
}

inline Tabella tariffaPiccola() { return caricaTabella(readBytes(dataPath(u("tariffa_piccola.txt")))); }

// Rows of tariffa_piccola.txt.
constexpr int kNotifica = 1; // Spese, all zero
constexpr int kEsameStudio = 4; // Diritti: 1000 100-200, 10000 200-300, > 10000 0,02-0,03
constexpr int kEsameDocumenti = 6; // Diritti: 1000 10-20, 5000 30-60, > 5000 0,01-0,02
constexpr int kStudioTribunale = 9; // Onorari: 5200 200-400, 25900 400-800
constexpr int kAccontoRichiesto = 15;
constexpr int kAccontoPercepito = 16;

} // namespace lumetra::test
