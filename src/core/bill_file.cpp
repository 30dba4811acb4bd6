// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/bill_file.h"

#include "core/encodings.h"
#include "core/text_functions.h"

namespace lumetra {

namespace {

const QString kIntestazione = QStringLiteral("***PARCELLA***");

// One line of the file, or, for a multi-line field, as many as it has: its own
// line ends are the file's too. In a one-line field a line break would shift
// every line after it, so it is written as a blank.
void scriviRiga(QByteArray &out, QString text, bool piuRighe = false)
{
    if (piuRighe) {
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
        text.replace(QLatin1Char('\n'), QLatin1Char('\r'));
    } else {
        text = unaRiga(text);
    }
    out += toMacRoman(text);
    out += '\r';
}

// Lines up to the terminator, joined by character 13, the last one dropped.
// Returns false when the data ends first: the reader would wait for it forever.
bool leggiSezione(LineReader &stream, QString &text)
{
    QString accumulo;
    for (;;) {
        if (stream.atEnd())
            return false;
        const QString line = stream.readLine();
        if (line == kSeparatore)
            break;
        accumulo += line + QChar(13);
    }
    text = accumulo.left(accumulo.size() - 1);
    return true;
}

} // namespace

QByteArray scriviParcella(const TestaParcella &testa, const Tabella &dati)
{
    QByteArray out;
    scriviRiga(out, kIntestazione);
    scriviRiga(out, testa.editField1, true);
    scriviRiga(out, kSeparatore);
    scriviRiga(out, testa.editField2, true);
    scriviRiga(out, kSeparatore);
    scriviRiga(out, testa.editQuantum);
    // The options: "0", "20" with VAT, "40" with the withholding tax, "60" with both.
    scriviRiga(out,
               testa.iva && testa.rite ? QStringLiteral("60")
                   : testa.rite        ? QStringLiteral("40")
                   : testa.iva         ? QStringLiteral("20")
                                       : QStringLiteral("0"));
    for (int r = 1; r <= dati.contatore(); ++r) {
        scriviRiga(out, dati.at(r, kColStato));
        scriviRiga(out, dati.at(r, kColValore));
        scriviRiga(out, dati.at(r, kColQuantita));
        scriviRiga(out, dati.at(r, kColNome));
    }
    return out;
}

LetturaParcella apriParcella(const QByteArray &bytes, Tabella &dati)
{
    LetturaParcella result;
    LineReader stream(fromMacRoman(bytes));
    if (!Eq(stream.readLine(), kIntestazione))
        return result;
    if (!leggiSezione(stream, result.testa.editField1) || !leggiSezione(stream, result.testa.editField2)) {
        result.esito = EsitoLettura::SenzaFine;
        return result;
    }
    result.testa.editQuantum = stream.readLine();
    // Anything but the four codes, an empty line included, means both off.
    const QString opzioni = stream.readLine();
    result.testa.iva = opzioni == QLatin1String("20") || opzioni == QLatin1String("60");
    result.testa.rite = opzioni == QLatin1String("40") || opzioni == QLatin1String("60");
    // Reading past the end gives empty lines, so a short file empties the rows it lacks.
    for (int r = 1; r <= dati.contatore(); ++r)
        for (int c : {kColStato, kColValore, kColQuantita, kColNome})
            dati.at(r, c) = stream.readLine();
    result.esito = EsitoLettura::Letta;
    return result;
}

} // namespace lumetra
