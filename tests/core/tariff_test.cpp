#include "core/encodings.h"
#include "core/failure.h"
#include "core/tariff.h"
#include "core/text_functions.h"
#include "support/test_files.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

QByteArray bytes(const char *text) { return QByteArray(text); }

// The record of the documentation example, with the Italian decimal comma.
const char *kEsempio = "Diritti\nProcesso di esecuzione\nEsame dei documenti\nUna sola volta per grado\n"
                       "1000\n10\n20\n5000\n30\n60\n> 5000\n0,01\n0,02\nINDET.\n40\n80\nIMPORT.\n90\n150\n**********\n";

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
    struct Case {
        const char *name;
        QByteArray file;
        int rows;
    };
    const Case cases[] = {
        {"empty file", bytes(""), 0},
        {"one record, no final separator", bytes("a\nb\nc"), 1},
        {"one record, final separator", bytes("a\nb\nc\n**********\n"), 1},
        {"separator first", bytes("**********\na\nb\n"), 2},
        {"doubled separator", bytes("a\n**********\n**********\nb\n"), 3},
        {"CR line ends", bytes("a\rb\r**********\rc\r"), 2},
        {"CR LF line ends", bytes("a\r\nb\r\n**********\r\nc\r\n"), 2},
    };
    for (const auto &c : cases)
        EXPECT_EQ(caricaTabella(c.file).contatore(), c.rows) << c.name;
}

TEST(Tariff, LineEndsAndMacRomanBytesLoadAlike)
{
    const QByteArray lf("Spese\nSpese\nCaff\x88\n\xdb 5\n");
    QByteArray cr = lf;
    cr.replace('\n', '\r');
    QByteArray crlf = lf;
    crlf.replace("\n", "\r\n");
    for (const QByteArray &file : {lf, cr, crlf}) {
        const Tabella t = caricaTabella(file);
        ASSERT_EQ(t.contatore(), 1);
        EXPECT_EQ(t.at(1, 3), QString::fromUtf8("Caffà"));
        EXPECT_EQ(t.at(1, 4), QString::fromUtf8("€ 5"));
        EXPECT_EQ(t.at(1, 5), QString());
    }
}

TEST(Tariff, PresetsAndTheirOverwriting)
{
    const Tabella t = caricaTabella(record(52) + "**********\n" + record(54) + "**********\n**********\n");
    ASSERT_EQ(t.contatore(), 3);
    // 52 lines keep every pre-set.
    EXPECT_EQ(t.at(1, 0), QStringLiteral("0"));
    EXPECT_EQ(t.at(1, 52), QStringLiteral("v52"));
    EXPECT_EQ(t.at(1, 53), QStringLiteral("0"));
    EXPECT_EQ(t.at(1, 54), QStringLiteral("1"));
    EXPECT_EQ(t.at(1, 55), QString());
    // 54 lines put their own text in 53 and 54.
    EXPECT_EQ(t.at(2, 53), QStringLiteral("v53"));
    EXPECT_EQ(t.at(2, 54), QStringLiteral("v54"));
    // The empty row of the doubled separator holds pre-sets only.
    EXPECT_EQ(t.at(3, 1), QString());
    EXPECT_EQ(t.at(3, 54), QStringLiteral("1"));

    Tabella reset = t;
    reset.azzera();
    EXPECT_EQ(reset.at(2, 53), QStringLiteral("0"));
    EXPECT_EQ(reset.at(2, 54), QStringLiteral("1"));
    EXPECT_EQ(reset.at(2, 52), QStringLiteral("v52"));
}

TEST(Tariff, OutOfRangeIsAnUnhandledFailure)
{
    EXPECT_NO_THROW(caricaTabella(record(55)));
    EXPECT_THROW(caricaTabella(record(56)), UnhandledFailure);
    const Tabella t = caricaTabella(record(3));
    EXPECT_THROW(t.at(1, 56), UnhandledFailure);
    EXPECT_THROW(t.at(2, 0), UnhandledFailure);
    EXPECT_THROW(t.at(-1, 0), UnhandledFailure);
    EXPECT_EQ(t.at(0, 3), QString()); // row 0 exists and is empty
}

TEST(Tariff, BandSelection)
{
    const Tabella t = caricaTabella(bytes(kEsempio));
    struct Case {
        double value;
        int mode;
        int column;
        double min;
        double max;
    };
    const Case cases[] = {
        {0, Prestabilito, 5, 10, 20},        {1000, Prestabilito, 5, 10, 20},
        {1000.01, Prestabilito, 8, 30, 60},  {3000, Prestabilito, 8, 30, 60},
        {5000, Prestabilito, 8, 30, 60},     {8000, Prestabilito, 11, 0.01, 0.02},
        {1e12, Prestabilito, 11, 0.01, 0.02}, {-5, Prestabilito, 5, 10, 20},
        {3000, Indeterminabile, 14, 40, 80}, {0, Importante, 17, 90, 150},
        {3000, 7, 5, 10, 20},
    };
    for (const auto &c : cases) {
        const Fascia f = fascia(t, 1, c.value, c.mode);
        EXPECT_EQ(f.colonna, c.column) << c.value << " mode " << c.mode;
        EXPECT_DOUBLE_EQ(f.minimo, c.min);
        EXPECT_DOUBLE_EQ(f.massimo, c.max);
        EXPECT_DOUBLE_EQ(f.media, (c.min + c.max) / 2);
    }
}

TEST(Tariff, ScansThatRunPastColumn55Fail)
{
    // No open band and no INDET./IMPORT.: a value above the last limit, or either
    // word mode, reads on to column 56.
    const Tabella t = caricaTabella(bytes("A\nB\nC\n\n100\n1\n2\n"));
    EXPECT_EQ(cerca_scaglione(t, 1, 100, Prestabilito), 5);
    EXPECT_THROW(cerca_scaglione(t, 1, 101, Prestabilito), UnhandledFailure);
    EXPECT_THROW(cerca_scaglione(t, 1, 0, Indeterminabile), UnhandledFailure);
    EXPECT_THROW(cerca_scaglione(t, 1, 0, Importante), UnhandledFailure);
    // An open band at column 5 counts as 0 and does not end the scan.
    const Tabella open5 = caricaTabella(bytes("A\nB\nC\n\n> 0\n1\n2\n> 0\n3\n4\n"));
    EXPECT_EQ(cerca_scaglione(open5, 1, 0, Prestabilito), 5);
    EXPECT_EQ(cerca_scaglione(open5, 1, 50, Prestabilito), 8);
    // A non-numeric limit counts as 0 and is passed over.
    const Tabella word = caricaTabella(bytes("A\nB\nC\n\nfino a\n1\n2\n> 0\n3\n4\n"));
    EXPECT_EQ(cerca_scaglione(word, 1, 1, Prestabilito), 8);
    // The words are found whatever their case.
    const Tabella lower = caricaTabella(bytes("A\nB\nC\n\n> 0\n1\n2\nindet.\n5\n6\nimport.\n7\n8\n"));
    EXPECT_EQ(cerca_scaglione(lower, 1, 0, Indeterminabile), 8);
    EXPECT_EQ(cerca_scaglione(lower, 1, 0, Importante), 11);
}

TEST(Tariff, LimitsFollowTheNumberConvention)
{
    // Limits are read with CDbl: with the Italian marks "1.000" is a thousand.
    const Tabella t = caricaTabella(bytes("A\nB\nC\n\n1.000\n1\n2\n> 1.000\n3\n4\n"));
    EXPECT_EQ(cerca_scaglione(t, 1, 999, Prestabilito), 5);
    EXPECT_EQ(cerca_scaglione(t, 1, 1001, Prestabilito), 8);
    setNumberConvention(pointConvention());
    EXPECT_EQ(cerca_scaglione(t, 1, 2, Prestabilito), 8);
    setNumberConvention(italianConvention());
}

TEST(Tariff, SmallTestTariffIsSound)
{
    const Tabella t = caricaTabella(test::readBytes(test::dataPath(QStringLiteral("tariffa_piccola.txt"))));
    ASSERT_GT(t.contatore(), 10);
    for (int r = 1; r <= t.contatore(); ++r)
        for (int mode : {Prestabilito, Indeterminabile, Importante})
            for (double q : {0.0, 1000.0, 1e12})
                EXPECT_NO_THROW(cerca_scaglione(t, r, q, mode)) << r;
}
