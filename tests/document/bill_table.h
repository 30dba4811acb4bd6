#pragma once
// Tariff tables with a bill on them, as the last rebuild of the bill list
// leaves them: selection state, unit value, quantity and the user's name.

#include "core/tariff.h"
#include "core/text_functions.h"

#include <QString>
#include <initializer_list>
#include <ostream>

namespace lumetra::test {

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
        dati.at(r, kColCategoria) = QString::fromUtf8(v.categoria);
        dati.at(r, kColVoce) = QString::fromUtf8(v.testo);
        dati.at(r, kColStato) = QString::fromUtf8(v.stato);
        dati.at(r, kColValore) = QString::fromUtf8(v.valore);
        dati.at(r, kColQuantita) = QString::fromUtf8(v.quantita);
        dati.at(r, kColNome) = QString::fromUtf8(v.nome);
    }
    return dati;
}

// RAII switch of the number convention.
struct ConventionGuard {
    explicit ConventionGuard(NumberConvention c) : saved(numberConvention()) { setNumberConvention(c); }
    ~ConventionGuard() { setNumberConvention(saved); }
    NumberConvention saved;
};

} // namespace lumetra::test

// Readable failures: the text as UTF-8, each character 13 shown as "\r" and a
// new line, so that a composed document prints line by line.
inline void PrintTo(const QString &text, std::ostream *os)
{
    QString shown = text;
    shown.replace(QChar(13), QStringLiteral("\\r\n"));
    *os << "\n" << shown.toStdString();
}
