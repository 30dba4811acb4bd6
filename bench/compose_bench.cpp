// SPDX-License-Identifier: GPL-3.0-or-later
// Time of Crea_testo for a bill of 50 items in a tariff of 300 rows, both kinds
// of document. Prints the median and the mean of many runs.

#include "document/composer.h"

#include <QDate>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace lumetra;

namespace {

const char *const kCategorie[] = {"Spese", "Diritti", "Onorari giudiziali", "Ambito penale", "Ambito stragiudiziale"};

Tabella billOf50()
{
    Tabella dati;
    for (int i = 0; i < 300; ++i) {
        const int r = dati.addRow();
        dati.at(r, kColCategoria) = QString::fromUtf8(kCategorie[i % 5]);
        dati.at(r, kColVoce) = QStringLiteral("Voce %1 della tariffa, con una descrizione abbastanza lunga da andare a "
                                              "capo almeno una volta (art. %1)")
                                   .arg(i);
        if (i % 6 != 0)
            continue; // 50 of the 300 rows are on the bill
        dati.at(r, kColStato) = i % 4 == 0 ? QStringLiteral("-120,5") : QStringLiteral("2");
        dati.at(r, kColValore) = i % 5 == 1 ? QStringLiteral("0,01") : QStringLiteral("120,5");
        dati.at(r, kColQuantita) = i % 3 == 0 ? QStringLiteral("2") : QStringLiteral("1");
    }
    // Advances of both kinds and a stamp, among the 50.
    dati.at(6, kColCategoria) = QStringLiteral("Acconti");
    dati.at(6, kColVoce) = QStringLiteral("Acconto da richiedere");
    dati.at(12, kColCategoria) = QStringLiteral("Acconti");
    dati.at(12, kColVoce) = QStringLiteral("Acconto già percepito, da detrarre");
    dati.at(30, kColVoce) = QStringLiteral("Marca da bollo");
    return dati;
}

} // namespace

int main()
{
    const Tabella dati = billOf50();
    Utenza utenza;
    utenza[1] = QStringLiteral("Avv. Tizio Caio");
    utenza[2] = QStringLiteral("Via Roma 1");
    utenza[3] = QStringLiteral("98100 Messina");
    utenza[4] = QStringLiteral("090 123456");
    utenza[7] = QStringLiteral("01234567890");
    utenza[8] = QStringLiteral("TZICAI70A01F158X");

    constexpr int kRuns = 2000;
    double worst = 0;
    for (int elab : {0, 1}) {
        const DatiDocumento in{.dati = dati,
                               .editQuantum = QStringLiteral("10000"),
                               .utenza = utenza,
                               .editField1 = QStringLiteral("Causa Comune di Siracusa contro Tizio"),
                               .editField2 = QStringLiteral("Spett.le\rComune di Siracusa"),
                               .iva = true,
                               .rite = true,
                               .elab = elab,
                               .oggi = QDate(2011, 11, 16)};
        std::vector<double> micros;
        micros.reserve(kRuns);
        qsizetype length = 0;
        for (int i = 0; i < kRuns; ++i) {
            const auto t0 = std::chrono::steady_clock::now();
            const Documento doc = Crea_testo(in);
            const auto t1 = std::chrono::steady_clock::now();
            length += doc.testo.size();
            micros.push_back(std::chrono::duration<double, std::micro>(t1 - t0).count());
        }
        std::sort(micros.begin(), micros.end());
        double sum = 0;
        for (double m : micros)
            sum += m;
        const double median = micros[micros.size() / 2];
        std::printf("%s, 50 items: median %.1f us, mean %.1f us, p99 %.1f us (%lld characters)\n",
                    elab == 0 ? "Nota spese" : "Fattura", median, sum / kRuns, micros[micros.size() * 99 / 100],
                    static_cast<long long>(length / kRuns));
        worst = std::max(worst, median);
    }
    return worst < 1000 ? 0 : 1;
}
