// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/failure.h"
#include "core/tariff.h"
#include "core/text_functions.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

QByteArray record(int lines)
{
    QByteArray out;
    for (int i = 1; i <= lines; ++i)
        out += "v" + QByteArray::number(i) + "\n";
    return out;
}

} // namespace

TEST(Tariff, LoadingCountsRowsAsTheReaderMeetsThem)
{
    // A final separator or none; a separator first; a doubled one: an empty row. CR, LF and CR LF alike.
    const std::pair<const char *, int> cases[] = {{"", 0},
                                                  {"a\nb", 1},
                                                  {"a\nb\n**********\n", 1},
                                                  {"**********\na\n", 2},
                                                  {"a\n**********\n**********\nb", 3},
                                                  {"a\rb\r**********\rc\r", 2},
                                                  {"a\r\nb\r\n**********\r\nc\r\n", 2}};
    for (const auto &[file, rows] : cases)
        EXPECT_EQ(caricaTabella(QByteArray(file)).contatore(), rows) << file;
    const Tabella t = caricaTabella("Spese\r\nSpese\r\nCaff\x88\r\n\xdb 5\r\n");
    EXPECT_EQ(t.at(1, 3) + t.at(1, 4) + t.at(1, 5), QString::fromUtf8("Caffà€ 5"));
}

TEST(Tariff, PresetsTheLongerRecordsOverwrite)
{
    Tabella t = caricaTabella(record(52) + "**********\n" + record(54) + "**********\n**********\n");
    ASSERT_EQ(t.contatore(), 3);
    // Row 3 is the empty row of the doubled separator.
    const auto cells = [&](int r) { return t.at(r, 0) + u'|' + t.at(r, 52) + u'|' + t.at(r, 53) + u'|' + t.at(r, 54); };
    EXPECT_EQ(cells(1) + u' ' + cells(2) + u' ' + cells(3), QStringLiteral("0|v52|0|1 0|v52|v53|v54 0||0|1"));
    t.azzera();
    EXPECT_EQ(t.at(2, 52) + t.at(2, 53) + t.at(2, 54), QStringLiteral("v5201"));
    for (auto [r, c] : {std::pair{1, 56}, {4, 0}, {-1, 0}})
        EXPECT_THROW(t.at(r, c), UnhandledFailure);
}

// The documentation's example with the Italian decimal comma, then the quirks of the scan: a limit is in its
// band; with no open band and no INDET./IMPORT. a value above the last limit, or either word mode, reads on past
// column 55 (-1); an open band or a word limit at column 5 counts as 0 and does not end the scan; the words are
// found whatever their case; limits are read with CDbl, so with the Italian marks "1.000" is a thousand.
TEST(Tariff, BandSelection)
{
    const char *esempio = "1000\n10\n20\n5000\n30\n60\n> 5000\n0,01\n0,02\nINDET.\n40\n80\nIMPORT.\n90\n150\n";
    const char *chiusa = "100\n1\n2\n", *aperta = "> 0\n1\n2\n> 0\n3\n4\n", *fino = "fino a\n1\n2\n> 0\n3\n4\n";
    const char *parole = "> 0\n1\n2\nindet.\n5\n6\nimport.\n7\n8\n", *mille = "1.000\n1\n2\n> 1.000\n3\n4\n";
    const std::tuple<const char *, double, int, int> cases[] = {
        {esempio, 1000, Prestabilito, 5}, {esempio, 1000.01, Prestabilito, 8}, {esempio, 3000, Indeterminabile, 14},
        {esempio, 0, Importante, 17},     {chiusa, 100, Prestabilito, 5},      {chiusa, 101, Prestabilito, -1},
        {chiusa, 0, Indeterminabile, -1}, {chiusa, 0, Importante, -1},         {aperta, 0, Prestabilito, 5},
        {aperta, 50, Prestabilito, 8},    {fino, 1, Prestabilito, 8},          {parole, 0, Importante, 11},
        {mille, 1001, Prestabilito, 8},
    };
    for (const auto &[bands, value, mode, column] : cases) {
        const Tabella t = caricaTabella(QByteArray("Diritti\nAltro\nVoce\n\n") + bands);
        if (column < 0) {
            EXPECT_THROW(cerca_scaglione(t, 1, value, mode), UnhandledFailure) << bands << value;
        } else {
            EXPECT_EQ(cerca_scaglione(t, 1, value, mode), column) << bands << value;
        }
    }
    // The advance items are told by the start of their text, case-blind.
    EXPECT_TRUE(accontoDaRichiedere(QStringLiteral("acconto da richiedere (saldo)")));
    EXPECT_TRUE(accontoPercepito(QString::fromUtf8("ACCONTO GIÀ PERCEPITO, DA DETRARRE il 5/11")));
}
