#include "core/bill_file.h"

#include "core/encodings.h"
#include "core/text_functions.h"

#include <algorithm>

namespace lumetra {

namespace {

const QString kIntestazione = QStringLiteral("***PARCELLA***");
const QString kSeparatore = QStringLiteral("**********");

void scriviRiga(QByteArray &out, const QString &text)
{
    QString line = text;
    // A field's own line ends are the file's line end too.
    line.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
    line.replace(QLatin1Char('\n'), QLatin1Char('\r'));
    out += toMacRoman(line);
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

QString codiceOpzioni(bool iva, bool rite)
{
    QString code = QStringLiteral("0");
    if (iva)
        code = QStringLiteral("20");
    if (rite)
        code = QStringLiteral("40");
    if (iva && rite)
        code = QStringLiteral("60");
    return code;
}

void leggiCodiceOpzioni(const QString &code, bool &iva, bool &rite)
{
    iva = false;
    rite = false;
    if (code == QLatin1String("20") || code == QLatin1String("60"))
        iva = true;
    if (code == QLatin1String("40") || code == QLatin1String("60"))
        rite = true;
}

QByteArray scriviParcella(const TestaParcella &testa, const Tabella &dati)
{
    QByteArray out;
    scriviRiga(out, kIntestazione);
    scriviRiga(out, testa.editField1);
    scriviRiga(out, kSeparatore);
    scriviRiga(out, testa.editField2);
    scriviRiga(out, kSeparatore);
    scriviRiga(out, testa.editQuantum);
    scriviRiga(out, codiceOpzioni(testa.iva, testa.rite));
    for (int r = 1; r <= dati.contatore(); ++r) {
        scriviRiga(out, dati.at(r, kColStato));
        scriviRiga(out, dati.at(r, kColValore));
        scriviRiga(out, dati.at(r, kColQuantita));
        scriviRiga(out, dati.at(r, kColNome));
    }
    return out;
}

LetturaParcella leggiParcella(const QByteArray &bytes, int righe)
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
    leggiCodiceOpzioni(stream.readLine(), result.testa.iva, result.testa.rite);
    result.righe.resize(size_t(std::max(0, righe)));
    for (StatoRiga &riga : result.righe)
        for (QString &cell : riga)
            cell = stream.readLine();
    result.esito = EsitoLettura::Letta;
    return result;
}

void applicaRighe(const std::vector<StatoRiga> &righe, Tabella &dati)
{
    for (int r = 1; r <= dati.contatore() && r <= int(righe.size()); ++r) {
        const StatoRiga &riga = righe[size_t(r - 1)];
        dati.at(r, kColStato) = riga[0];
        dati.at(r, kColValore) = riga[1];
        dati.at(r, kColQuantita) = riga[2];
        dati.at(r, kColNome) = riga[3];
    }
}

} // namespace lumetra
