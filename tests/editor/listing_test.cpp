// SPDX-License-Identifier: GPL-3.0-or-later
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

} // namespace

// "Esame dei documenti": 1000 (10-20), 5000 (30-60), > 5000 (0,01-0,02), INDET. (40-80), IMPORT. (90-150).
TEST(Listing, BandAndTicks)
{
    // value, mode, state, cells of columns 2 to 6, the column ticked (-1: none)
    const std::tuple<const char *, int, const char *, const char *, int> cases[] = {
        {"1000", Prestabilito, "0", "1000|10|20|15|15", -1}, // the limit belongs to its band
        {"8000", Prestabilito, "0", "—|0,01|0,02|0,015|", -1}, // a coefficient: Pers. empty
        {"3000", Prestabilito, "1", "5000|30|60|45|45", RicMin},
        {"3000", Prestabilito, "-0,5", "5000|30|60|45|0,5", RicPers},
        {"3000", Prestabilito, "--5", "5000|30|60|45|45", -1}, // a minus typed in front reads as 0
    };
    for (const auto &[valore, modo, stato, cells, ticked] : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(kEsameDocumenti, kColStato) = u(stato);
        const auto righe = righeRicerca(dati, filtro("Diritti", "Processo di esecuzione"), u(valore), modo);
        ASSERT_EQ(righe.size(), 1u) << valore;
        EXPECT_EQ(testi(righe[0], 0), u("6|Esame dei documenti (*)|") + u(cells)) << valore << " " << stato;
        for (int col = RicMin; col <= RicPers; ++col)
            EXPECT_EQ(righe[0][size_t(col)].spunta, col == ticked) << stato << " col " << col;
    }
}

TEST(Listing, CellKindsFollowTheFigures)
{
    // min, max, cells of columns 3 to 6, their types
    const std::tuple<const char *, const char *, const char *, const char *> cases[] = {
        {"10", "21", "10|21|15,5|15", "2222"}, {"0", "100", "—|100|50|50", "2222"}, {"25", "25", "—|—|25|25", "1122"},
        {"0", "0", "—|—|—|", "1112"},          {"30", "20", "30|20|25|25", "0022"}, // max below min: no boxes
    };
    for (const auto &[min, max, cells, kinds] : cases) {
        Tabella dati = tabella({{u("Spese"), u("Spese"), u("Voce"), QString(), u("0"), u(min), u(max), u("> 0"), u("0"),
                                 u("0"), u("INDET."), u("40"), u("80"), u("IMPORT."), u("90"), u("150")}});
        const auto righe = righeRicerca(dati, filtro("Spese", "Spese"), QString(), Prestabilito);
        ASSERT_EQ(righe.size(), 1u) << min;
        const RigaRicerca &r = righe[0];
        EXPECT_EQ(testi(r, 1), u("Voce|—|") + u(cells)) << min; // limit 0: the dash
        QString types; // a dash or a figure below the minimum is no check box
        for (int i = RicMin; i <= RicPers; ++i)
            types += QString::number(r[size_t(i)].tipo);
        EXPECT_EQ(types, u(kinds)) << min << "-" << max;
    }
}

TEST(Listing, FilterOnCategoryAndItemText)
{
    const char *og = "Onorari giudiziali", *gdp = "Giudici di pace";
    const std::tuple<const char *, const char *, const char *, const char *> cases[] = {
        {"ONORARI GIUDIZIALI", "tribunale, organi equiparati e organi di giustizia tributaria", "UDIENZE", "10"},
        {og, gdp, "studio della controversia", "8"}, // equal to the item text
        {og, gdp, "Studio della controversia ", ""}, // longer than it
        {og, gdp, "Giudici", ""}, // only the item text is searched
    };
    for (const auto &[a, b, cerca, rows] : cases) {
        Tabella dati = tariffaPiccola();
        QStringList found;
        for (const auto &r : righeRicerca(dati, filtro(a, b, cerca), u("3000"), Prestabilito))
            found << r[RicRif].testo;
        EXPECT_EQ(found.join(u("|")), u(rows)) << a << " / " << b << " / " << cerca;
    }
    // A record with no band that ends the scan fails when it is listed, not before.
    Tabella rotta = tabella({{u("Spese"), u("Spese"), u("Rotta"), QString(), u("100"), u("1"), u("2")}});
    EXPECT_EQ(righeRicerca(rotta, filtro("Diritti", "Altro"), u("500"), Prestabilito).size(), 0u);
    EXPECT_EQ(righeRicerca(rotta, filtro("Spese", "Spese"), u("50"), Prestabilito).size(), 1u);
    EXPECT_THROW(righeRicerca(rotta, filtro("Spese", "Spese"), u("500"), Prestabilito), UnhandledFailure);
}
