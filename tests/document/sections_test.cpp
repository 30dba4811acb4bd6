#include "document/sections.h"

#include "bill_table.h"
#include "document/layout.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

const QString CR(QChar(13));
QString q(const char *s) { return QString::fromUtf8(s); }
QString blanks(int n) { return QString(n, QLatin1Char(' ')); }
QString padded(const QString &line) { return line + blanks(55 - int(line.size())); }
QString dashes() { return blanks(77) + QString(14, QChar(0x2014)); }

// A line with quantity 1: name, 20 blanks, the amount in the last 16 columns.
QString line1(const char *name, const char *amount)
{
    return padded(q(" ") + q(name) + q(" ")) + blanks(20) + giustifica_testo(q(amount) + q(" €"), 16) + CR;
}
// A line with another quantity: "q X", the unit amount, " =" and the total.
QString lineQ(const char *name, const char *qty, const char *unit, const char *amount)
{
    return padded(q(" ") + q(name) + q(" ")) + giustifica_testo(q(qty) + q(" X"), 6)
        + giustifica_testo(q(unit), 14) + q(" =") + giustifica_testo(q(amount) + q(" €"), 14) + CR;
}

Sezione onorari(const Tabella &dati, int section, const char *valore = "10000")
{
    MarcaDaBollo marca;
    return Crea_onorari(dati, section, q(valore), marca);
}

} // namespace

TEST(CreaOnorari, TwoItemsCloseWithRuleAndTotal)
{
    ConventionGuard guard(pointConvention());
    const Tabella dati = tabella({
        { "Diritti", "Esame dei documenti", "-100", "100", "3" },
        { "Diritti", "Vacazione", "2", "200" },
    });
    const Sezione s = onorari(dati, 2);
    EXPECT_EQ(s.testo,
        lineQ("Esame dei documenti", "3", "100.00", "300.00") + line1("Vacazione", "200.00") + dashes() + CR
            + line1("TOTALE DIRITTI:", "500.00"));
    EXPECT_EQ(s.totale, 500);
    for (const QString &l : s.testo.split(CR, Qt::SkipEmptyParts))
        EXPECT_EQ(l.size(), 91);
}

TEST(CreaOnorari, EachSectionTakesItsCategories)
{
    const Tabella dati = tabella({
        { "Spese", "a", "-1", "2" },
        { "Diritti", "b", "-1", "4" },
        { "Onorari giudiziali", "c", "-1", "8" },
        { "AMBITO PENALE", "d", "-1", "16" },
        { "Ambito stragiudiziale", "e", "-1", "32" },
        { "Acconti", "Acconto da richiedere", "-1", "64" },
        { "Altro", "f", "-1", "128" },
        { "Spese", "not on the bill", "0", "256" },
    });
    const double expected[] = { 2, 4, 56 };
    for (int section = 1; section <= 3; ++section)
        EXPECT_EQ(onorari(dati, section).totale, expected[section - 1]) << section;
}

TEST(CreaOnorari, UnitValueQuantityAndRounding)
{
    struct Case {
        const char *why;
        const char *valore;
        const char *quantita;
        const char *dispute;
        QString line;
        double totale;
    };
    const Case cases[] = {
        { "a coefficient multiplies the value of the dispute", "0,01", "1", "10000", line1("x", "100,00"), 100 },
        { "a unit value of exactly 1 is a coefficient", "1", "1", "250", line1("x", "250,00"), 250 },
        { "a coefficient of an undeterminable value is 0", "0,02", "1", "Indeterminabile", line1("x", ",00"), 0 },
        { "above 1 the value is euro", "1,01", "1", "10000", line1("x", "1,01"), 1.01 },
        { "a quantity of 1,0 reads as 1", "50", "1,0", "0", line1("x", "50,00"), 50 },
        { "a quantity of 0 stays, at zero", "50", "0", "0", lineQ("x", "0", "50,00", ",00"), 0 },
        { "a quantity as typed", "12,5", "2,5", "0", lineQ("x", "2,5", "12,50", "31,25"), 31.25 },
        { "text that is no number reads 0", "50", "due", "0", lineQ("x", "due", "50,00", ",00"), 0 },
    };
    for (const auto &c : cases) {
        const Tabella dati = tabella({ { "Spese", "x", "-7", c.valore, c.quantita } });
        const Sezione s = onorari(dati, 1, c.dispute);
        EXPECT_EQ(s.testo, c.line) << c.why;
        EXPECT_DOUBLE_EQ(s.totale, c.totale) << c.why;
    }
}

TEST(CreaOnorari, TheTotalIsTheRoundedSumOfUnroundedAmounts)
{
    const Tabella dati = tabella({
        { "Spese", "a", "-1", "1,004" },
        { "Spese", "b", "-1", "1,004" },
        { "Spese", "c", "-1", "1,004" },
    });
    const Sezione s = onorari(dati, 1);
    EXPECT_TRUE(s.testo.startsWith(line1("a", "1,00")));
    EXPECT_TRUE(s.testo.endsWith(line1("TOTALE SPESE:", "3,01")));
    EXPECT_DOUBLE_EQ(s.totale, 3.012);
}

TEST(CreaOnorari, TheStampIsSetApart)
{
    struct Case {
        const char *why;
        Tabella dati;
        QString testo;
        double totale;
        QString marcadabollo;
        double marcaimporto;
    };
    const Case cases[] = {
        { "no bill row", tabella({ { "Spese", "Marca da bollo" } }), QString(), 0, QString(), 0 },
        { "the stamp alone", tabella({ { "Spese", "Marca da bollo", "-1,81", "1,81" } }), QString(), 0,
            line1("Marca da bollo", "1,81"), 1.81 },
        { "the stamp and one item: one line, no closing pair",
            tabella({ { "Spese", "Marca da bollo", "-1,81", "1,81", "2" }, { "Spese", "a", "-10", "10" } }),
            line1("a", "10,00"), 10, lineQ("Marca da bollo", "2", "1,81", "3,62"), 3.62 },
        { "told by column 3, shown by the user's name",
            tabella({ { "Spese", "MARCA DA BOLLO", "-2", "2", "1", "Bollo" } }), QString(), 0,
            line1("Bollo", "2,00"), 2 },
        { "a renamed item does not become a stamp",
            tabella({ { "Spese", "a", "-2", "2", "1", "Marca da bollo" } }), line1("Marca da bollo", "2,00"), 2,
            QString(), 0 },
        { "two stamps: the last one wins",
            tabella({ { "Spese", "Marca da bollo", "-2", "2" }, { "Spese", "Marca da bollo", "-3", "3", "1", "B" } }),
            QString(), 0, line1("B", "3,00"), 3 },
    };
    for (const auto &c : cases) {
        MarcaDaBollo marca;
        const Sezione s = Crea_onorari(c.dati, 1, q("10000"), marca);
        EXPECT_EQ(s.testo, c.testo) << c.why;
        EXPECT_EQ(s.totale, c.totale) << c.why;
        EXPECT_EQ(marca.marcadabollo, c.marcadabollo) << c.why;
        EXPECT_DOUBLE_EQ(marca.marcaimporto, c.marcaimporto) << c.why;
    }
}

TEST(CreaOnorari, LongItemTextsWrap)
{
    const Tabella dati = tabella({ { "Diritti",
        "Redazione di comparse conclusionali e memorie illustrative di replica in grado di appello", "1", "80",
        "2" } });
    EXPECT_EQ(onorari(dati, 2).testo,
        q(" Redazione di comparse conclusionali e memorie ") + CR
            + lineQ("illustrative di replica in grado di appello", "2", "80,00", "160,00"));
}

TEST(CreaAcconto, TheTwoKindsAndTheirPrefix)
{
    struct Case {
        const char *why;
        Tabella dati;
        int section;
        QString testo;
        double totale;
    };
    const Voce richiesto { "Acconti", "Acconto da richiedere", "-1000", "1000" };
    const Voce percepito { "Acconti", "Acconto già percepito, da detrarre", "-500", "500" };
    const Voce spesa { "Spese", "Spese di notifica", "-50", "50" };
    const Case cases[] = {
        { "no advance", tabella({ spesa }), 1, QString(), 0 },
        { "no advance received", tabella({ richiesto }), 2, QString(), 0 },
        { "a lone advance requested bears (A)", tabella({ richiesto }), 1,
            line1("(A) Acconto da richiedere", "1000,00"), 1000 },
        { "requested: other own amounts do not count", tabella({ spesa, richiesto }), 1,
            line1("(A) Acconto da richiedere", "1000,00"), 1000 },
        { "a lone advance received bears (A), negated", tabella({ percepito }), 2,
            line1("(A) Acconto già percepito, da detrarre", "-500,00"), -500 },
        { "received: any other own amount takes the prefix away", tabella({ spesa, percepito }), 2,
            line1("Acconto già percepito, da detrarre", "-500,00"), -500 },
        { "two requested: no prefix, closing (A) TOTALE ACCONTI",
            tabella({ richiesto, { "Acconti", "Acconto da richiedere", "-200", "200", "1", "Anticipo" } }), 1,
            line1("Acconto da richiedere", "1000,00") + line1("Anticipo", "200,00") + dashes() + CR
                + line1("(A) TOTALE ACCONTI", "1200,00"),
            1200 },
        { "two received: TOTALE ACCONTI A DETRARRE", tabella({ percepito, percepito }), 2,
            line1("Acconto già percepito, da detrarre", "-500,00") + line1("Acconto già percepito, da detrarre",
                "-500,00") + dashes() + CR + line1("TOTALE ACCONTI A DETRARRE", "-1000,00"),
            -1000 },
        { "quantity 2: unit, =, doubled, no closing pair",
            tabella({ { "Acconti", "Acconto da richiedere", "-300", "300", "2" } }), 1,
            lineQ("(A) Acconto da richiedere", "2", "300,00", "600,00"), 600 },
        { "an amount of 0,5 stays 0,5", tabella({ { "Acconti", "Acconto da richiedere", "-0,5", "0,5" } }), 1,
            line1("(A) Acconto da richiedere", ",50"), 0.5 },
        { "the kind is read in column 3, the name shown is the user's",
            tabella({ { "Acconti", "Acconto già percepito, da detrarre (2010)", "-100", "100", "1", "Versato" } }), 2,
            line1("(A) Versato", "-100,00"), -100 },
        { "only an own amount is an advance", tabella({ { "Acconti", "Acconto da richiedere", "3", "100" } }), 1,
            QString(), 0 },
    };
    for (const auto &c : cases) {
        const Sezione s = Crea_acconto(c.dati, c.section);
        EXPECT_EQ(s.testo, c.testo) << c.why;
        EXPECT_EQ(s.totale, c.totale) << c.why;
    }
}
