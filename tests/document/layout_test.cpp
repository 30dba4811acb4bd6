#include "document/layout.h"

#include "core/failure.h"
#include "document_helpers.h"

#include <gtest/gtest.h>

#include <array>

using namespace lumetra;
using namespace lumetra::test;

namespace {
QString rep(char c, int n) { return QString(n, QLatin1Char(c)); }
} // namespace

TEST(Spezzatesto, BreaksOnAFixedGridOfLimits)
{
    struct Case {
        const char *why;
        QString text;
        QString expected;
    };
    const Case cases[] = {
        { "empty: 55 blanks", QString(), blanks(55) },
        { "50 characters with a blank at 30 are cut there", rep('a', 29) + q(" ") + rep('b', 20),
            q(" ") + rep('a', 29) + q(" ") + CR + padded(q(" ") + rep('b', 20) + q(" ")) },
        { "a long item text", q("Redazione di comparse conclusionali e memorie illustrative di replica in grado"),
            q(" Redazione di comparse conclusionali e memorie ") + CR
                + padded(q(" illustrative di replica in grado ")) },
        { "a break at exactly the limit is not used", q("aaaa ") + rep('a', 44) + q(" bbbbb"),
            q(" aaaa ") + CR + padded(q(" ") + rep('a', 44) + q(" bbbbb ")) },
        { "a word over the limit: a lone blank first, no padding", rep('w', 60),
            q(" ") + CR + q(" ") + rep('w', 60) + q(" ") },
        { "a line started early may hold 55 characters",
            rep('a', 43) + q(" ") + rep('b', 10) + q(",") + rep('c', 43) + q(")") + rep('d', 10),
            q(" ") + rep('a', 43) + q(" ") + CR + q(" ") + rep('b', 10) + q(",") + rep('c', 43) + q(")") + CR
                + padded(q(" ") + rep('d', 10) + q(" ")) },
        { "a token spanning two limits ends the search", q("a-b ") + rep('x', 120) + q(" yy").repeated(40),
            q(" a-b ") + CR + q(" ") + rep('x', 120) + q(" yy").repeated(40) + q(" ") },
        { "\"/\" is no break: the first token holds the limit", rep('a', 45) + q("/") + rep('b', 10),
            q(" ") + CR + padded(q(" ") + rep('a', 45) + q("/") + rep('b', 10) + q(" ")) },
    };
    for (const auto &c : cases)
        EXPECT_EQ(spezzatesto(c.text, 50), c.expected) << c.why;
    for (const char *mark : { ".", "(", ";", ":" })
        EXPECT_EQ(spezzatesto(rep('a', 45) + q(mark) + rep('b', 9), 50),
            q(" ") + rep('a', 45) + q(mark) + CR + padded(q(" ") + rep('b', 9) + q(" ")));
    EXPECT_EQ(spezzatesto(q("ab cd"), 0), q(" ") + CR + q(" ab cd ")); // ends, as every width must
}

TEST(LayoutHelpers, PaddingCountingAndLetters)
{
    EXPECT_EQ(giustifica_testo(q("1225,00 €"), 16), q("       1225,00 €"));
    EXPECT_EQ(giustifica_testo(rep('x', 20), 14), rep('x', 20));
    EXPECT_EQ(contarighe(QString(), 7), 7);
    EXPECT_EQ(contarighe(q("a") + CR + q("b\n\r\nc"), 1), 3);
    const std::array<QString, 5> letters = { q("A"), QString(), q("B"), q("C"), QString() };
    EXPECT_EQ(Crea_abcde(letters, 0, 3), q("A+B+C"));
    EXPECT_EQ(Crea_abcde(letters, 3, 2), QString());
    EXPECT_EQ(Crea_abcde(letters, 4, 4), QString());
    EXPECT_THROW(Crea_abcde(letters, 2, 5), UnhandledFailure);
}
