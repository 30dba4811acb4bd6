// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The user's manual, istruzioni.rtf, shipped with the program. It is read from
// the disk once a run; the help window parses it each time it opens.

#include <QByteArray>
#include <QString>

namespace lumetra {

struct IstruzioniState {
    bool loaded = false; // true from the first call of istruzioni() on
    QByteArray permaText; // the raw content of the manual file
};
// The module's globals; tests reset them.
IstruzioniState &x_istruzioni();

// The manual's bytes, read at the first call. A missing folder or file gives an
// empty text, and is not looked for again in this run.
QByteArray istruzioni();

} // namespace lumetra
