#include "document/layout.h"

#include "core/failure.h"
#include "support/documents.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {
QString rep(char c, int n) { return QString(n, QLatin1Char(c)); }
} // namespace

TEST(Spezzatesto, BreaksOnAFixedGridOfLimits)
{
    const struct {
        const char *why;
        QString text, expected;
    } cases[] = {
        {"empty: 55 blanks", QString(), blanks(55)},
        {"50 characters with a blank at 30 are cut there", rep('a', 29) + q(" ") + rep('b', 20),
         q(" ") + rep('a', 29) + q(" ") + CR + padded(q(" ") + rep('b', 20) + q(" "))},
        {"a long item text", q("Redazione di comparse conclusionali e memorie illustrative di replica in grado"),
         q(" Redazione di comparse conclusionali e memorie ") + CR + padded(q(" illustrative di replica in grado "))},
        {"a break at exactly the limit is not used", q("aaaa ") + rep('a', 44) + q(" bbbbb"),
         q(" aaaa ") + CR + padded(q(" ") + rep('a', 44) + q(" bbbbb "))},
        {"a word over the limit: a lone blank first, no padding", rep('w', 60),
         q(" ") + CR + q(" ") + rep('w', 60) + q(" ")},
        {"a line started early may hold 55 characters",
         rep('a', 43) + q(" ") + rep('b', 10) + q(",") + rep('c', 43) + q(")") + rep('d', 10),
         q(" ") + rep('a', 43) + q(" ") + CR + q(" ") + rep('b', 10) + q(",") + rep('c', 43) + q(")") + CR
             + padded(q(" ") + rep('d', 10) + q(" "))},
        {"a token spanning two limits ends the search", q("a-b ") + rep('x', 120) + q(" yy").repeated(40),
         q(" a-b ") + CR + q(" ") + rep('x', 120) + q(" yy").repeated(40) + q(" ")},
        {"\"/\" is no break: the first token holds the limit", rep('a', 45) + q("/") + rep('b', 10),
         q(" ") + CR + padded(q(" ") + rep('a', 45) + q("/") + rep('b', 10) + q(" "))},
    };
    for (const auto &c : cases)
        EXPECT_EQ(spezzatesto(c.text, 50), c.expected) << c.why;
    for (const char *mark : {".", "(", ";", ":"})
        EXPECT_EQ(spezzatesto(rep('a', 45) + q(mark) + rep('b', 9), 50),
                  q(" ") + rep('a', 45) + q(mark) + CR + padded(q(" ") + rep('b', 9) + q(" ")));
    EXPECT_EQ(spezzatesto(q("ab cd"), 0), q(" ") + CR + q(" ab cd ")); // ends, as every width must
}

TEST(LayoutHelpers, LettersOfTheBases)
{
    const std::array<QString, 5> letters = {q("A"), QString(), q("B"), q("C"), QString()};
    EXPECT_EQ(Crea_abcde(letters, 0, 3), q("A+B+C"));
    EXPECT_THROW(Crea_abcde(letters, 2, 5), UnhandledFailure);
}
