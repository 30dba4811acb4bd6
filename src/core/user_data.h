// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// utenza.txt: the lawyer's particulars, nine lines.

#include <QByteArray>
#include <QString>
#include <array>

namespace lumetra {

using Utenza = std::array<QString, 9>;

// Reads the file's Mac Roman lines into indices 0..8; a shorter file leaves the
// rest empty. A tenth line has no place to go: an unhandled failure.
Utenza leggiUtenza(const QByteArray &bytes);
// Nine lines, Mac Roman, each ended by "\n".
QByteArray scriviUtenza(const Utenza &utenza);

// utenza.txt where the program keeps it (userFile()): whether it is there,
// and the whole file written anew, its folder made when missing.
bool esisteUtenza();
Utenza caricaUtenza();
void salvaUtenza(const Utenza &utenza);
// Saves nuova, and only then makes it the current data: after a save that
// fails, the documents go on with the data that is on the disk.
void registraUtenza(Utenza &corrente, const Utenza &nuova);

} // namespace lumetra
