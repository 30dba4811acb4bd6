// SPDX-License-Identifier: GPL-3.0-or-later
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

TEST(UserData, ReadAndWrite)
{
    Utenza u;
    u[1] = QStringLiteral("Avv. Tizio Caio");
    u[3] = QString::fromUtf8("98100 Forlì");
    const QByteArray file = scriviUtenza(u);
    EXPECT_TRUE(file.count('\n') == 9 && leggiUtenza(file) == u);
    EXPECT_TRUE(leggiUtenza("0\r\n1\r\n2\r\n3\r\n4\r\n")[4] == QStringLiteral("4"));
    EXPECT_THROW(leggiUtenza(QByteArray("0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n")), UnhandledFailure);
}
