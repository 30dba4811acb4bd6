// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bill.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

// A rebuild of the bill list, as the window makes it.
VistaParcella ricostruita(Tabella &dati, const char *valore, int modo)
{
    riprezza(dati, u(valore), modo);
    return vistaParcella(dati, u(valore));
}

} // namespace

TEST(BillView, NamesAndTheTotalRow)
{
    Tabella dati = tariffaPiccola();
    EXPECT_EQ(ricostruita(dati, "3000", Prestabilito).righe.at(1)[ParTotale].testo, u("0"));
    dati.at(kEsameStudio, kColStato) = u("2");
    dati.at(kNotifica, kColStato) = u("-20");
    dati.at(kNotifica, kColNome) = u("Notifiche a mezzo posta");
    const VistaParcella v = ricostruita(dati, "3000", Prestabilito);
    ASSERT_EQ(v.righe.size(), 4u);
    EXPECT_EQ(v.righe[0][ParVoce].testo + u("|") + v.righe[1][ParVoce].testo, // never with " (*)"
              u("Notifiche a mezzo posta|Esame e studio della pratica"));
    EXPECT_EQ(v.righe[3][ParTotale], (Cella{u("320"), TipoTesto, AllineaDestra, false, true}));
}

TEST(BillView, RepricingAndTheValueOfTheDispute)
{
    // row, state, quantity, value, mode, shown (coefficient|amount|total), column 53 after (it was 7). The band
    // search reads the value with Val, the amounts with CDbl; a point typed for the cents is the decimal mark to
    // both.
    const std::tuple<int, const char *, const char *, const char *, int, const char *, const char *> cases[] = {
        {kEsameDocumenti, "2", "1", "8000", Prestabilito, "0,02|160|160", "0,02"}, // max past the limit
        {kEsameDocumenti, "-1", "1", "8000", Prestabilito, "1|8000|8000", "1"}, // own 1 is a coefficient
        {kEsameDocumenti, "-1,01", "1", "8000", Prestabilito, "1|1,01|1,01", "1,01"}, // own 1,01 is euro
        {kEsameDocumenti, "1", "3", "Importante", Importante, "1|90|270", "90"}, // a word reads 0: the IMPORT. band
        {kEsameDocumenti, "2", "due", "3000", Prestabilito, "1|60|0", "60"}, // letters as quantity
        {kAccontoPercepito, "-500", "2", "3000", Prestabilito, "1|-500|-1000", "500"}, // advance received
        {kEsameDocumenti, "2", "1", "12000.50", Prestabilito, "0,02|240,01|240,01", "0,02"},
        {kEsameDocumenti, "-1.5", "1", "3000", Prestabilito, "1|1,5|1,5", "1,5"}, // euro, no coefficient
        {kEsameStudio, "3", "1", "10001", Prestabilito, "0,025|250,025|250,025", "0,025"}, // med of the open band
        {kEsameStudio, "1", "1", "Indeterminabil", Indeterminabile, "1|150|150", "150"},
        {kEsameDocumenti, "4", "2", "3000", Prestabilito, "1|7|14", "7"}, // no pick of the listing: left alone
    };
    for (const auto &[row, stato, quantita, valore, modo, shown, col53] : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(row, kColStato) = u(stato);
        dati.at(row, kColQuantita) = u(quantita);
        dati.at(row, kColValore) = u("7");
        dati.at(kStudioTribunale, kColValore) = u("7"); // off the bill: never repriced
        const VistaParcella v = ricostruita(dati, valore, modo);
        ASSERT_EQ(v.righe.size(), 3u) << stato;
        const auto &r = v.righe[0];
        EXPECT_EQ(r[ParCoefficiente].testo + u("|") + r[ParImporto].testo + u("|") + r[ParTotale].testo, u(shown))
            << stato << " " << valore;
        EXPECT_EQ(v.righe[2][ParTotale].testo + u("|") + dati.at(row, kColValore)
                      + dati.at(kStudioTribunale, kColValore),
                  r[ParTotale].testo + u("|") + u(col53) + u("7"));
    }
}

TEST(Pick, WritesStateAndUnitValueRenamesAndTakesOff)
{
    const std::tuple<int, const char *, const char *> cases[]
        = {{RicMin, "30", "1/30"}, {RicMed, "15,5", "3/15,5"}, {RicPers, "-5", "--5/-5"}, {-1, "60", "0/0"}};
    for (const auto &[casella, cell, written] : cases) {
        Tabella dati = tariffaPiccola();
        scegliVoce(dati, kEsameDocumenti, casella, u(cell));
        EXPECT_EQ(dati.at(kEsameDocumenti, kColStato) + u("/") + dati.at(kEsameDocumenti, kColValore), u(written));
    }
    // A name back to the table's text, in any letter case, empties column 55; taking off resets the quantity.
    Tabella dati = tariffaPiccola();
    rinominaVoce(dati, kEsameDocumenti, u("Mio nome"));
    rinominaVoce(dati, kEsameDocumenti, u("ESAME DEI DOCUMENTI"));
    cambiaQuantita(dati, kEsameDocumenti, u("3"));
    togliVoce(dati, kEsameDocumenti);
    EXPECT_EQ(dati.at(kEsameDocumenti, kColNome) + dati.at(kEsameDocumenti, kColQuantita), u("1"));
}

TEST(ValueWarning, EveryThousandsGroupingAReaderSees)
{
    // value as the field holds it (a typed comma is a point there), the band's figure and what to type; "" when
    // there is no warning
    const std::pair<const char *, const char *> cases[] = {
        {"150.000", "150,00|150000"},
        {"25.000.50", "25,00|25000,50"}, // "25.000,50" typed: both readings are 25
        {"1.200.000", "1,20|1200000"},
        {"1.225", "1,23|1225"},
        {"1.000.5x", "1,00|1000,5"}, // whatever follows the cents
        {"1,5", "1,00|1,5"}, // no grouping, but the two readings differ
        {"150000", ""},
        {"25000.50", ""},
        {"12000.5", ""},
        {"1.5", ""},
        {"1.2345", ""}, // four digits: a decimal, not a group
        {"0.035", ""}, // a group never begins with 0
        {"1.2.3", ""},
        {"", ""},
        {"Importante", ""},
    };
    for (const auto &[valore, atteso] : cases) {
        QString expected;
        if (*atteso) {
            const QStringList parts = u(atteso).split(QLatin1Char('|'));
            expected = u("Attenzione: fascia di %1 €.\nPer %2 € scrivere %2, senza punti.").arg(parts[0], parts[1]);
        }
        EXPECT_EQ(avvisoValore(u(valore)), expected) << valore;
    }
    // The warning changes no money: the band is still Val's (25), and so is the amount of a coefficient.
    Tabella dati = tariffaPiccola();
    dati.at(kEsameStudio, kColStato) = u("1");
    riprezza(dati, u("25.000.50"), Prestabilito);
    EXPECT_EQ(vistaParcella(dati, u("25.000.50")).righe[0][ParImporto].testo, u("100"));
}
