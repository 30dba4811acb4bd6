#pragma once
// Helpers of the document tests: tariff tables with a bill on them, as the last
// rebuild of the bill list leaves them, and composed text made easy to compare.

#include "core/tariff.h"

#include <QString>
#include <QStringList>
#include <initializer_list>

namespace lumetra::test {

inline const QString CR(QChar(13));
inline QString q(const char *s) { return QString::fromUtf8(s); }
inline QString blanks(int n) { return QString(n, QLatin1Char(' ')); }
// The last line of spezzatesto at width 50, padded to 55.
inline QString padded(const QString &line) { return line + blanks(55 - int(line.size())); }

struct Voce {
    const char *categoria;
    const char *testo;
    const char *stato = "0";
    const char *valore = "0";
    const char *quantita = "1";
    const char *nome = "";
};

inline Tabella tabella(std::initializer_list<Voce> voci)
{
    Tabella dati;
    for (const Voce &v : voci) {
        const int r = dati.addRow();
        dati.at(r, kColCategoria) = q(v.categoria);
        dati.at(r, kColVoce) = q(v.testo);
        dati.at(r, kColStato) = q(v.stato);
        dati.at(r, kColValore) = q(v.valore);
        dati.at(r, kColQuantita) = q(v.quantita);
        dati.at(r, kColNome) = q(v.nome);
    }
    return dati;
}

// The lines of a composed text with their runs of blanks made one, joined by
// "|", so that an expectation reads as the document does. The columns
// themselves are checked byte for byte by the golden documents.
inline QString righe(const QString &text)
{
    QStringList lines = text.split(CR);
    for (QString &line : lines)
        line = line.simplified();
    return lines.join(QLatin1Char('|'));
}

} // namespace lumetra::test
