// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The tariff table `dati`: rows 1..dati_contatore of 56 text columns. Columns
// 1-52 come from tariffe_database.txt; 0, 53, 54, 55 hold the state of the bill.

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

namespace lumetra {

inline constexpr int kColonne = 56; // columns 0 to 55
inline constexpr int kColStato = 0;
inline constexpr int kColCategoria = 1;
inline constexpr int kColSottocategoria = 2;
inline constexpr int kColVoce = 3;
inline constexpr int kColNota = 4;
inline constexpr int kColPrimaFascia = 5;
inline constexpr int kColValore = 53;
inline constexpr int kColQuantita = 54;
inline constexpr int kColNome = 55;

// The line that ends a record of the tariff file, and a section of a bill file.
inline const QString kSeparatore = QStringLiteral("**********");

using RigaTariffa = std::array<QString, kColonne>;

class Tabella {
public:
    Tabella();
    // Number of rows loaded (row 0 exists and is never used).
    int contatore() const { return int(m_rows.size()) - 1; }
    // Bounds-checked: a cell outside rows 0..contatore or columns 0..55 is an
    // unhandled failure.
    const QString &at(int row, int col) const;
    QString &at(int row, int col);
    // Appends a row with the pre-set bill columns ("0", "0", "1", "").
    int addRow();
    // Nuovo: every row back to the pre-sets in columns 0, 53, 54, 55.
    void azzera();

private:
    std::vector<RigaTariffa> m_rows;
};

void preimposta(RigaTariffa &row);

// carica_dati's reading of tariffe_database.txt (Mac Roman bytes).
Tabella caricaTabella(const QByteArray &bytes);

// Value modes of PopImport.
enum ModoValore { Prestabilito = 0, Indeterminabile = 1, Importante = 2 };

// The column of the current value band of row r for value q and mode m.
int cerca_scaglione(const Tabella &dati, int r, double q, int mode);

// The average of a band, half way between its minimum and maximum, unrounded.
inline double mediaFascia(double minimo, double massimo) { return (minimo + massimo) / 2; }

// A unit value above 1 is an amount in euro; 1 or below, a coefficient of the
// value of the dispute.
inline bool eCoefficiente(double unitario) { return unitario <= 1; }
// What one unit of an item bills, for a value of the dispute.
inline double importoUnitario(double unitario, double valore)
{
    return eCoefficiente(unitario) ? unitario * valore : unitario;
}

// The two advance items, known by the start of their text (column 3): an
// advance to be requested opens the calculator, one received is subtracted.
bool accontoDaRichiedere(const QString &voce);
bool accontoPercepito(const QString &voce);

} // namespace lumetra
