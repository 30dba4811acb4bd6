// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The program's own command line, read before Qt starts, so that --help,
// --version and a mistyped option are answered without a display and without
// a window. Qt's options (-platform, -style, -display…) pass through to Qt;
// every other argument is a document.

#include <QString>
#include <QStringList>
#include <optional>

namespace lumetra {

struct RigaDiComando {
    enum class Azione { Avvia, Aiuto, Versione, Errore };
    Azione azione = Azione::Avvia;
    QString errore; // what was wrong, for Errore
};

// Reads the arguments, the program's name first. The first of --help,
// --version or a wrong option decides.
RigaDiComando leggiRigaDiComando(const QStringList &argomenti);

QString testoAiuto();
QString testoVersione();

// What main() does first: answers --help and --version on standard output, a
// wrong option on standard error, and gives the exit status (0 or 2) when the
// program is to end there; nothing when it is to start.
std::optional<int> rispondiRigaDiComando(int argc, const char *const *argv);

} // namespace lumetra
