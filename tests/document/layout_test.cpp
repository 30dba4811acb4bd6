#include "document/layout.h"

#include "core/failure.h"

#include <gtest/gtest.h>

#include <array>

using namespace lumetra;

namespace {

const QString CR(QChar(13));
QString q(const char *s) { return QString::fromUtf8(s); }
QString rep(char c, int n) { return QString(n, QLatin1Char(c)); }
QString blanks(int n) { return rep(' ', n); }
// The last line of a result, padded to 55 as spezzatesto does at width 50.
QString padded(const QString &line) { return line + blanks(55 - int(line.size())); }

} // namespace

TEST(Spezzatesto, BreaksOnAFixedGridOfLimits)
{
    struct Case {
        const char *why;
        QString text;
        QString expected;
    };
    const QString longItem
        = q("Redazione di comparse conclusionali e memorie illustrative di replica in grado di appello");
    const Case cases[] = {
        { "short text: one line of 55", q("abc"), q(" abc ") + blanks(50) },
        { "empty text: the added blank, the leading blank, 53 more", QString(), blanks(55) },
        { "49 characters fit: one line of 55", rep('a', 49), padded(q(" ") + rep('a', 49) + q(" ")) },
        { "50 characters are in the breaking branch: cut at the blank at 30",
            rep('a', 29) + q(" ") + rep('b', 20),
            q(" ") + rep('a', 29) + q(" ") + CR + padded(q(" ") + rep('b', 20) + q(" ")) },
        { "the token over the limit starts the second line", longItem,
            q(" Redazione di comparse conclusionali e memorie ") + CR
                + padded(q(" illustrative di replica in grado di appello ")) },
        { "a break at exactly the limit is not used", q("aaaa ") + rep('a', 44) + q(" bbbbb"),
            q(" aaaa ") + CR + padded(q(" ") + rep('a', 44) + q(" bbbbb ")) },
        { "one word over the limit: the first line is a lone blank, no padding", rep('w', 60),
            q(" ") + CR + q(" ") + rep('w', 60) + q(" ") },
        { "a line started early may hold 55 characters before the next limit",
            rep('a', 43) + q(" ") + rep('b', 10) + q(" ") + rep('c', 43) + q(" ") + rep('d', 10),
            q(" ") + rep('a', 43) + q(" ") + CR + q(" ") + rep('b', 10) + q(" ") + rep('c', 43) + q(" ") + CR
                + padded(q(" ") + rep('d', 10) + q(" ")) },
        { "a token spanning two limits uses up the search: the rest is one line",
            q("aaaa ") + rep('x', 120) + q(" ") + q("yy ").repeated(40),
            q(" aaaa ") + CR + q(" ") + rep('x', 120) + q(" ") + q("yy ").repeated(40) + q(" ") },
        { "characters that are no break: the first token holds the limit", rep('a', 45) + q("/") + rep('b', 10),
            q(" ") + CR + padded(q(" ") + rep('a', 45) + q("/") + rep('b', 10) + q(" ")) },
        { "accented letters count as one character each", q("è").repeated(49),
            padded(q(" ") + q("è").repeated(49) + q(" ")) },
    };
    for (const auto &c : cases)
        EXPECT_EQ(spezzatesto(c.text, 50), c.expected) << c.why;
}

TEST(Spezzatesto, EveryBreakCharacterEndsItsLine)
{
    for (const char *mark : { " ", ",", ".", "(", ")", ";", ":", "-" }) {
        const QString text = rep('a', 45) + q(mark) + rep('b', 10);
        EXPECT_EQ(spezzatesto(text, 50),
            q(" ") + rep('a', 45) + q(mark) + CR + padded(q(" ") + rep('b', 10) + q(" ")))
            << mark;
    }
}

TEST(Spezzatesto, OtherWidthsPadToWidthPlusFive)
{
    EXPECT_EQ(spezzatesto(q("ab cd ef"), 4), q(" ab ") + CR + q(" cd ") + CR + q(" ef      "));
    EXPECT_EQ(spezzatesto(q("abc"), 10), q(" abc ") + blanks(10));
    // A width of 0 cuts once and stops; nothing may hang.
    EXPECT_EQ(spezzatesto(q("ab cd"), 0), q(" ") + CR + q(" ab cd "));
}

TEST(LayoutHelpers, GiustificaTestoPadsOnTheLeftAndNeverCuts)
{
    struct Case {
        QString text;
        int width;
        QString expected;
    };
    const Case cases[] = {
        { q("abc"), 6, q("   abc") },
        { q(" "), 14, blanks(14) },
        { QString(), 3, blanks(3) },
        { rep('x', 14), 14, rep('x', 14) },
        { rep('x', 20), 14, rep('x', 20) },
        { q("1225,00 €"), 16, q("       1225,00 €") },
    };
    for (const auto &c : cases)
        EXPECT_EQ(giustifica_testo(c.text, c.width), c.expected) << c.text.toStdString();
}

TEST(LayoutHelpers, ContarigheCountsOnlyCharacter13)
{
    EXPECT_EQ(contarighe(QString(), 7), 7);
    EXPECT_EQ(contarighe(q("a") + CR + q("b") + CR, 0), 2);
    EXPECT_EQ(contarighe(q("a") + CR + q("last line without end"), 3), 4);
    EXPECT_EQ(contarighe(q("a\nb\r\n"), 0), 1);
}

TEST(LayoutHelpers, CreaAbcdeJoinsTheLettersThatExist)
{
    const std::array<QString, 6> letters = { q("A"), QString(), q("B"), q("C"), QString(), QString() };
    EXPECT_EQ(Crea_abcde(letters, 0, 3), q("A+B+C"));
    EXPECT_EQ(Crea_abcde(letters, 1, 2), q("B"));
    EXPECT_EQ(Crea_abcde(letters, 4, 5), QString());
    EXPECT_EQ(Crea_abcde(letters, 3, 2), QString());
    EXPECT_THROW(Crea_abcde(letters, 2, 6), UnhandledFailure);
}

TEST(LayoutHelpers, MoneyLinesAre91Columns)
{
    const QString rule = riga_totale();
    EXPECT_EQ(rule, blanks(77) + QString(14, QChar(0x2014)));
    const QString line = riga_importo(q("(D) Rimborso"), q("12,50%"), q("1000,00"), 125);
    EXPECT_EQ(line.size(), 91);
    EXPECT_EQ(line, padded(q(" (D) Rimborso ")) + q("12,50%") + q("       1000,00") + q("        125,00 €"));
    EXPECT_EQ(riga_importo(q("X"), {}, {}, -0.004), padded(q(" X ")) + blanks(20) + q("           ,00 €"));
}
