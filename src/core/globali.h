// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The program's global state. Windows read and write it directly; the logic
// functions take what they need of it as arguments, so tests build their own.

#include "core/tariff.h"

#include <QString>
#include <array>

namespace lumetra {

struct Globali {
    bool modificato = false;
    bool consenti = false;
    QString nome_attuale;
    // The file "Registra" writes to; empty when there is none.
    QString file_attuale;
    bool iva = false;
    bool rite = false;
    Tabella dati;
    std::array<QString, 9> utenza;
    std::array<double, 16> totale{};
    std::array<QString, 4> acconto_calcolato;
    int elab = 0;

    int dati_contatore() const { return dati.contatore(); }
};

// The one instance of the running program.
Globali &globali();

} // namespace lumetra
