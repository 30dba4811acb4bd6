#include "advance/advance.h"
#include "core/text_functions.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

QString u(const char *s) { return QString::fromUtf8(s); }

struct ConventionGuard {
    explicit ConventionGuard(NumberConvention c) : saved(numberConvention()) { setNumberConvention(c); }
    ~ConventionGuard() { setNumberConvention(saved); }
    NumberConvention saved;
};

} // namespace

TEST(Advance, WorkedExampleBothWays)
{
    struct Case {
        int campo; // 0 net typed, 1 gross typed
        const char *typed;
        bool iva;
        const char *cpa;
        const char *ivaText;
        const char *other;
    };
    const Case cases[] = {
        {0, "1000", true, "40.00", "218.40", "1258.40"},
        {1, "1258.40", true, "40.00", "218.40", "1000.00"},
        {1, "1040", false, "40.00", ".00", "1000.00"},
        {0, "1000", false, "40.00", ".00", "1040.00"},
        {0, "", true, ".00", ".00", ".00"},
        {1, "abc", true, ".00", ".00", ".00"},
        {0, "1.2.3", true, ".05", ".26", "1.51"}, // Val reads 1.2
        {0, "0.5", true, ".02", ".11", ".63"},
    };
    for (auto convention : {pointConvention(), italianConvention()}) {
        ConventionGuard guard(convention);
        for (const auto &c : cases) {
            auto mark = [&](const char *s) {
                QString t = u(s);
                t.replace(QLatin1Char('.'), numberConvention().decimal);
                return t;
            };
            const TestiAcconto t = testi_acconto(c.campo, u(c.typed), c.iva);
            EXPECT_EQ(t.cpa, mark(c.cpa)) << c.typed;
            EXPECT_EQ(t.iva, mark(c.ivaText)) << c.typed;
            EXPECT_EQ(t.altro, mark(c.other)) << c.typed;
        }
    }
}

TEST(Advance, FiguresInTheirOrderOfOperations)
{
    // Bit for bit the doubles of the calculator's steps, in their order.
    for (double x : {1000.0, 1258.4, 0.1, 333.33, 77.47, 1e6, 0.0}) {
        for (bool iva : {true, false}) {
            const double p = iva ? 1 : 0;
            const ContoAcconto n = lordo_da_netto(x, iva);
            const double c = 0.04 * x;
            const double s = x + c;
            const double i = (s * 0.21) * p;
            EXPECT_EQ(n.cpa, c) << x;
            EXPECT_EQ(n.iva, i) << x;
            EXPECT_EQ(n.altro, s + i) << x;

            const ContoAcconto g = netto_da_lordo(x, iva);
            const double ig = ((x / 1.21) * 0.21) * p;
            const double ng = x - ig;
            const double cg = (ng / 1.04) * 0.04;
            EXPECT_EQ(g.iva, ig) << x;
            EXPECT_EQ(g.cpa, cg) << x;
            EXPECT_EQ(g.altro, ng - cg) << x;
        }
    }
    // The two conversions undo each other up to rounding.
    const ContoAcconto andata = lordo_da_netto(1000, true);
    EXPECT_NEAR(netto_da_lordo(andata.altro, true).altro, 1000, 1e-9);
    EXPECT_NEAR(netto_da_lordo(1040, false).altro, 1000, 1e-9);
}
