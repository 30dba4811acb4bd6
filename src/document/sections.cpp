#include "document/sections.h"

#include "core/failure.h"
#include "core/text_functions.h"
#include "document/layout.h"

#include <array>

namespace lumetra {

namespace {

const QString kMarcaDaBollo = QStringLiteral("Marca da bollo");
const QString kAccontoDaRichiedere = QStringLiteral("Acconto da richiedere");
const QString kAccontoPercepito = QStringLiteral("Acconto già percepito, da detrarre");

bool iniziaCon(const QString &text, const QString &head) { return Eq(Left(text, Len(head)), head); }

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
    return riga_importo(name, {}, {}, a) + kFineRiga;
}

// The rule and the total line that close a section of more than one line.
QString chiusura(const QString &description, double total)
{
    return riga_totale() + kFineRiga + riga_importo(description, {}, {}, total) + kFineRiga;
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
        double u = CDbl(dati.at(r, kColValore));
        if (u <= 1)
            u *= CDbl(valore);
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
    const QString &tipo = section == 1 ? kAccontoDaRichiedere : kAccontoPercepito;

    // The letter is given to a lone advance requested. For the advances received
    // every own amount is counted, advance or not: that asymmetry is kept.
    int conteggio = 0;
    for (int r = 1; r <= dati.contatore(); ++r)
        if (CDbl(dati.at(r, kColStato)) < 0 && (section == 2 || iniziaCon(dati.at(r, kColVoce), tipo)))
            ++conteggio;
    const QString prefisso = conteggio == 1 ? QStringLiteral("(A) ") : QString();

    Sezione out;
    int righe = 0;
    for (int r = 1; r <= dati.contatore(); ++r) {
        if (CDbl(dati.at(r, kColStato)) >= 0 || !iniziaCon(dati.at(r, kColVoce), tipo))
            continue;
        ++righe;
        double u = CDbl(dati.at(r, kColValore));
        if (iniziaCon(dati.at(r, kColVoce), kAccontoPercepito))
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
