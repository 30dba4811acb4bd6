// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a list shows in one cell: the two lists of the main window are views
// rebuilt from these descriptions, so the rules that fill them stay testable
// without a window.

#include <QString>
#include <array>

namespace lumetra {

// CellType of a list cell.
enum TipoCella { TipoPredefinito = 0, TipoTesto = 1, TipoSpunta = 2, TipoModificabile = 3 };
// CellAlignment of a list cell.
enum AllineamentoCella { AllineaPredefinito = 0, AllineaSinistra = 1, AllineaCentro = 2, AllineaDestra = 3 };

struct Cella {
    QString testo;
    int tipo = TipoPredefinito;
    int allineamento = AllineaPredefinito;
    bool spunta = false;
    bool grassetto = false;
    bool corsivo = false;

    bool operator==(const Cella &) const = default;
};

// Columns of Listbox1 and of Listbox2.
enum ColonnaRicerca { RicRif = 0, RicVoce = 1, RicLimite = 2, RicMin = 3, RicMax = 4, RicMed = 5, RicPers = 6 };
enum ColonnaParcella { ParRif = 0, ParVoce = 1, ParCoefficiente = 2, ParQuantita = 3, ParImporto = 4, ParTotale = 5 };

// A row of Listbox1 (the tariff listing) and of Listbox2 (the bill).
using RigaRicerca = std::array<Cella, 7>;
using RigaParcella = std::array<Cella, 6>;

// The em dash shown where a band has no figure.
inline QString lineetta() { return QString(QChar(0x2014)); }

} // namespace lumetra
