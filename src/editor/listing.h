// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The tariff listing: the rows of the chosen category and sub-category whose
// item text holds the search text, each shown in the band of the value of the
// dispute, with the ticks restored from the selection state in column 0.

#include "core/tariff.h"
#include "editor/cells.h"

#include <vector>

namespace lumetra {

struct FiltroRicerca {
    QString categoria; // PopCatA's text
    QString sottocategoria; // PopCatB's text
    QString cerca; // EditCerca's text
};

// Whether tariff row r passes the filter of the listing.
bool passaFiltro(const Tabella &dati, int r, const FiltroRicerca &filtro);

// The rows of the listing. valore is EditQuantum's text, modo PopImport's
// index.
std::vector<RigaRicerca> righeRicerca(const Tabella &dati, const FiltroRicerca &filtro, const QString &valore,
                                      int modo);

} // namespace lumetra
