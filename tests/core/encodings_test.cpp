#include "core/encodings.h"
#include "core/failure.h"
#include "core/user_data.h"

#include <gtest/gtest.h>

using namespace lumetra;

TEST(Encodings, MacRomanAndWindows1252)
{
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all += char(b);
    EXPECT_EQ(toMacRoman(fromMacRoman(all)), all);
    EXPECT_EQ(fromMacRoman(QByteArray("\xdb\x88\x8e\xd1")), QString::fromUtf8("€àé—"));
    EXPECT_EQ(toMacRoman(QString::fromUtf8("a€ł")), QByteArray("a\xdb?")); // ł is not in Mac Roman
    EXPECT_EQ(fromWindows1252(QByteArray("\x80\xe0\x97\x81")), QString::fromUtf8("€à—") + QChar(0x81));
}

TEST(Encodings, LineReader)
{
    // Every line of the expectation is followed by '|'.
    const std::pair<const char *, const char *> cases[] = {
        {"", ""},      {"a", "a|"},         {"a\n", "a|"}, {"a\n\n", "a||"}, {"a\r\nb\rc\n", "a|b|c|"},
        {"\r\n", "|"}, {"a\n\rb", "a||b|"},
    };
    for (const auto &[text, expected] : cases) {
        QString joined;
        LineReader reader(QString::fromUtf8(text));
        while (!reader.atEnd())
            joined += reader.readLine() + QLatin1Char('|');
        EXPECT_EQ(joined, QString::fromUtf8(expected)) << text;
    }
    LineReader past(QStringLiteral("x"));
    EXPECT_EQ(past.readLine(), QStringLiteral("x"));
    EXPECT_TRUE(past.atEnd());
    EXPECT_EQ(past.readLine(), QString());
}

TEST(UserData, ReadAndWrite)
{
    Utenza u;
    u[1] = QStringLiteral("Avv. Tizio Caio");
    u[3] = QString::fromUtf8("98100 Forlì");
    const QByteArray file = scriviUtenza(u);
    EXPECT_EQ(file.count('\n'), 9);
    EXPECT_EQ(leggiUtenza(file), u);
    const Utenza five = leggiUtenza(QByteArray("0\r\n1\r\n2\r\n3\r\n4\r\n"));
    EXPECT_EQ(five[4], QStringLiteral("4"));
    EXPECT_EQ(five[5], QString());
    EXPECT_THROW(leggiUtenza(QByteArray("0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n")), UnhandledFailure);
}
