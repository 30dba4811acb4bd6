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
    const std::pair<const char *, int> cases[] = {
        {"", 0},
        {"a\nb\nc", 1}, // no final separator
        {"a\nb\nc\n**********\n", 1},
        {"**********\na\nb\n", 2}, // separator first
        {"a\n**********\n**********\nb\n", 3},
        {"a\rb\r**********\rc\r", 2}, // doubled; CR
        {"a\r\nb\r\n**********\r\nc\r\n", 2},
    };
    for (const auto &[file, rows] : cases)
        EXPECT_EQ(caricaTabella(QByteArray(file)).contatore(), rows) << file;
}

TEST(Tariff, LineEndsAndMacRomanBytesLoadAlike)
{
    const QByteArray lf("Spese\nSpese\nCaff\x88\n\xdb 5\n");
    for (const QByteArray &file : {lf, QByteArray(lf).replace('\n', '\r'), QByteArray(lf).replace("\n", "\r\n")}) {
        const Tabella t = caricaTabella(file);
        ASSERT_EQ(t.contatore(), 1);
        EXPECT_EQ(t.at(1, 3), QString::fromUtf8("Caffà"));
        EXPECT_EQ(t.at(1, 4), QString::fromUtf8("€ 5"));
        EXPECT_EQ(t.at(1, 5), QString());
    }
}

TEST(Tariff, PresetsTheLongerRecordsOverwrite)
{
    Tabella t = caricaTabella(record(52) + "**********\n" + record(54) + "**********\n**********\n");
    ASSERT_EQ(t.contatore(), 3);
    EXPECT_NO_THROW(caricaTabella(record(55)));
    EXPECT_THROW(caricaTabella(record(56)), UnhandledFailure);
    // Row 3 is the empty row of the doubled separator.
    const std::tuple<int, int, const char *> cells[] = {
        {1, 0, "0"},    {1, 52, "v52"}, {1, 53, "0"}, {1, 54, "1"}, {1, 55, ""},
        {2, 53, "v53"}, {2, 54, "v54"}, {3, 1, ""},   {3, 54, "1"}, {0, 3, ""},
    };
    for (const auto &[r, c, text] : cells)
        EXPECT_EQ(t.at(r, c), QString::fromUtf8(text)) << r << "," << c;
    t.azzera();
    EXPECT_EQ(t.at(2, 53), QStringLiteral("0"));
    EXPECT_EQ(t.at(2, 54), QStringLiteral("1"));
    EXPECT_EQ(t.at(2, 52), QStringLiteral("v52"));
    EXPECT_THROW(t.at(1, 56), UnhandledFailure);
    EXPECT_THROW(t.at(4, 0), UnhandledFailure);
    EXPECT_THROW(t.at(-1, 0), UnhandledFailure);
}

TEST(Tariff, BandSelection)
{
    // The documentation's example, with the Italian decimal comma.
    const Tabella t = caricaTabella("Diritti\nProcesso di esecuzione\nEsame dei documenti\nUna volta\n1000\n10\n20\n"
                                    "5000\n30\n60\n> 5000\n0,01\n0,02\nINDET.\n40\n80\nIMPORT.\n90\n150\n");
    // value, mode, column, minimum, maximum
    const std::tuple<double, int, int, double, double> cases[] = {
        {0, Prestabilito, 5, 10, 20},         {1000, Prestabilito, 5, 10, 20},
        {1000.01, Prestabilito, 8, 30, 60},   {5000, Prestabilito, 8, 30, 60},
        {8000, Prestabilito, 11, 0.01, 0.02}, {1e12, Prestabilito, 11, 0.01, 0.02},
        {-5, Prestabilito, 5, 10, 20},        {3000, Indeterminabile, 14, 40, 80},
        {0, Importante, 17, 90, 150},         {3000, 7, 5, 10, 20},
    };
    for (const auto &[value, mode, column, min, max] : cases) {
        const int c = cerca_scaglione(t, 1, value, mode);
        EXPECT_EQ(c, column) << value << " mode " << mode;
        EXPECT_EQ(std::pair(CDbl(t.at(1, c + 1)), CDbl(t.at(1, c + 2))), std::pair(min, max)) << value;
    }
}

TEST(Tariff, MoneyRules)
{
    // A unit value of 1 or less is a coefficient of the value of the dispute.
    const std::tuple<double, double, double> units[]
        = {{0.02, 8000, 160}, {1, 3000, 3000}, {1.01, 3000, 1.01}, {60, 0, 60}, {0, 3000, 0}};
    for (const auto &[unit, value, amount] : units)
        EXPECT_DOUBLE_EQ(importoUnitario(unit, value), amount) << unit;
    EXPECT_DOUBLE_EQ(mediaFascia(0.01, 0.02), 0.015);
    // The advance items are told by the start of their text, case-blind.
    EXPECT_TRUE(accontoDaRichiedere(QStringLiteral("acconto da richiedere (saldo)")));
    EXPECT_FALSE(accontoDaRichiedere(QStringLiteral("Acconto da richieder")));
    EXPECT_TRUE(accontoPercepito(QString::fromUtf8("Acconto già percepito, da detrarre il 5/11")));
    EXPECT_FALSE(accontoPercepito(QStringLiteral("Acconto gia percepito, da detrarre")));
}

TEST(Tariff, ScansThatRunPastColumn55Fail)
{
    // No open band and no INDET./IMPORT.: a value above the last limit, or either
    // word mode, reads on to column 56.
    const Tabella t = caricaTabella("A\nB\nC\n\n100\n1\n2\n");
    EXPECT_EQ(cerca_scaglione(t, 1, 100, Prestabilito), 5);
    EXPECT_THROW(cerca_scaglione(t, 1, 101, Prestabilito), UnhandledFailure);
    EXPECT_THROW(cerca_scaglione(t, 1, 0, Indeterminabile), UnhandledFailure);
    EXPECT_THROW(cerca_scaglione(t, 1, 0, Importante), UnhandledFailure);
    // An open band at column 5 counts as 0 and does not end the scan; nor does a word limit.
    const Tabella open5 = caricaTabella("A\nB\nC\n\n> 0\n1\n2\n> 0\n3\n4\n");
    EXPECT_EQ(cerca_scaglione(open5, 1, 0, Prestabilito), 5);
    EXPECT_EQ(cerca_scaglione(open5, 1, 50, Prestabilito), 8);
    EXPECT_EQ(cerca_scaglione(caricaTabella("A\nB\nC\n\nfino a\n1\n2\n> 0\n3\n4\n"), 1, 1, Prestabilito), 8);
    // The words are found whatever their case.
    const Tabella lower = caricaTabella("A\nB\nC\n\n> 0\n1\n2\nindet.\n5\n6\nimport.\n7\n8\n");
    EXPECT_EQ(cerca_scaglione(lower, 1, 0, Indeterminabile), 8);
    EXPECT_EQ(cerca_scaglione(lower, 1, 0, Importante), 11);
    // Limits are read with CDbl: with the Italian marks "1.000" is a thousand.
    const Tabella mille = caricaTabella("A\nB\nC\n\n1.000\n1\n2\n> 1.000\n3\n4\n");
    EXPECT_EQ(cerca_scaglione(mille, 1, 999, Prestabilito), 5);
    EXPECT_EQ(cerca_scaglione(mille, 1, 1001, Prestabilito), 8);
    setNumberConvention(pointConvention());
    EXPECT_EQ(cerca_scaglione(mille, 1, 2, Prestabilito), 8);
    setNumberConvention(italianConvention());
}
