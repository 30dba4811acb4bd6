#include "advance/advance.h"
#include "editor/tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

TEST(Advance, WorkedExampleBothWays)
{
    struct Case {
        int campo; // 0 net typed, 1 gross typed
        const char *typed;
        bool iva;
        const char *shown; // C.P.A.|I.V.A.|the other field
    };
    const Case cases[] = {
        {0, "1000", true, "40,00|218,40|1258,40"}, {1, "1258.40", true, "40,00|218,40|1000,00"},
        {1, "1040", false, "40,00|,00|1000,00"},   {0, "1000", false, "40,00|,00|1040,00"},
        {1, "abc", true, ",00|,00|,00"},           {0, "1.2.3", true, ",05|,26|1,51"}, // Val reads 1.2
    };
    for (const auto &c : cases) {
        const TestiAcconto t = testiAcconto(c.campo, u(c.typed), c.iva);
        EXPECT_EQ(t.cpa + u("|") + t.iva + u("|") + t.altro, u(c.shown)) << c.typed << " " << c.iva;
    }
}

TEST(Advance, FiguresInTheirOrderOfOperations)
{
    // Bit for bit the doubles of the calculator's steps, in their order.
    for (double x : {1258.4, 0.1, 333.33, 77.47, 1e6}) {
        for (double p : {1.0, 0.0}) {
            const ContoAcconto n = lordoDaNetto(x, p == 1), g = nettoDaLordo(x, p == 1);
            const double s = x + 0.04 * x, ig = ((x / 1.21) * 0.21) * p, cg = ((x - ig) / 1.04) * 0.04;
            EXPECT_EQ(std::tuple(n.cpa, n.iva, n.altro), std::tuple(0.04 * x, (s * 0.21) * p, s + (s * 0.21) * p));
            EXPECT_EQ(std::tuple(g.iva, g.cpa, g.altro), std::tuple(ig, cg, (x - ig) - cg));
        }
    }
}
