// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bill.h"

#include "core/text_functions.h"

#include <QRegularExpression>

namespace lumetra {

namespace {

Cella cella(const QString &t, int tipo, int allineamento)
{
    Cella c;
    c.testo = t;
    c.tipo = tipo;
    c.allineamento = allineamento;
    return c;
}

bool fuoriParcella(const QString &stato)
{
    // Nearly every row is "0": spare the number reading for them.
    return (stato.size() == 1 && stato.at(0) == QLatin1Char('0')) || CDbl(stato) == 0;
}

} // namespace

void riprezza(Tabella &dati, const QString &valore, int modo)
{
    const double q = Val(valore);
    for (int r = 1; r <= dati.contatore(); ++r) {
        if (fuoriParcella(dati.at(r, kColStato)))
            continue;
        const double m = CDbl(dati.at(r, kColStato));
        const int c = cerca_scaglione(dati, r, q, modo);
        QString &unitario = dati.at(r, kColValore);
        if (m < 0)
            unitario = CStr(-m);
        else if (m == 1)
            unitario = dati.at(r, c + 1);
        else if (m == 2)
            unitario = dati.at(r, c + 2);
        else if (m == 3)
            unitario = CStr(mediaFascia(CDbl(dati.at(r, c + 1)), CDbl(dati.at(r, c + 2))));
    }
}

VistaParcella vistaParcella(const Tabella &dati, const QString &valore)
{
    VistaParcella vista;
    const double valoreImporti = CDbl(valore);
    for (int r = 1; r <= dati.contatore(); ++r) {
        if (fuoriParcella(dati.at(r, kColStato)))
            continue;
        RigaParcella row;
        row[ParRif] = cella(Str(r), TipoTesto, AllineaCentro);
        const QString &nome = dati.at(r, kColNome);
        row[ParVoce] = cella(nome.isEmpty() ? dati.at(r, kColVoce) : nome, TipoModificabile, AllineaPredefinito);
        row[ParQuantita] = cella(dati.at(r, kColQuantita), TipoModificabile, AllineaCentro);
        row[ParQuantita].grassetto = true;
        row[ParQuantita].corsivo = true;

        const QString &unitario = dati.at(r, kColValore);
        const double u = CDbl(unitario);
        double a = importoUnitario(u, valoreImporti);
        row[ParCoefficiente] = cella(eCoefficiente(u) ? unitario : QStringLiteral("1"), TipoTesto, AllineaCentro);
        if (accontoPercepito(dati.at(r, kColVoce)))
            a = -a;
        row[ParImporto] = cella(CStr(a), TipoTesto, AllineaDestra);

        const double t = a * CDbl(dati.at(r, kColQuantita));
        vista.totale += t;
        row[ParTotale] = cella(CStr(t), TipoSpunta, AllineaDestra);
        row[ParTotale].spunta = true;
        vista.righe.push_back(std::move(row));
    }
    vista.righe.emplace_back();
    RigaParcella somma;
    somma[ParImporto] = cella(QStringLiteral("TOTALE:"), TipoTesto, AllineaDestra);
    somma[ParTotale] = cella(CStr(vista.totale), TipoTesto, AllineaDestra);
    somma[ParTotale].grassetto = true;
    vista.righe.push_back(std::move(somma));
    return vista;
}

void scegliVoce(Tabella &dati, int r, int casella, const QString &testoCella)
{
    QString &stato = dati.at(r, kColStato);
    QString &unitario = dati.at(r, kColValore);
    switch (casella) {
    case RicMin:
        stato = QStringLiteral("1");
        break;
    case RicMax:
        stato = QStringLiteral("2");
        break;
    case RicMed:
        stato = QStringLiteral("3");
        break;
    case RicPers:
        stato = QLatin1Char('-') + testoCella;
        break;
    default:
        stato = QStringLiteral("0");
        unitario = QStringLiteral("0");
        return;
    }
    unitario = testoCella;
}

void rinominaVoce(Tabella &dati, int i, const QString &nome)
{
    dati.at(i, kColNome) = Eq(nome, dati.at(i, kColVoce)) ? QString() : nome;
}

void cambiaQuantita(Tabella &dati, int i, const QString &quantita) { dati.at(i, kColQuantita) = quantita; }

void togliVoce(Tabella &dati, int i)
{
    dati.at(i, kColStato) = QStringLiteral("0");
    dati.at(i, kColValore) = QStringLiteral("0");
    dati.at(i, kColQuantita) = QStringLiteral("1");
}

QString testoNota(const Tabella &dati, int i, const QString &voce)
{
    const QString &nota = dati.at(i, kColNota);
    if (nota.isEmpty())
        return voce;
    return voce + QChar(13) + QStringLiteral("* ") + nota;
}

namespace {

// The figure a reader sees in a value that begins with a thousands grouping
// (one to three digits, the first not 0, then groups of a point and exactly
// three digits), whatever follows it: the digits without their points, and the
// cents that a further point brings ("25.000.50" is what the field makes of
// "25.000,50"). Empty when the value begins with no grouping.
QString cifraRaggruppata(const QString &valore)
{
    const NumberConvention &n = numberConvention();
    if (n.group != QLatin1Char('.'))
        return {};
    static const QRegularExpression gruppi(QStringLiteral("^\\s*([1-9]\\d{0,2}(?:\\.\\d{3})+)(?!\\d)(?:\\.(\\d+))?"));
    const QRegularExpressionMatch m = gruppi.match(valore);
    if (!m.hasMatch())
        return {};
    QString cifra = m.captured(1).remove(QLatin1Char('.'));
    if (m.hasCaptured(2))
        cifra += n.decimal + m.captured(2);
    return cifra;
}

} // namespace

QString avvisoValore(const QString &valore)
{
    const double fascia = Val(valore);
    const double importi = CDbl(valore);
    QString inteso = cifraRaggruppata(valore);
    if (inteso.isEmpty() && fascia == importi)
        return {};
    // Without a grouping, what the user most likely meant: the reading that is not 0.
    if (inteso.isEmpty())
        inteso = CStr(importi != 0 ? importi : fascia);
    QString euro = Format(fascia, QStringLiteral("-#.00"));
    if (euro.startsWith(numberConvention().decimal))
        euro.prepend(QLatin1Char('0'));
    return QStringLiteral("Attenzione: fascia di %1 €.\nPer %2 € scrivere %2, senza punti.").arg(euro, inteso);
}

int rigaTariffa(const QString &rif) { return toInteger(Val(rif)); }

} // namespace lumetra
