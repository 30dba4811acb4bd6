#include "document/composer.h"

#include "core/bill_file.h"
#include "support/documents.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

Documento componi(const Tabella &dati, int elab, bool iva = true, bool rite = true)
{
    const Utenza utenza{{{}, q("Avv. N"), {}, q("00100 Roma"), {}, {}, {}, q("IVA"), q("CF")}};
    return Crea_testo({dati, q("10000"), utenza, q("Causa"), q("Spett.le"), iva, rite, elab, {2011, 11, 16}});
}

} // namespace

TEST(CreaTesto, GoldenDocumentsByteForByte)
{
    Tabella dati = caricaTabella(readBytes(goldenPath(q("tariffe_database.txt"))));
    const LetturaParcella bill = apriParcella(readBytes(goldenPath(q("parcella.qX9"))), dati);
    ASSERT_EQ(bill.esito, EsitoLettura::Letta);
    const TestaParcella &t = bill.testa;
    const Utenza utenza = leggiUtenza(readBytes(goldenPath(q("utenza.txt"))));
    for (const char *name : {"nota_spese", "fattura"}) {
        const Composed expected = golden(name);
        const Documento doc = Crea_testo(
            {dati, t.editQuantum, utenza, t.editField1, t.editField2, t.iva, t.rite, expected.elab, {2011, 11, 16}});
        EXPECT_EQ(doc.testo, expected.text) << name;
        EXPECT_EQ(doc.sty_f, expected.sty_f) << name;
    }
}

TEST(CreaTesto, TotalsOfTheWorkedExampleInTheirOrder)
{
    const Tabella dati = tabella({{"Spese", "Notifica", "-50", "50", "2"},
                                  {"Diritti", "Esame", "1", "200"},
                                  {"Onorari giudiziali", "Studio", "2", "800"},
                                  {"Acconti", "Acconto già percepito, da detrarre", "-500", "500"}});
    for (bool iva : {true, false}) {
        const std::array<double, 16> expected
            = {1100, 100, 200, 800, 125, 1225, 625, 650, 0, -500, iva ? 886.5 : 750, iva ? 761.5 : 625};
        const Documento doc = componi(dati, 0, iva);
        for (size_t i = 0; i < 16; ++i)
            EXPECT_NEAR(doc.totale[i], expected[i], 1e-9) << "iva " << iva << ", slot " << i;
    }
}

// The summary block: its lines, letters and bases.
TEST(CreaTesto, SummaryLinesLettersAndBases)
{
    const Voce diritti{"Diritti", "Esame", "1", "200"}, spese{"Spese", "Notifica", "1", "100"};
    // An advance received of amount m, given as "-m".
    const auto percepito = [](const char *m) {
        return Voce{"Acconti", "Acconto già percepito, da detrarre", m, m + 1};
    };
    const char *const dirittiRimborsoCpa = "(A) DIRITTI: 200,00 €||(B) Rimborso spese forf. (12,50% di A) 12,50% "
                                           "200,00 25,00 €|(C) C.P.A. (4% di A+B) 4,00% 225,00 9,00 €||";
    const struct {
        Tabella dati;
        int elab;
        bool iva, rite;
        QString block5;
    } cases[] = {
        {tabella({}), 0, true, true, q("TOTALE NETTO A PAGARE ,00 €|")},
        {tabella({spese}), 0, true, true,
         q("RIEPILOGO :||(A) SPESE: 100,00 €||—|TOTALE LORDO 100,00 €||—|TOTALE NETTO A PAGARE 100,00 €|")},
        {tabella({diritti}), 1, true, true,
         q(dirittiRimborsoCpa)
             + q("(F) I.V.A. (21% di A+B+C) 21,00% 234,00 49,14 €|—|TOTALE LORDO 283,14 €||"
                 "Ritenuta d'acconto (20% di A+B) 20,00% 225,00 -45,00 €|—|TOTALE NETTO A PAGARE 238,14 €|")},
        {tabella({diritti}), 1, false, true,
         q(dirittiRimborsoCpa)
             + q("(Importo non imponibile ai sensi dell'art.1, c.100 L.244/2007)|—|TOTALE LORDO 234,00 €||"
                 "Ritenuta d'acconto (20% di A+B) 20,00% 225,00 -45,00 €|—|TOTALE NETTO A PAGARE 189,00 €|")},
        // An advance received equal to the base: no taxes, nothing withheld.
        {tabella({diritti, percepito("-225")}), 1, true, true,
         q("(A) DIRITTI: 200,00 €||(B) Rimborso spese forf. (12,50% di A) 12,50% 200,00 25,00 €|"
           "(A) Acconto già percepito, da detrarre -225,00 €||TOTALE NETTO A PAGARE ,00 €|")},
        // Over the base: taxes negative, withholding positive.
        {tabella({diritti, percepito("-325")}), 1, true, true,
         q("(A) DIRITTI: 200,00 €||(B) Rimborso spese forf. (12,50% di A) 12,50% 200,00 25,00 €|(A) Acconto già "
           "percepito, da detrarre -325,00 €||(C) C.P.A. (4% di A+B-Acc.) 4,00% -100,00 -4,00 €||(F) I.V.A. (21% "
           "di A+B+C-Acc.) 21,00% -104,00 -21,84 €|—|TOTALE LORDO -125,84 €||Ritenuta d'acconto (20% di A+B-Acc.) "
           "20,00% -100,00 20,00 €|—|TOTALE NETTO A PAGARE -105,84 €|")},
        // An advance requested comes first; its bases are A and A+B whatever the lines.
        {tabella({diritti, {"Acconti", "Acconto da richiedere", "-100", "100"}}), 0, true, false,
         q("(A) Acconto da richiedere 100,00 €||RIEPILOGO :||(B) DIRITTI: 200,00 €||(C) Rimborso spese forf. "
           "(12,50% di B) 12,50% 200,00 25,00 €|—|TOTALE (A+B+C) 325,00 €||(D) C.P.A. (4% di A) 4,00% 325,00 13,00 "
           "€||"
           "(F) I.V.A. (21% di A+B) 21,00% 338,00 70,98 €|—|TOTALE NETTO A PAGARE 408,98 €|")},
        // Two stamps on a "Fattura": the last composed, outside all bases.
        {tabella({spese, {"Spese", "Marca da bollo", "-1"}, {"Diritti", "Marca da bollo", "-2", "2", "1", "B"}}), 1,
         true, false, q("(A) SPESE: 100,00 €|||B 2,00 €|—|TOTALE NETTO A PAGARE 102,00 €|")},
    };
    for (const auto &c : cases) {
        const Documento doc = componi(c.dati, c.elab, c.iva, c.rite);
        const auto &row = doc.sty_f[5];
        EXPECT_EQ(righe(doc.testo.split(CR).mid(row[0], row[1] - row[0] + 1).join(CR)).toStdString(),
                  c.block5.toStdString());
    }
    // Without rite an empty bill has an empty summary: its last paragraph is before its first.
    const Documento empty = componi(tabella({}), 0, true, false);
    EXPECT_EQ(empty.sty_f[5][1], empty.sty_f[5][0] - 1);
    EXPECT_EQ(empty.totale, (std::array<double, 16>{}));
}

TEST(CreaTesto, MissingUserDataIsMarked)
{
    const Utenza sparse{{{}, {}, {}, q("00100"), q("1"), q("2"), q("m")}};
    const Documento doc = Crea_testo({tabella({}), {}, sparse, {}, {}, true, false, 1, {2009, 1, 5}});
    EXPECT_EQ(
        righe(doc.testo),
        q("MANCA UTENTE!|00100|Tel.: 1 / Fax.: 2|E-mail: m||MANCA LUOGO!|Lì 05/01/09||MANCA ASSISTITO!||"
          "FATTURA N. XX/2009|P.IVA.:|C.Fiscale.:||MANCA OGGETTO!|VALORE DELLA CONTROVERSIA: €|||MANCA UTENTE!|"));
}

TEST(CreaTesto, PlaceIsScannedOutOfTheTown)
{
    const char *const cases[][2]
        = {{"Città di Castello", "Citt"}, {"00100", ""},    {" 00100  Roma Nord", "Roma"}, {"Roma-Nord", "RomaNord"},
           {"[Roma]_^`", "[Roma]_^`"},    {"Az{|}~@", "Az"}};
    for (const auto &c : cases)
        EXPECT_EQ(estraiLuogo(q(c[0])), q(c[1])) << c[0];
}
