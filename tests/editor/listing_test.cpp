#include "core/failure.h"
#include "editor/listing.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

const QString kDash = QString(QChar(0x2014));

FiltroRicerca filtro(const char *a, const char *b, const char *cerca = "") { return {u(a), u(b), u(cerca)}; }

QStringList testi(const RigaRicerca &r)
{
    QStringList t;
    for (const auto &c : r)
        t << c.testo;
    return t;
}

} // namespace

// "Esame dei documenti": 1000 (10-20), 5000 (30-60), > 5000 (0,01-0,02), INDET. (40-80), IMPORT. (90-150).
TEST(Listing, TheBandFollowsTheValueAndTheMode)
{
    struct Case {
        const char *valore;
        int modo;
        QStringList cells; // columns 2 to 6
    };
    const Case cases[] = {
        {"3000", Prestabilito, {u("5000"), u("30"), u("60"), u("45"), u("45")}},
        {"1000", Prestabilito, {u("1000"), u("10"), u("20"), u("15"), u("15")}}, // the limit belongs to its band
        {"1000.01", Prestabilito, {u("5000"), u("30"), u("60"), u("45"), u("45")}},
        {"", Prestabilito, {u("1000"), u("10"), u("20"), u("15"), u("15")}},
        {"8000", Prestabilito, {kDash, u("0,01"), u("0,02"), u("0,015"), QString()}}, // a coefficient: Pers. empty
        {"8000", Indeterminabile, {kDash, u("40"), u("80"), u("60"), u("60")}},
        {"Importante", Importante, {kDash, u("90"), u("150"), u("120"), u("120")}},
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        const auto righe = righe_ricerca(dati, filtro("Diritti", "Processo di esecuzione"), u(c.valore), c.modo);
        ASSERT_EQ(righe.size(), 1u) << c.valore;
        EXPECT_EQ(testi(righe[0]).mid(2), c.cells) << c.valore << " " << c.modo;
        EXPECT_EQ(testi(righe[0]).mid(0, 2), (QStringList{u("6"), u("Esame dei documenti (*)")}));
    }
}

TEST(Listing, CellKindsFollowTheFigures)
{
    struct Case {
        const char *name;
        const char *min, *max;
        QStringList cells;      // columns 3 to 6
        std::vector<int> types; // columns 3 to 6
        std::vector<int> aligns;
    };
    const Case cases[] = {
        {"range", "10", "21", {u("10"), u("21"), u("15,5"), u("15")}, {2, 2, 2, 2}, {1, 1, 1, 1}},
        {"no minimum", "0", "100", {kDash, u("100"), u("50"), u("50")}, {2, 2, 2, 2}, {1, 1, 1, 1}},
        {"fixed", "25", "25", {kDash, kDash, u("25"), u("25")}, {1, 1, 2, 2}, {2, 2, 1, 1}},
        {"nothing", "0", "0", {kDash, kDash, kDash, QString()}, {1, 1, 1, 2}, {2, 2, 2, 1}},
        {"max below min", "30", "20", {u("30"), u("20"), u("25"), u("25")}, {0, 0, 2, 2}, {3, 3, 1, 1}},
        {"average 37.5", "25", "50", {u("25"), u("50"), u("37,5"), u("37")}, {2, 2, 2, 2}, {1, 1, 1, 1}},
    };
    for (const auto &c : cases) {
        Tabella dati = tabella({voce(u("Spese"), u("Spese"), u("Voce"), QString(),
                                     {u("0"), u(c.min), u(c.max), u("> 0"), u("0"), u("0")})});
        const auto righe = righe_ricerca(dati, filtro("Spese", "Spese"), QString(), Prestabilito);
        ASSERT_EQ(righe.size(), 1u) << c.name;
        const RigaRicerca &r = righe[0];
        EXPECT_EQ(testi(r).mid(1), (QStringList{u("Voce"), kDash} + c.cells)) << c.name; // limit 0: the dash
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(r[size_t(3 + i)].tipo, c.types[size_t(i)]) << c.name << i;
            EXPECT_EQ(r[size_t(3 + i)].allineamento, c.aligns[size_t(i)]) << c.name << i;
        }
        EXPECT_TRUE(r[RicPers].grassetto && r[RicPers].corsivo && !r[RicMed].grassetto) << c.name;
    }
}

TEST(Listing, FilterOnCategoryAndItemText)
{
    struct Case {
        const char *a, *b, *cerca;
        QStringList rows;
    };
    const Case cases[] = {
        {"ONORARI GIUDIZIALI", "tribunale, organi equiparati e organi di giustizia tributaria", "", {u("9"), u("10")}},
        {"Onorari giudiziali", "Tribunale, organi equiparati e organi di giustizia tributaria", "UDIENZE", {u("10")}},
        {"Onorari giudiziali", "Giudici di pace", "studio della controversia", {u("8")}}, // equal to the item text
        {"Onorari giudiziali", "Giudici di pace", "Studio della controversia ", {}},      // longer than it
        {"Onorari giudiziali", "Giudici di pace", "o d", {u("8")}},                      // a blank is a character
        {"Onorari giudiziali", "Giudici di pace", "Giudici", {}}, // only the item text is searched
        {"Ambito penale", "Giudici di pace", "", {}},
        {"SELEZIONA", "", "", {}},
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        QStringList rows;
        for (const auto &r : righe_ricerca(dati, filtro(c.a, c.b, c.cerca), u("3000"), Prestabilito))
            rows << r[RicRif].testo;
        EXPECT_EQ(rows, c.rows) << c.a << " / " << c.b << " / " << c.cerca;
    }
}

TEST(Listing, TicksComeBackFromTheSelectionState)
{
    struct Case {
        const char *stato;
        int ticked; // -1: none
        const char *col53, *pers;
    };
    const Case cases[] = {
        {"0", -1, "7", "45"},         {"1", RicMin, "30", "45"},       {"2", RicMax, "60", "45"},
        {"3", RicMed, "45", "45"},    {"-75", RicPers, "75", "75"},    {"-0,5", RicPers, "0,5", "0,5"},
        {"--5", -1, "7", "45"}, // a minus typed in front reads as 0
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(6, kColStato) = u(c.stato);
        dati.at(6, kColValore) = u("7");
        const auto righe = righe_ricerca(dati, filtro("Diritti", "Processo di esecuzione"), u("3000"), Prestabilito);
        ASSERT_EQ(righe.size(), 1u);
        for (int col = RicMin; col <= RicPers; ++col)
            EXPECT_EQ(righe[0][size_t(col)].spunta, col == c.ticked) << c.stato << " col " << col;
        EXPECT_EQ(dati.at(6, kColValore), u(c.col53)) << c.stato;
        EXPECT_EQ(righe[0][RicPers].testo, u(c.pers)) << c.stato;
    }

    // A tick on a cell that shows the dash still holds, and copies the dash.
    Tabella dati = tabella({voce(u("Spese"), u("Spese"), u("Fissa"), QString(),
                                 {u("0"), u("25"), u("25"), u("> 0"), u("0"), u("0")})});
    dati.at(1, kColStato) = u("2");
    const auto righe = righe_ricerca(dati, filtro("Spese", "Spese"), QString(), Prestabilito);
    EXPECT_TRUE(righe.at(0)[RicMax].spunta);
    EXPECT_EQ(dati.at(1, kColValore), kDash);
}

TEST(Listing, OnlyListedRowsAreScanned)
{
    // A record with no band that ends the scan fails when it is listed, not before.
    Tabella dati = tabella({{u("Spese"), u("Spese"), u("Rotta"), QString(), u("100"), u("1"), u("2")}});
    EXPECT_EQ(righe_ricerca(dati, filtro("Diritti", "Altro"), u("500"), Prestabilito).size(), 0u);
    EXPECT_EQ(righe_ricerca(dati, filtro("Spese", "Spese"), u("50"), Prestabilito).size(), 1u);
    EXPECT_THROW(righe_ricerca(dati, filtro("Spese", "Spese"), u("500"), Prestabilito), UnhandledFailure);
    EXPECT_THROW(righe_ricerca(dati, filtro("Spese", "Spese"), u("50"), Indeterminabile), UnhandledFailure);
}
