#pragma once
// The bill document (".qX9"): the head of the bill, the two options, and
// columns 0, 53, 54, 55 of every tariff row, matched by position.

#include "core/tariff.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

namespace lumetra {

// What of the main window a bill keeps.
struct TestaParcella {
    QString editField1; // heading of the case; line ends are character 13
    QString editField2; // the client's block
    QString editQuantum;
    bool iva = false;
    bool rite = false;
};

// The options line: "0", "20" (iva), "40" (rite), "60" (both).
QString codiceOpzioni(bool iva, bool rite);
void leggiCodiceOpzioni(const QString &code, bool &iva, bool &rite);

// Registrazione_parcella's bytes: Mac Roman, every line ended by byte 13.
QByteArray scriviParcella(const TestaParcella &testa, const Tabella &dati);

enum class EsitoLettura {
    Letta, // head read, rows stored into dati
    NonParcella, // first line is not "***PARCELLA***": nothing was touched
    SenzaFine, // a heading or client section has no terminator
};

// Columns 0, 53, 54, 55 of one tariff row.
using StatoRiga = std::array<QString, 4>;

struct LetturaParcella {
    EsitoLettura esito = EsitoLettura::NonParcella;
    TestaParcella testa;
    // One entry per row of the running table, empty past the end of the file;
    // a longer file's tail is not read.
    std::vector<StatoRiga> righe;
};

// AprifileqXR9's reading against a table of `righe` rows. The caller puts the
// head into the window first and then the rows into dati (applicaRighe), in the
// order the program reads them.
LetturaParcella leggiParcella(const QByteArray &bytes, int righe);
void applicaRighe(const std::vector<StatoRiga> &righe, Tabella &dati);

} // namespace lumetra
