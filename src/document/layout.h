// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The column layout of a composed document. Money lines are set for a
// monospaced font by character count, 91 columns: 55 for the description
// (spezzatesto at width 50), 6 for a rate or a quantity, 14 for a base or a unit
// amount, 16 for the amount and " €". Padding, never tabs.

#include <QString>
#include <span>

namespace lumetra {

// The line end of composed text: one paragraph per character 13.
inline constexpr QChar kFineRiga = QChar(13);
// Width given to spezzatesto by every caller; its last line is padded to 55.
inline constexpr int kLarghezzaVoce = 50;

// Breaks text into lines at blanks and ",.();:-" with the limits on a fixed
// grid (width, 2 x width, ...), a blank in front of every line, and pads the
// last line to width + 5. Lines are joined by character 13, none after the last.
QString spezzatesto(const QString &text, int width);
// Leading blanks up to width; a longer text comes back whole.
QString giustifica_testo(const QString &text, int width);
// count plus the number of characters 13 in text.
int contarighe(const QString &text, int count);
// The non-empty entries from first to last, both included, joined by "+".
// An index outside the list is an unhandled failure.
QString Crea_abcde(std::span<const QString> list, int first, int last);

// 77 blanks and 14 dashes "—": the rule over a total, its dashes over the
// amount column. No line end.
QString rigaTotale();
// One money line without its line end: description, two optional fields (an
// empty field counts as absent) and the amount through Format "-#.00" and " €".
QString rigaImporto(const QString &description, const QString &field1, const QString &field2, double amount);

} // namespace lumetra
