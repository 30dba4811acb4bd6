#include "document/sections.h"

#include "support/documents.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

// Fee sections 1-3 through Crea_onorari, advance sections -1 (requested) and
// -2 (received) through Crea_acconto.
TEST(Sections, CategoriesUnitValuesQuantitiesStampsAndAdvances)
{
    const Voce richiesto{"Acconti", "Acconto da richiedere", "-1000", "1000"},
        percepito{"Acconti", "Acconto già percepito, da detrarre", "-500", "500"}, spesa{"Spese", "N", "-5", "5"};
    const struct {
        Tabella dati;
        int section;
        const char *testo;
        double totale;
        const char *marcadabollo = "";
        double marcaimporto = 0;
    } cases[] = {
        {tabella({{"Onorari giudiziali", "a", "1", "8"},
                  {"AMBITO PENALE", "b", "1", "16"},
                  {"Ambito stragiudiziale", "c", "1", "32"},
                  {"Acconti", "Acconto da richiedere", "-9", "9"}}),
         3, "a 8,00 €|b 16,00 €|c 32,00 €|—|TOTALE ONORARI: 56,00 €|", 56},
        // 1 or less is a coefficient of the value of the dispute.
        {tabella({{"Diritti", "a", "1", "0,01"}, {"Diritti", "b", "-1", "1"}}), 2,
         "a 100,00 €|b 10000,00 €|—|TOTALE DIRITTI: 10100,00 €|", 10100},
        {tabella({{"Spese", "a", "-5", "5", "1,0"}, {"Spese", "b", "-5", "5", "0"}, {"Spese", "c", "-5", "5", "due"}}),
         1, "a 5,00 €|b 0 X 5,00 = ,00 €|c due X 5,00 = ,00 €|—|TOTALE SPESE: 5,00 €|", 5},
        // The total is the rounded sum of unrounded amounts.
        {tabella({{"Spese", "a", "-1,004", "1,004"}, {"Spese", "b", "-1,004", "1,004"}}), 1,
         "a 1,00 €|b 1,00 €|—|TOTALE SPESE: 2,01 €|", 2.008},
        {tabella({{"Spese", "Marca da bollo", "-1,81", "1,81", "2"}, {"Spese", "a", "-10", "10"}}), 1, "a 10,00 €|", 10,
         "Marca da bollo 2 X 1,81 = 3,62 €|", 3.62},
        // The stamp is told by column 3 and shown by column 55; the last one wins.
        {tabella({{"Diritti", "Marca da bollo", "-1", "9"},
                  {"Diritti", "MARCA DA BOLLO", "-2", "2", "1", "B"},
                  {"Diritti", "x", "-3", "3", "1", "Marca da bollo"}}),
         2, "Marca da bollo 3,00 €|", 3, "B 2,00 €|", 2},
        // A lone advance requested has its letter; any own amount denies it to one received.
        {tabella({spesa, richiesto}), -1, "(A) Acconto da richiedere 1000,00 €|", 1000},
        {tabella({spesa, percepito}), -2, "Acconto già percepito, da detrarre -500,00 €|", -500},
        {tabella({richiesto, {"Acconti", "Acconto da richiedere", "-200", "200", "1", "Anticipo"}}), -1,
         "Acconto da richiedere 1000,00 €|Anticipo 200,00 €|—|(A) TOTALE ACCONTI 1200,00 €|", 1200},
        {tabella({percepito, percepito}), -2,
         "Acconto già percepito, da detrarre -500,00 €|Acconto già percepito, "
         "da detrarre -500,00 €|—|TOTALE ACCONTI A DETRARRE -1000,00 €|",
         -1000},
        {tabella({{"Acconti", "Acconto da richiedere", "-300", "300", "2"}}), -1,
         "(A) Acconto da richiedere 2 X 300,00 = 600,00 €|", 600},
        // 0,5 stays euro here; a row that is no own amount is no advance.
        {tabella({{"Acconti", "Acconto da richiedere", "-0,5", "0,5"}, {"Acconti", "Acconto da richiedere", "3"}}), -1,
         "(A) Acconto da richiedere ,50 €|", 0.5},
    };
    for (const auto &c : cases) {
        MarcaDaBollo marca;
        const Sezione s
            = c.section > 0 ? Crea_onorari(c.dati, c.section, q("10000"), marca) : Crea_acconto(c.dati, -c.section);
        EXPECT_EQ(righe(s.testo), q(c.testo));
        EXPECT_DOUBLE_EQ(s.totale, c.totale) << c.testo;
        EXPECT_EQ(righe(marca.marcadabollo), q(c.marcadabollo));
        EXPECT_DOUBLE_EQ(marca.marcaimporto, c.marcaimporto) << c.testo;
    }
}
