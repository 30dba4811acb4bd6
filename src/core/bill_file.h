// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The bill document (".qX9"): the head of the bill, the two options, and
// columns 0, 53, 54, 55 of every tariff row, matched by position.

#include "core/tariff.h"

#include <QByteArray>
#include <QString>

namespace lumetra {

// What of the main window a bill keeps.
struct TestaParcella {
    QString editField1; // heading of the case; line ends are character 13
    QString editField2; // the client's block
    QString editQuantum;
    bool iva = false;
    bool rite = false;
};

// Registrazione_parcella's bytes: Mac Roman, every line ended by byte 13.
QByteArray scriviParcella(const TestaParcella &testa, const Tabella &dati);

enum class EsitoLettura {
    Letta, // the rows are in dati, the head is for the window
    NonParcella, // first line is not "***PARCELLA***": nothing was touched
    SenzaFine, // a heading or client section has no terminator: nothing was touched
};

struct LetturaParcella {
    EsitoLettura esito = EsitoLettura::NonParcella;
    TestaParcella testa;
};

// AprifileqXR9 without the window, the one way a bill is opened: when the bytes
// are a bill, columns 0, 53, 54, 55 of every row of dati take the file's rows
// by position (empty past the end of the file; a longer file's tail is not
// read), and the head comes back for the window's fields.
LetturaParcella apriParcella(const QByteArray &bytes, Tabella &dati);

} // namespace lumetra
