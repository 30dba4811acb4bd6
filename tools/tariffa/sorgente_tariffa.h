// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The readable source of tariffe_database.txt and its conversion to the file
// the program reads.
//
// The source is a UTF-8 table, one item per line, fields split by tabs, with a
// header line first: category, sub-category, item text, note, then the value
// bands as triples (limit, minimum, maximum) written as the file holds them.
// Blank lines are skipped; trailing empty fields are dropped.

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace lumetra {

// One record of the tariff file: its lines, column 1 first.
using RecordTariffa = QStringList;

// What would keep the record from loading and being listed safely in every
// kind of value, or would make its figures read wrong. Empty when it is sound.
//
// The bands are checked against one canonical shape: bands by amount with
// ascending limits, the first of them numeric; an open band "> N" that repeats
// the last limit and ends the scan; then "INDET." and "IMPORT." in either
// order. Figures are whole numbers or decimals with a comma, minimum not above
// maximum. Every text must be one line writable in Mac Roman.
QStringList difettiRecord(const RecordTariffa &record);

struct FileTariffe {
    QByteArray bytes; // tariffe_database.txt, empty when there are errors
    QStringList errori; // each one "riga N: ..."
};

// The Mac Roman bytes of the tariff file: one value per line, LF line ends,
// each record followed by the separator line.
FileTariffe generaFileTariffe(const QByteArray &tabellaUtf8);

} // namespace lumetra
