// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The bill: the tariff rows whose selection state is not zero, priced in the
// band of the value of the dispute; the pick that puts a row on it; and the
// edits the bill list allows.

#include "core/tariff.h"
#include "editor/cells.h"

#include <vector>

namespace lumetra {

struct VistaParcella {
    // One row per tariff row on the bill, then two rows, the second with "TOTALE:".
    std::vector<RigaParcella> righe;
    // totale(0): the sum of the "Totale" column.
    double totale = 0;
};

// Repricing: column 53 of every row on the bill, from its selection state, in
// the band of the value of the dispute. "Min", "Max" and "Med" follow the band;
// an own amount stays; a state of any other number leaves column 53 alone.
// valore is EditQuantum's text, modo PopImport's index. Every rebuild of the
// bill list runs it first.
void riprezza(Tabella &dati, const QString &valore, int modo);

// The bill list, from the unit values the last repricing wrote; valore, read
// with CDbl, multiplies the coefficients.
VistaParcella vistaParcella(const Tabella &dati, const QString &valore);

// The pick: the box of Listbox1 ticked after the toggle (RicMin, RicMax,
// RicMed, RicPers, or -1 for none) and that cell's text become columns 0 and
// 53 of tariff row r.
void scegliVoce(Tabella &dati, int r, int casella, const QString &testoCella);

// Edits of a bill row, on tariff row i.
// "Voce": a name equal to the table's, in any letter case, clears column 55.
void rinominaVoce(Tabella &dati, int i, const QString &nome);
// "Quantità": stored as typed.
void cambiaQuantita(Tabella &dati, int i, const QString &quantita);
// "Totale" unticked: off the bill, quantity back to 1, the name kept.
void togliVoce(Tabella &dati, int i);

// What EditNota shows for a click on a list row: the row's "Voce" text, and
// the note of tariff row i on a second line.
QString testoNota(const Tabella &dati, int i, const QString &voce);

// The warning beside the value of the dispute while it holds a thousands
// grouping, whatever follows it ("150.000", "1.200.000", "25.000.50" as the
// field makes "25.000,50"), or while its two readings differ: the band is
// chosen on Val's reading, the coefficients multiply CDbl's, so "150.000" picks
// the band of 150 and bills on 150000, and "25.000.50" bills 25 in the band of
// 25. Two lines: which band, and how to write the figure. Empty otherwise.
QString avvisoValore(const QString &valore);

// The tariff row a list row refers to: the integer of Val of its cell 0.
int rigaTariffa(const QString &rif);

} // namespace lumetra
