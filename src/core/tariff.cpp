// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/tariff.h"

#include "core/encodings.h"
#include "core/failure.h"
#include "core/text_functions.h"

namespace lumetra {

void preimposta(RigaTariffa &row)
{
    row[kColStato] = QStringLiteral("0");
    row[kColValore] = QStringLiteral("0");
    row[kColQuantita] = QStringLiteral("1");
    row[kColNome] = QString();
}

Tabella::Tabella() : m_rows(1) {}

const QString &Tabella::at(int row, int col) const
{
    if (row < 0 || row >= int(m_rows.size()) || col < 0 || col >= kColonne)
        throw UnhandledFailure(
            QStringLiteral("indice fuori dai limiti della tabella tariffe (riga %1, colonna %2)").arg(row).arg(col));
    return m_rows[size_t(row)][size_t(col)];
}

QString &Tabella::at(int row, int col)
{
    return const_cast<QString &>(static_cast<const Tabella *>(this)->at(row, col));
}

int Tabella::addRow()
{
    m_rows.emplace_back();
    preimposta(m_rows.back());
    return contatore();
}

void Tabella::azzera()
{
    for (size_t r = 1; r < m_rows.size(); ++r)
        preimposta(m_rows[r]);
}

Tabella caricaTabella(const QByteArray &bytes)
{
    Tabella dati;
    LineReader stream(fromMacRoman(bytes));
    int colonna = 0;
    while (!stream.atEnd()) {
        if (colonna == 0)
            dati.addRow();
        const QString line = stream.readLine();
        if (line != kSeparatore) {
            ++colonna;
            if (colonna >= kColonne)
                throw UnhandledFailure(
                    QStringLiteral("la voce %1 del file delle tariffe ha più di 55 righe").arg(dati.contatore()));
            dati.at(dati.contatore(), colonna) = line;
        } else {
            colonna = 0;
        }
    }
    return dati;
}

int cerca_scaglione(const Tabella &dati, int r, double q, int mode)
{
    int c = kColPrimaFascia;
    switch (mode) {
    case Prestabilito: {
        double limite = CDbl(dati.at(r, c));
        while (limite < q) {
            c += 3;
            const QString &s = dati.at(r, c);
            if (Left(s, 2) == QLatin1String("> "))
                limite = q + 1000;
            else
                limite = CDbl(s);
        }
        break;
    }
    case Indeterminabile:
        do {
            c += 3;
        } while (!Eq(dati.at(r, c), QStringLiteral("INDET.")));
        break;
    case Importante:
        do {
            c += 3;
        } while (!Eq(dati.at(r, c), QStringLiteral("IMPORT.")));
        break;
    default:
        break;
    }
    return c;
}

bool accontoDaRichiedere(const QString &voce)
{
    static const QString testo = QStringLiteral("Acconto da richiedere");
    return Eq(Left(voce, Len(testo)), testo);
}

bool accontoPercepito(const QString &voce)
{
    static const QString testo = QStringLiteral("Acconto già percepito, da detrarre");
    return Eq(Left(voce, Len(testo)), testo);
}

} // namespace lumetra
