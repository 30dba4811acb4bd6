// SPDX-License-Identifier: GPL-3.0-or-later
#include "advance/advance.h"
#include "editor/tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

TEST(Advance, WorkedExampleBothWays)
{
    // field typed (0 net, 1 gross), text, iva, shown: C.P.A.|I.V.A.|the other field
    const std::tuple<int, const char *, bool, const char *> cases[] = {
        {0, "1000", true, "40,00|218,40|1258,40"}, {1, "1258.40", true, "40,00|218,40|1000,00"},
        {1, "1040", false, "40,00|,00|1000,00"},   {0, "1000", false, "40,00|,00|1040,00"},
        {1, "abc", true, ",00|,00|,00"},           {0, "1.2.3", true, ",05|,26|1,51"}, // Val reads 1.2
    };
    for (const auto &[campo, typed, iva, shown] : cases) {
        const TestiAcconto t = testiAcconto(campo, u(typed), iva);
        EXPECT_EQ(t.cpa + u("|") + t.iva + u("|") + t.altro, u(shown)) << typed << " " << iva;
    }
}
