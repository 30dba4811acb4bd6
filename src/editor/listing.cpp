// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/listing.h"

#include "core/text_functions.h"

namespace lumetra {

namespace {

bool stessoTesto(const QString &a, const QString &b)
{
    // Case-blind equality needs equal lengths: the cheap test first, since
    // every row of the table passes through here at each keystroke.
    return a.size() == b.size() && Eq(a, b);
}

Cella testo(const QString &t, int allineamento)
{
    Cella c;
    c.testo = t;
    c.tipo = TipoTesto;
    c.allineamento = allineamento;
    return c;
}

// A band figure shown as a box where the band has a range.
Cella casellaFascia(const QString &t, int segno)
{
    Cella c;
    c.testo = t;
    c.tipo = TipoTesto + segno;
    c.allineamento = AllineaCentro - segno;
    return c;
}

RigaRicerca riga(const Tabella &dati, int r, double q, int modo)
{
    const int c = cerca_scaglione(dati, r, q, modo);
    const double limite = CDbl(dati.at(r, c));
    const double minimo = CDbl(dati.at(r, c + 1));
    const double massimo = CDbl(dati.at(r, c + 2));
    const double media = mediaFascia(minimo, massimo);
    const int intero = toInteger(media);

    RigaRicerca row;
    row[RicRif] = testo(Str(r), AllineaCentro);
    QString voce = dati.at(r, kColVoce);
    if (!dati.at(r, kColNota).isEmpty())
        voce += QStringLiteral(" (*)");
    row[RicVoce] = testo(voce, AllineaPredefinito);
    row[RicLimite] = testo(limite == 0 ? lineetta() : dati.at(r, c), AllineaCentro);
    const int ampiezza = Sign(massimo - minimo);
    const bool senzaIntervallo = minimo == massimo;
    row[RicMin] = casellaFascia(minimo == 0 || senzaIntervallo ? lineetta() : dati.at(r, c + 1), ampiezza);
    row[RicMax] = casellaFascia(massimo == 0 || senzaIntervallo ? lineetta() : dati.at(r, c + 2), ampiezza);
    row[RicMed] = casellaFascia(media == 0 ? lineetta() : CStr(media), Sign(media));
    Cella &pers = row[RicPers];
    pers.testo = intero != 0 ? CStr(intero) : QString();
    pers.tipo = TipoSpunta;
    pers.allineamento = AllineaSinistra;
    pers.grassetto = true;
    pers.corsivo = true;

    // The tick comes back from the selection state.
    const double s = CDbl(dati.at(r, kColStato));
    int spuntata = -1;
    if (s < 0) {
        spuntata = RicPers;
        pers.testo = CStr(-s);
    } else if (s == 1) {
        spuntata = RicMin;
    } else if (s == 2) {
        spuntata = RicMax;
    } else if (s == 3) {
        spuntata = RicMed;
    }
    if (spuntata >= 0)
        row[size_t(spuntata)].spunta = true;
    return row;
}

} // namespace

bool passaFiltro(const Tabella &dati, int r, const FiltroRicerca &filtro)
{
    if (!stessoTesto(dati.at(r, kColCategoria), filtro.categoria))
        return false;
    if (!stessoTesto(dati.at(r, kColSottocategoria), filtro.sottocategoria))
        return false;
    // A plain substring test on the item text, blanks included, case-blind.
    return filtro.cerca.isEmpty() || dati.at(r, kColVoce).contains(filtro.cerca, Qt::CaseInsensitive);
}

std::vector<RigaRicerca> righeRicerca(const Tabella &dati, const FiltroRicerca &filtro, const QString &valore, int modo)
{
    const double q = Val(valore);
    std::vector<RigaRicerca> righe;
    for (int r = 1; r <= dati.contatore(); ++r) {
        if (passaFiltro(dati, r, filtro))
            righe.push_back(riga(dati, r, q, modo));
    }
    return righe;
}

} // namespace lumetra
