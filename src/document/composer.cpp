// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/composer.h"

#include "core/failure.h"
#include "core/text_functions.h"
#include "document/layout.h"
#include "document/sections.h"

namespace lumetra {

namespace {

QString riga(const QString &text) { return text + kFineRiga; }
QString oppure(const QString &text, const QString &fallback) { return text.isEmpty() ? fallback : text; }

const QString kVuota = riga(QStringLiteral(" "));

// The text committed so far and the count of its line ends. A piece, once
// committed, is never touched again: sty_f's paragraph numbers rely on it.
struct Testo {
    QString testo;
    int righe = 0;

    void commit(const QString &piece)
    {
        righe = contarighe(piece, righe);
        testo += piece;
    }
    int ultimaRiga() const { return righe - 1; }
    int ultimoCarattere() const { return Len(testo) - 1; }
};

// Block 5: the lettered lines of the summary and the arithmetic of the bill, in
// one pass. Each slot of totale is computed just before the line that shows
// it. Zero tests are exact comparisons of doubles.
void riepilogo(Testo &out, Documento &doc, const DatiDocumento &in, const std::array<QString, 4> &etichette)
{
    auto &t = doc.totale;
    std::array<QString, 10> lettere;
    int contatore = -1;
    auto lettera = [&](int slot) {
        ++contatore;
        lettere[size_t(slot)] = Chr(65 + contatore);
        return lettere[size_t(slot)];
    };
    auto base = [&](int first, int last) { return Crea_abcde(lettere, first, last); };
    const QString regola = riga(rigaTotale());
    QString suffisso;

    const Sezione daRichiedere = Crea_acconto(in.dati, 1);
    t[8] = daRichiedere.totale;
    if (!daRichiedere.testo.isEmpty()) {
        lettera(0);
        out.commit(daRichiedere.testo + kVuota);
    }

    t[0] = 0;
    t[0] += t[1];
    t[0] += t[2];
    t[0] += t[3];
    if (in.elab == 0 && t[0] != 0)
        out.commit(riga(QStringLiteral(" RIEPILOGO :")) + kVuota);

    for (int i = 1; i <= 3; ++i) {
        if (t[size_t(i)] != 0) {
            const QString x = lettera(i);
            out.commit(riga(rigaImporto(QLatin1Char('(') + x + QStringLiteral(") ") + etichette[size_t(i)], {}, {},
                                        t[size_t(i)]))
                       + kVuota);
        }
    }

    // Spese bear no refund, contribution or tax, so the bases leave slot 1 out.
    const QString baseRimborso = base(2, 3);
    t[4] = (t[2] + t[3]) * 0.125;
    if (t[4] != 0) {
        const QString x = lettera(4);
        out.commit(riga(rigaImporto(QLatin1Char('(') + x + QStringLiteral(") Rimborso spese forf. (12,50% di ")
                                        + baseRimborso + QLatin1Char(')'),
                                    Format(0.125, QStringLiteral("#.00%")),
                                    Format(t[2] + t[3], QStringLiteral("-#.00")), t[4])));
    }

    t[5] = t[4] + t[0] + t[8];
    int conteggio = 0;
    for (double v : {t[8], t[1], t[2], t[3]})
        conteggio += v != 0 ? 1 : 0;
    QString sospeso;
    if (conteggio > 1) {
        sospeso += regola + riga(rigaImporto(QStringLiteral("TOTALE (") + base(0, 4) + QLatin1Char(')'), {}, {}, t[5]))
            + kVuota;
    }

    t[6] = t[8] + t[2] + t[3] + t[4];
    const Sezione percepiti = Crea_acconto(in.dati, 2);
    t[9] = percepiti.totale;
    if (!percepiti.testo.isEmpty()) {
        // The advance's last line keeps a blank behind its amount.
        sospeso += percepiti.testo.chopped(1) + QLatin1Char(' ') + kFineRiga + kVuota;
        suffisso = QStringLiteral("-Acc.");
    }
    t[6] = t[6] + t[9];

    // With advances requested the bases are the fixed "A" and "A+B", whatever
    // lines they stand for; the test is for an amount above 0.
    const bool conRichiesti = t[8] > 0;
    if (t[6] != 0) {
        const QString x = lettera(5);
        const QString descrizione = conRichiesti
            ? QLatin1Char('(') + x + QStringLiteral(") C.P.A. (4% di A)")
            : QLatin1Char('(') + x + QStringLiteral(") C.P.A. (4% di ") + base(2, 4) + suffisso + QLatin1Char(')');
        sospeso += riga(rigaImporto(descrizione, Format(0.04, QStringLiteral("-#.00%")),
                                    Format(t[6], QStringLiteral("-#.00")), t[6] * 0.04))
            + kVuota;
    }

    t[7] = t[6] + t[6] * 0.04;
    if (t[7] != 0) {
        if (in.iva) {
            // Its letter is taken but the line always reads (F).
            lettera(6);
            const QString descrizione = conRichiesti
                ? QStringLiteral("(F) I.V.A. (21% di A+B)")
                : QStringLiteral("(F) I.V.A. (21% di ") + base(2, 5) + suffisso + QLatin1Char(')');
            sospeso += riga(rigaImporto(descrizione, Format(0.21, QStringLiteral("-#.00%")),
                                        Format(t[7], QStringLiteral("-#.00")), t[7] * 0.21));
            t[10] = t[7] + t[7] * 0.21;
        } else {
            sospeso += riga(QStringLiteral(" (Importo non imponibile ai sensi dell'art.1, c.100 L.244/2007)"));
            t[10] = t[7];
        }
    }

    if (in.elab == 1 && doc.marcaimporto != 0) {
        sospeso += kVuota + doc.marcadabollo;
        t[10] = t[10] + doc.marcaimporto;
    }
    out.commit(sospeso);
    t[10] = t[10] + t[1];

    if (t[10] != 0) {
        const QString lordo = in.rite ? QStringLiteral("TOTALE LORDO") : QStringLiteral("TOTALE NETTO A PAGARE");
        out.commit(regola + riga(rigaImporto(lordo, {}, {}, t[10])) + kVuota);
    }

    if (in.rite) {
        if (t[6] != 0) {
            const QString descrizione = conRichiesti
                ? QStringLiteral("Ritenuta d'acconto (20% di A)")
                : QStringLiteral("Ritenuta d'acconto (20% di ") + base(2, 4) + suffisso + QLatin1Char(')');
            // The lone blank without a line end shifts the next rule one column right.
            out.commit(riga(rigaImporto(descrizione, Format(0.2, QStringLiteral("#.00%")),
                                        Format(t[6], QStringLiteral("-#.00")), -t[6] * 0.2))
                       + QLatin1Char(' '));
        }
        t[11] = t[10] - t[6] * 0.2;
        QString netto;
        if (t[11] != 0)
            netto += regola;
        netto += riga(rigaImporto(QStringLiteral("TOTALE NETTO A PAGARE"), {}, {}, t[11])) + kVuota;
        out.commit(netto);
    }
}

} // namespace

QString estraiLuogo(const QString &citta)
{
    QString luogo;
    for (int i = 0; i < Len(citta); ++i) {
        const QChar c = citta[i];
        if (c == QLatin1Char(' ') && i > 0 && !luogo.isEmpty())
            break;
        if (c.unicode() >= 65 && c.unicode() <= 122)
            luogo += c;
    }
    return luogo;
}

Documento Crea_testo(const DatiDocumento &in)
{
    if (in.elab != 0 && in.elab != 1)
        throw UnhandledFailure(QStringLiteral("tipo di documento %1 inesistente").arg(in.elab));
    Documento doc;
    auto &sty = doc.sty_f;
    const Utenza &u = in.utenza;
    const QString nome = oppure(u[1], QStringLiteral("MANCA UTENTE!"));
    Testo out;

    // Block 0, the sender.
    QString pezzo = riga(nome);
    if (!u[2].isEmpty())
        pezzo += riga(u[2]);
    if (!u[3].isEmpty())
        pezzo += riga(u[3]);
    if (!u[4].isEmpty() || !u[5].isEmpty()) {
        QString telefono;
        if (!u[4].isEmpty())
            telefono += QStringLiteral("Tel.: ") + u[4];
        if (!u[4].isEmpty() && !u[5].isEmpty())
            telefono += QStringLiteral(" / ");
        if (!u[5].isEmpty())
            telefono += QStringLiteral("Fax.: ") + u[5];
        pezzo += riga(telefono);
    }
    if (!u[6].isEmpty())
        pezzo += riga(QStringLiteral("E-mail: ") + u[6]);
    if (!u[7].isEmpty() && in.elab == 0)
        pezzo += riga(QStringLiteral("P.IVA.: ") + u[7]);
    if (!u[8].isEmpty() && in.elab == 0)
        pezzo += riga(QStringLiteral("C.Fiscale.: ") + u[8]);
    pezzo += kVuota;
    sty[0][0] = 0;
    out.commit(pezzo);
    sty[0][1] = out.ultimaRiga();

    // Block 1, place, date and client.
    const QString luogo = estraiLuogo(u[3]);
    out.commit(riga(oppure(luogo, QStringLiteral("MANCA LUOGO!")))
               + riga(QStringLiteral("Lì ") + in.oggi.toString(QStringLiteral("dd/MM/yy"))) + kVuota
               + riga(oppure(in.editField2, QStringLiteral("MANCA ASSISTITO!"))) + kVuota);
    sty[1][0] = sty[0][1] + 1;
    sty[1][1] = out.ultimaRiga();

    // Block 2, the title. The invoice number stays XX for the user to fill in.
    std::array<QString, 4> etichette
        = {QStringLiteral("NOTA SPESE - COMPETENZE"), QStringLiteral("FATTURA N. XX/") + Str(in.oggi.year())};
    pezzo = riga(etichette[size_t(in.elab)]);
    if (in.elab == 1)
        pezzo += riga(QStringLiteral("P.IVA.: ") + u[7]) + riga(QStringLiteral("C.Fiscale.: ") + u[8]);
    out.commit(pezzo + kVuota);
    sty[2][0] = sty[1][1] + 1;
    sty[2][1] = out.ultimaRiga();

    // Block 3, the subject and the value, always shown, even when empty.
    out.commit(riga(oppure(in.editField1, QStringLiteral("MANCA OGGETTO!")))
               + riga(QStringLiteral("VALORE DELLA CONTROVERSIA: ") + in.editQuantum + QStringLiteral(" €")) + kVuota);
    sty[3][0] = sty[2][1] + 1;
    sty[3][1] = out.ultimaRiga();
    sty[0][2] = out.ultimoCarattere();

    // Block 4, the item sections. A "Fattura" composes them for their sums and
    // the stamp, drops the text, and its block 4 is block 3 once more.
    etichette[1] = QStringLiteral("SPESE: ");
    etichette[2] = QStringLiteral("DIRITTI: ");
    etichette[3] = QStringLiteral("ONORARI: ");
    MarcaDaBollo marca;
    for (int s = 1; s <= 3; ++s) {
        const Sezione sezione = Crea_onorari(in.dati, s, in.editQuantum, marca);
        doc.totale[size_t(s)] = sezione.totale;
        if (in.elab == 0 && !sezione.testo.isEmpty())
            out.commit(kVuota + riga(etichette[size_t(s)]) + sezione.testo);
    }
    doc.marcadabollo = marca.marcadabollo;
    doc.marcaimporto = marca.marcaimporto;
    if (in.elab == 0) {
        out.commit(kVuota);
        sty[4][0] = sty[3][1] + 1;
        sty[4][1] = out.ultimaRiga();
    } else {
        sty[4][0] = sty[3][0];
        sty[4][1] = sty[3][1];
    }

    // Block 5, the summary.
    sty[5][0] = sty[4][1] + 1;
    riepilogo(out, doc, in, etichette);
    sty[5][1] = out.ultimaRiga();
    sty[1][2] = out.ultimoCarattere();

    // Block 6, the signature; the name has a blank behind it here.
    out.commit(kVuota + riga(nome + QLatin1Char(' ')));
    sty[6][0] = sty[5][1] + 1;
    sty[6][1] = out.ultimaRiga();
    sty[2][2] = out.ultimoCarattere();

    doc.testo = std::move(out.testo);
    return doc;
}

} // namespace lumetra
