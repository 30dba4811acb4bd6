// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The item lines of a document: the three fee sections and the two kinds of
// advance. Both read the bill state of the tariff table (columns 0, 53, 54,
// 55) as the last rebuild of the bill list left it; no band is looked up.

#include "core/tariff.h"

#include <QString>

namespace lumetra {

// Lines of one section, each ended by character 13, with the closing rule and
// total when more than one line was written; "" when the section is empty.
struct Sezione {
    QString testo;
    double totale = 0;
};

// The revenue stamp, set apart by Crea_onorari for a "Fattura". Starts empty
// and 0 with each document; the last "Marca da bollo" composed wins.
struct MarcaDaBollo {
    QString marcadabollo; // its finished line, with its line end
    double marcaimporto = 0; // unit amount times quantity
};

// Section 1 "SPESE: ", 2 "DIRITTI: ", 3 "ONORARI: ". valore is EditQuantum's
// text, the multiplier of a coefficient (a unit value of 1 or less). An item
// whose text (column 3) is "Marca da bollo" goes to marca instead.
Sezione Crea_onorari(const Tabella &dati, int section, const QString &valore, MarcaDaBollo &marca);

// Section 1: advances to be requested; 2: advances received, negated. Only
// rows with a negative column 0 count, and column 53 is always euro.
Sezione Crea_acconto(const Tabella &dati, int section);

} // namespace lumetra
