#include "core/failure.h"
#include "editor/listing.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

FiltroRicerca filtro(const char *a, const char *b, const char *cerca = "") { return {u(a), u(b), u(cerca)}; }

// The cells of a listed row from column `from`, joined by "|".
QString testi(const RigaRicerca &r, int from)
{
    QStringList t;
    for (size_t c = size_t(from); c < r.size(); ++c)
        t << r[c].testo;
    return t.join(u("|"));
}

// One item of the given first band, with the INDET. and IMPORT. triples behind it.
Tabella voce(const char *min, const char *max)
{
    return tabella({{u("Spese"), u("Spese"), u("Voce"), QString(), u("0"), u(min), u(max), u("> 0"), u("0"), u("0"),
                     u("INDET."), u("40"), u("80"), u("IMPORT."), u("90"), u("150")}});
}

} // namespace

// "Esame dei documenti": 1000 (10-20), 5000 (30-60), > 5000 (0,01-0,02), INDET. (40-80), IMPORT. (90-150).
TEST(Listing, BandTicksAndColumn53)
{
    struct Case {
        const char *valore;
        int modo;
        const char *stato, *cells; // cells: columns 2 to 6
        int ticked; // -1: none
        const char *col53;
    };
    const Case cases[] = {
        {"1000", Prestabilito, "0", "1000|10|20|15|15", -1, "7"}, // the limit belongs to its band
        {"1000.01", Prestabilito, "0", "5000|30|60|45|45", -1, "7"},
        {"8000", Prestabilito, "0", "—|0,01|0,02|0,015|", -1, "7"}, // a coefficient: Pers. empty
        {"8000", Indeterminabile, "0", "—|40|80|60|60", -1, "7"},
        {"3000", Prestabilito, "1", "5000|30|60|45|45", RicMin, "30"},
        {"3000", Prestabilito, "3", "5000|30|60|45|45", RicMed, "45"},
        {"3000", Prestabilito, "-75", "5000|30|60|45|75", RicPers, "75"},
        {"3000", Prestabilito, "-0,5", "5000|30|60|45|0,5", RicPers, "0,5"},
        {"3000", Prestabilito, "--5", "5000|30|60|45|45", -1, "7"}, // a minus typed in front reads as 0
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(kEsameDocumenti, kColStato) = u(c.stato);
        dati.at(kEsameDocumenti, kColValore) = u("7");
        const auto righe = righeRicerca(dati, filtro("Diritti", "Processo di esecuzione"), u(c.valore), c.modo);
        ASSERT_EQ(righe.size(), 1u) << c.valore;
        EXPECT_EQ(testi(righe[0], 0), u("6|Esame dei documenti (*)|") + u(c.cells)) << c.valore << " " << c.stato;
        for (int col = RicMin; col <= RicPers; ++col)
            EXPECT_EQ(righe[0][size_t(col)].spunta, col == c.ticked) << c.stato << " col " << col;
        EXPECT_EQ(dati.at(kEsameDocumenti, kColValore), u(c.col53)) << c.stato;
    }
}

TEST(Listing, CellKindsFollowTheFigures)
{
    struct Case {
        const char *min, *max, *cells, *types, *aligns; // columns 3 to 6
    };
    const Case cases[] = {
        {"10", "21", "10|21|15,5|15", "2222", "1111"}, {"0", "100", "—|100|50|50", "2222", "1111"},
        {"25", "25", "—|—|25|25", "1122", "2211"},     {"0", "0", "—|—|—|", "1112", "2221"},
        {"30", "20", "30|20|25|25", "0022", "3311"}, // max below min
        {"25", "50", "25|50|37,5|37", "2222", "1111"}, // Pers.: the whole part of the average
    };
    for (const auto &c : cases) {
        Tabella dati = voce(c.min, c.max);
        const auto righe = righeRicerca(dati, filtro("Spese", "Spese"), QString(), Prestabilito);
        ASSERT_EQ(righe.size(), 1u) << c.min;
        const RigaRicerca &r = righe[0];
        EXPECT_EQ(testi(r, 1), u("Voce|—|") + u(c.cells)) << c.min; // limit 0: the dash
        QString types, aligns;
        for (int i = 3; i < 7; ++i) {
            types += QString::number(r[size_t(i)].tipo);
            aligns += QString::number(r[size_t(i)].allineamento);
        }
        EXPECT_EQ(types + u("/") + aligns, u(c.types) + u("/") + u(c.aligns)) << c.min << "-" << c.max;
        EXPECT_TRUE(r[RicPers].grassetto && r[RicPers].corsivo && !r[RicMed].grassetto) << c.min;
    }

    // A tick on a cell that shows the dash still holds, and copies the dash.
    Tabella dati = voce("25", "25");
    dati.at(1, kColStato) = u("2");
    EXPECT_TRUE(righeRicerca(dati, filtro("Spese", "Spese"), QString(), Prestabilito).at(0)[RicMax].spunta);
    EXPECT_EQ(dati.at(1, kColValore), u("—"));
}

TEST(Listing, FilterOnCategoryAndItemText)
{
    struct Case {
        const char *a, *b, *cerca, *rows;
    };
    const Case cases[] = {
        {"ONORARI GIUDIZIALI", "tribunale, organi equiparati e organi di giustizia tributaria", "", "9|10"},
        {"Onorari giudiziali", "Tribunale, organi equiparati e organi di giustizia tributaria", "UDIENZE", "10"},
        {"Onorari giudiziali", "Giudici di pace", "studio della controversia", "8"}, // equal to the item text
        {"Onorari giudiziali", "Giudici di pace", "Studio della controversia ", ""}, // longer than it
        {"Onorari giudiziali", "Giudici di pace", "o d", "8"}, // a blank is a character
        {"Onorari giudiziali", "Giudici di pace", "Giudici", ""}, // only the item text is searched
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        QStringList rows;
        for (const auto &r : righeRicerca(dati, filtro(c.a, c.b, c.cerca), u("3000"), Prestabilito))
            rows << r[RicRif].testo;
        EXPECT_EQ(rows.join(u("|")), u(c.rows)) << c.a << " / " << c.b << " / " << c.cerca;
    }
}

TEST(Listing, OnlyListedRowsAreScanned)
{
    // A record with no band that ends the scan fails when it is listed, not before.
    Tabella dati = tabella({{u("Spese"), u("Spese"), u("Rotta"), QString(), u("100"), u("1"), u("2")}});
    EXPECT_EQ(righeRicerca(dati, filtro("Diritti", "Altro"), u("500"), Prestabilito).size(), 0u);
    EXPECT_EQ(righeRicerca(dati, filtro("Spese", "Spese"), u("50"), Prestabilito).size(), 1u);
    EXPECT_THROW(righeRicerca(dati, filtro("Spese", "Spese"), u("500"), Prestabilito), UnhandledFailure);
    EXPECT_THROW(righeRicerca(dati, filtro("Spese", "Spese"), u("50"), Indeterminabile), UnhandledFailure);
}
