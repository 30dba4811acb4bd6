// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/bill_file.h"
#include "core/failure.h"
#include "document/composer.h"
#include "document/layout.h"
#include "document/sections.h"
#include "richtext/rtf_writer.h"
#include "support/documents.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

Documento componi(const Tabella &dati, int elab, bool iva = true, bool rite = true)
{
    const Utenza utenza{{{}, u("Avv. N"), {}, u("00100 Roma"), {}, {}, {}, u("IVA"), u("CF")}};
    return Crea_testo({dati, u("10000"), utenza, u("Causa"), u("Spett.le"), iva, rite, elab, {2011, 11, 16}});
}

QString rep(char c, int n) { return QString(n, QLatin1Char(c)); }
// The last line of spezzatesto at width 50, padded to 55.
QString padded(const QString &line) { return line + rep(' ', 55 - int(line.size())); }

} // namespace

// Text, style map and the RTF a saved document gets, byte for byte.
TEST(CreaTesto, GoldenDocumentsByteForByte)
{
    Tabella dati = caricaTabella(readBytes(goldenPath(u("tariffe_database.txt"))));
    const LetturaParcella bill = apriParcella(readBytes(goldenPath(u("parcella.qX9"))), dati);
    ASSERT_EQ(bill.esito, EsitoLettura::Letta);
    const TestaParcella &t = bill.testa;
    const Utenza utenza = leggiUtenza(readBytes(goldenPath(u("utenza.txt"))));
    for (const char *name : {"nota_spese", "fattura"}) {
        const Composed expected = golden(name);
        const Documento doc = Crea_testo(
            {dati, t.editQuantum, utenza, t.editField1, t.editField2, t.iva, t.rite, expected.elab, {2011, 11, 16}});
        EXPECT_EQ(doc.testo, expected.text) << name;
        EXPECT_EQ(doc.sty_f, expected.sty_f) << name;
        EXPECT_EQ(RTFData(Crea_stile(doc.testo, doc.sty_f, expected.elab, 9, 12)),
                  readBytes(goldenPath(u(name) + u(".rtf"))))
            << name;
    }
}

// The summary block: its lines, letters and bases.
TEST(CreaTesto, SummaryLinesLettersAndBases)
{
    const Voce diritti{"Diritti", "Esame", "1", "200"}, spese{"Spese", "Notifica", "1", "100"},
        acconto{"Acconti", "Acconto da richiedere", "-100,13", "100,13"}, bollo{"Spese", "Marca da bollo", "-2", "2"};
    const struct {
        Tabella dati;
        int elab;
        bool iva, rite;
        QString block5;
    } cases[] = {
        {tabella({}), 0, true, true, u("TOTALE NETTO A PAGARE ,00 €|")},
        // Without iva the fixed sentence stands where the I.V.A. line would.
        {tabella({diritti}), 1, false, true,
         u("(A) DIRITTI: 200,00 €||(B) Rimborso spese forf. (12,50% di A) 12,50% 200,00 25,00 €|(C) C.P.A. (4% di "
           "A+B) 4,00% 225,00 9,00 €||(Importo non imponibile ai sensi dell'art.1, c.100 L.244/2007)|—|TOTALE LORDO "
           "234,00 €||"
           "Ritenuta d'acconto (20% di A+B) 20,00% 225,00 -45,00 €|—|TOTALE NETTO A PAGARE 189,00 €|")},
        // An advance received equal to the base: no taxes, nothing withheld.
        {tabella({diritti, {"Acconti", "Acconto già percepito, da detrarre", "-225", "225"}}), 1, true, true,
         u("(A) DIRITTI: 200,00 €||(B) Rimborso spese forf. (12,50% di A) 12,50% 200,00 25,00 €|"
           "(A) Acconto già percepito, da detrarre -225,00 €||TOTALE NETTO A PAGARE ,00 €|")},
        // An advance to be requested: the bases are the fixed "A" and "A+B". Each total is the rounded sum of
        // the unrounded amounts: the lines as printed add up to 128,01 and 107,97 (126,01 and 105,97 without the
        // stamp, which only a "Fattura" shows and counts).
        {tabella({acconto, bollo}), 1, true, true,
         u("(A) Acconto da richiedere 100,13 €||(B) C.P.A. (4% di A) 4,00% 100,13 4,01 €||"
           "(F) I.V.A. (21% di A+B) 21,00% 104,14 21,87 €||Marca da bollo 2,00 €|—|TOTALE LORDO 128,00 €||"
           "Ritenuta d'acconto (20% di A) 20,00% 100,13 -20,03 €|—|TOTALE NETTO A PAGARE 107,98 €|")},
        {tabella({acconto, bollo}), 0, true, true,
         u("(A) Acconto da richiedere 100,13 €||(B) C.P.A. (4% di A) 4,00% 100,13 4,01 €||"
           "(F) I.V.A. (21% di A+B) 21,00% 104,14 21,87 €|—|TOTALE LORDO 126,00 €||"
           "Ritenuta d'acconto (20% di A) 20,00% 100,13 -20,03 €|—|TOTALE NETTO A PAGARE 105,98 €|")},
        // Two stamps on a "Fattura": the last composed, outside all bases.
        {tabella({spese, {"Spese", "Marca da bollo", "-1"}, {"Diritti", "Marca da bollo", "-2", "2", "1", "B"}}), 1,
         true, false, u("(A) SPESE: 100,00 €|||B 2,00 €|—|TOTALE NETTO A PAGARE 102,00 €|")},
    };
    for (const auto &c : cases) {
        const Documento doc = componi(c.dati, c.elab, c.iva, c.rite);
        const auto &row = doc.sty_f[5];
        EXPECT_EQ(righe(doc.testo.split(CR).mid(row[0], row[1] - row[0] + 1).join(CR)), c.block5);
    }
    // Without rite an empty bill has an empty summary: its last paragraph is before its first.
    const Documento empty = componi(tabella({}), 0, true, false);
    EXPECT_TRUE(empty.sty_f[5][1] == empty.sty_f[5][0] - 1 && empty.totale == (std::array<double, 16>{}));
}

TEST(CreaTesto, MissingUserDataIsMarked)
{
    const Utenza sparse{{{}, {}, {}, u("00100"), u("1"), u("2"), u("m")}};
    const Documento doc = Crea_testo({tabella({}), {}, sparse, {}, {}, true, false, 1, {2009, 1, 5}});
    EXPECT_EQ(
        righe(doc.testo),
        u("MANCA UTENTE!|00100|Tel.: 1 / Fax.: 2|E-mail: m||MANCA LUOGO!|Lì 05/01/09||MANCA ASSISTITO!||"
          "FATTURA N. XX/2009|P.IVA.:|C.Fiscale.:||MANCA OGGETTO!|VALORE DELLA CONTROVERSIA: €|||MANCA UTENTE!|"));
}

// The place of the date line, scanned out of the town.
TEST(CreaTesto, PlaceIsScannedOutOfTheTown)
{
    const char *const cases[][2]
        = {{"Città di Castello", "Citt"}, {"00100", ""},    {" 00100  Roma Nord", "Roma"}, {"Roma-Nord", "RomaNord"},
           {"[Roma]_^`", "[Roma]_^`"},    {"Az{|}~@", "Az"}};
    for (const auto &c : cases)
        EXPECT_EQ(estraiLuogo(u(c[0])), u(c[1])) << c[0];
}

// An empty summary block changes no run, and the signature's alignment goes to the paragraph after it.
TEST(Crea_stile, EmptySummaryBlockLeavesItsAlignmentToTheSignature)
{
    const StyMap sty_f{{{0, 0, 7}, {1, 1, 9}, {2, 2, 14}, {3, 3}, {4, 4}, {5, 4}, {5, 6}}};
    const StyledText st = Crea_stile(u("S\rP\rT\rO\r \r \rF \r"), sty_f, 0, 9, 12);
    QString alignments;
    for (int p = 0; p < st.ParagraphCount(); ++p)
        alignments += QString::number(st.ParagraphAlignment(p));
    EXPECT_EQ(alignments, u("1321130"));
    EXPECT_EQ(st.styleAt(st.Paragraph(5).startPos).size, 12);
}

// Fee sections 1-3 through Crea_onorari, advance sections -1 (requested) and
// -2 (received) through Crea_acconto.
TEST(Sections, CategoriesUnitValuesQuantitiesStampsAndAdvances)
{
    const struct {
        Tabella dati;
        int section;
        const char *testo;
        double totale;
        const char *marcadabollo = "";
        double marcaimporto = 0;
    } cases[] = {
        // Section 3 gathers three categories, case-blind; a coefficient multiplies the value of the dispute.
        {tabella({{"Onorari giudiziali", "a", "1", "8"},
                  {"AMBITO PENALE", "b", "1", "0,01"},
                  {"Acconti", "Acconto da richiedere", "-9", "9"}}),
         3, "a 8,00 €|b 100,00 €|—|TOTALE ONORARI: 108,00 €|", 108},
        {tabella({{"Spese", "a", "-5", "5", "1,0"}, {"Spese", "b", "-5", "5", "0"}, {"Spese", "c", "-5", "5", "due"}}),
         1, "a 5,00 €|b 0 X 5,00 = ,00 €|c due X 5,00 = ,00 €|—|TOTALE SPESE: 5,00 €|", 5},
        // The stamp is told by column 3 and shown by column 55; the last one wins.
        {tabella({{"Diritti", "Marca da bollo", "-1", "9"},
                  {"Diritti", "MARCA DA BOLLO", "-2", "2", "1", "B"},
                  {"Diritti", "x", "-3", "3", "1", "Marca da bollo"}}),
         2, "Marca da bollo 3,00 €|", 3, "B 2,00 €|", 2},
        // Any own amount denies the letter to an advance received.
        {tabella({{"Spese", "N", "-5", "5"}, {"Acconti", "Acconto già percepito, da detrarre", "-500", "500"}}), -2,
         "Acconto già percepito, da detrarre -500,00 €|", -500},
        {tabella({}), 1, "", 0},
        {tabella({{"Acconti", "Acconto da richiedere", "-300", "300", "2"}}), -1,
         "(A) Acconto da richiedere 2 X 300,00 = 600,00 €|", 600},
    };
    for (const auto &c : cases) {
        MarcaDaBollo marca;
        const Sezione s
            = c.section > 0 ? Crea_onorari(c.dati, c.section, u("10000"), marca) : Crea_acconto(c.dati, -c.section);
        EXPECT_EQ(righe(s.testo) + u("/") + righe(marca.marcadabollo), u(c.testo) + u("/") + u(c.marcadabollo));
        EXPECT_EQ(std::pair(s.totale, marca.marcaimporto), std::pair(c.totale, c.marcaimporto)) << c.testo;
    }
}

TEST(Spezzatesto, BreaksOnAFixedGridOfLimits)
{
    const std::tuple<const char *, QString, QString> cases[] = {
        {"empty: 55 blanks", QString(), rep(' ', 55)},
        {"50 characters with a blank at 30 are cut there", rep('a', 29) + u(" ") + rep('b', 20),
         u(" ") + rep('a', 29) + u(" ") + CR + padded(u(" ") + rep('b', 20) + u(" "))},
        {"a word over the limit: a lone blank first, no padding", rep('w', 60),
         u(" ") + CR + u(" ") + rep('w', 60) + u(" ")},
    };
    for (const auto &[why, text, expected] : cases)
        EXPECT_EQ(spezzatesto(text, 50), expected) << why;
    for (const char *mark : {".", "(", ";", ":"}) // marks a line may end with
        EXPECT_EQ(spezzatesto(rep('a', 45) + u(mark) + rep('b', 9), 50).indexOf(CR), 47) << mark;
    EXPECT_EQ(spezzatesto(u("ab cd"), 0), u(" ") + CR + u(" ab cd ")); // ends, as every width must
    const std::array<QString, 5> letters = {u("A"), QString(), u("B"), u("C"), QString()};
    EXPECT_EQ(Crea_abcde(letters, 0, 3), u("A+B+C"));
    EXPECT_THROW(Crea_abcde(letters, 2, 5), UnhandledFailure);
}
