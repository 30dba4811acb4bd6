// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/sections.h"

#include "core/failure.h"
#include "core/text_functions.h"
#include "document/layout.h"

#include <array>

namespace lumetra {

namespace {

const QString kMarcaDaBollo = QStringLiteral("Marca da bollo");
QString nomeVoce(const Tabella &dati, int r)
{
    const QString &nome = dati.at(r, kColNome);
    return nome.isEmpty() ? dati.at(r, kColVoce) : nome;
}

// One item line with its line end. A quantity other than 1 shows "q X", the
// unit amount and " =" in front of the total; both forms end at column 91.
QString rigaVoce(const QString &name, const QString &quantita, double u, double q)
{
    const double a = u * q;
    if (q != 1) {
        return spezzatesto(name, kLarghezzaVoce) + giustifica_testo(quantita + QStringLiteral(" X"), 6)
            + giustifica_testo(Format(u, QStringLiteral("-#.00")), 14) + QStringLiteral(" =")
            + giustifica_testo(Format(a, QStringLiteral("-#.00")) + QStringLiteral(" €"), 14) + kFineRiga;
    }
    return rigaImporto(name, {}, {}, a) + kFineRiga;
}

// The rule and the total line that close a section of more than one line.
QString chiusura(const QString &description, double total)
{
    return rigaTotale() + kFineRiga + rigaImporto(description, {}, {}, total) + kFineRiga;
}

bool categoriaDellaSezione(const QString &categoria, int section)
{
    switch (section) {
    case 1:
        return Eq(categoria, QStringLiteral("Spese"));
    case 2:
        return Eq(categoria, QStringLiteral("Diritti"));
    default:
        return Eq(categoria, QStringLiteral("Onorari giudiziali")) || Eq(categoria, QStringLiteral("Ambito penale"))
            || Eq(categoria, QStringLiteral("Ambito stragiudiziale"));
    }
}

} // namespace

Sezione Crea_onorari(const Tabella &dati, int section, const QString &valore, MarcaDaBollo &marca)
{
    static const std::array<QString, 3> etichette
        = {QStringLiteral("SPESE: "), QStringLiteral("DIRITTI: "), QStringLiteral("ONORARI: ")};
    if (section < 1 || section > 3)
        throw UnhandledFailure(QStringLiteral("sezione %1 inesistente").arg(section));

    Sezione out;
    int righe = 0;
    for (int r = 1; r <= dati.contatore(); ++r) {
        if (CDbl(dati.at(r, kColStato)) == 0 || !categoriaDellaSezione(dati.at(r, kColCategoria), section))
            continue;
        // The stamp is told by the table's text, whatever the user renamed it.
        const bool bollo = Eq(dati.at(r, kColVoce), kMarcaDaBollo);
        const double u = importoUnitario(CDbl(dati.at(r, kColValore)), CDbl(valore));
        const double q = CDbl(dati.at(r, kColQuantita));
        const QString riga = rigaVoce(nomeVoce(dati, r), dati.at(r, kColQuantita), u, q);
        if (bollo) {
            marca.marcaimporto = u * q;
            marca.marcadabollo = riga;
        } else {
            ++righe;
            out.totale += u * q;
            out.testo += riga;
        }
    }
    if (righe > 1)
        out.testo += chiusura(QStringLiteral("TOTALE ") + etichette[size_t(section - 1)], out.totale);
    return out;
}

Sezione Crea_acconto(const Tabella &dati, int section)
{
    if (section < 1 || section > 2)
        throw UnhandledFailure(QStringLiteral("sezione degli acconti %1 inesistente").arg(section));
    const auto delTipo
        = [section](const QString &voce) { return section == 1 ? accontoDaRichiedere(voce) : accontoPercepito(voce); };

    // The letter is given to a lone advance requested. For the advances received
    // every own amount is counted, advance or not: that asymmetry is kept.
    int conteggio = 0;
    for (int r = 1; r <= dati.contatore(); ++r)
        if (CDbl(dati.at(r, kColStato)) < 0 && (section == 2 || delTipo(dati.at(r, kColVoce))))
            ++conteggio;
    const QString prefisso = conteggio == 1 ? QStringLiteral("(A) ") : QString();

    Sezione out;
    int righe = 0;
    for (int r = 1; r <= dati.contatore(); ++r) {
        if (CDbl(dati.at(r, kColStato)) >= 0 || !delTipo(dati.at(r, kColVoce)))
            continue;
        ++righe;
        double u = CDbl(dati.at(r, kColValore));
        if (accontoPercepito(dati.at(r, kColVoce)))
            u = -u;
        const double q = CDbl(dati.at(r, kColQuantita));
        out.totale += u * q;
        out.testo += rigaVoce(prefisso + nomeVoce(dati, r), dati.at(r, kColQuantita), u, q);
    }
    if (righe > 1) {
        const QString titolo
            = section == 1 ? QStringLiteral("(A) TOTALE ACCONTI") : QStringLiteral("TOTALE ACCONTI A DETRARRE");
        out.testo += chiusura(titolo, out.totale);
    }
    return out;
}

} // namespace lumetra
