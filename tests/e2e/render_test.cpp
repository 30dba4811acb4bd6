#include "support/test_files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>

using namespace lumetra::test;

namespace {

struct Result {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

Result render(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(LUMETRA_RENDER), args);
    EXPECT_TRUE(p.waitForFinished(30000));
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
            p.readAllStandardError()};
}

QString golden(const char *file) { return dataPath(QStringLiteral("golden/nota_e_fattura/") + QString::fromLatin1(file)); }

QStringList exampleBill(const char *output, const char *kind = "nota")
{
    return {QStringLiteral("--tariff"), golden("tariffe_database.txt"), QStringLiteral("--user"), golden("utenza.txt"),
            QStringLiteral("--bill"),   golden("parcella.qX9"),        QStringLiteral("--date"), QStringLiteral("2011-11-16"),
            QStringLiteral("--kind"),   QString::fromLatin1(kind),     QStringLiteral("--output"), QString::fromLatin1(output)};
}

// The .sty_f golden files hold "first last zone" for rows 0 to 9.
QByteArray styLines(const char *file)
{
    QByteArray out;
    const QList<QByteArray> rows = readBytes(golden(file)).split('\n');
    for (int r = 0; r <= 6; ++r)
        out += QByteArray::number(r) + ' ' + rows[r].trimmed() + '\n';
    return out;
}

} // namespace

TEST(Render, TheWorkedDocumentsComeOutByteForByte)
{
    struct Case {
        const char *kind, *text, *rtf, *sty;
    };
    const Case cases[] = {{"nota", "nota_spese.txt", "nota_spese.rtf", "nota_spese.sty_f"},
                          {"fattura", "fattura.txt", "fattura.rtf", "fattura.sty_f"}};
    for (const auto &c : cases) {
        const Result text = render(exampleBill("text", c.kind));
        ASSERT_EQ(text.status, 0) << text.err.constData();
        EXPECT_EQ(text.out, readBytes(golden(c.text))) << c.kind;
        const Result rtf = render(exampleBill("rtf", c.kind));
        EXPECT_EQ(rtf.out, readBytes(golden(c.rtf))) << c.kind;
        const Result sty = render(exampleBill("sty", c.kind));
        EXPECT_EQ(sty.out, styLines(c.sty)) << c.kind;
    }
}

TEST(Render, BillListOfTheWorkedExample)
{
    const Result bill = render(exampleBill("bill"));
    ASSERT_EQ(bill.status, 0) << bill.err.constData();
    const QList<QByteArray> lines = bill.out.split('\n');
    ASSERT_EQ(lines.size(), 8); // five items, the empty row, the total row, and the final line end
    QList<QByteArray> totals;
    for (const QByteArray &line : lines.mid(0, 5))
        totals << line.split('\t').value(5);
    // The running-totals example, plus the stamp of 1,81.
    EXPECT_EQ(totals, (QList<QByteArray>{"100", "1,81", "200", "800", "-500"}));
    EXPECT_EQ(lines[5], QByteArray("\t\t\t\t\t"));
    EXPECT_EQ(lines[6], QByteArray("\t\t\t\tTOTALE:\t601,81"));

    // The bill was saved with the Italian marks: read with the point convention,
    // the stamp's "-1,81" is -1, a coefficient of the 10000 of the dispute.
    QStringList point = exampleBill("bill");
    point << QStringLiteral("--decimal-mark") << QStringLiteral(".");
    EXPECT_TRUE(render(point).out.endsWith("TOTALE:\t10600\n"));
}

TEST(Render, ListingAndModes)
{
    QStringList args = exampleBill("listing");
    args << QStringLiteral("--category") << QStringLiteral("Diritti") << QStringLiteral("--subcategory")
         << QStringLiteral("Processo di cognizione e procedimenti speciali e camerali");
    const Result listing = render(args);
    ASSERT_EQ(listing.status, 0) << listing.err.constData();
    EXPECT_TRUE(listing.out.startsWith("4\tEsame e studio della pratica")) << listing.out.constData();
    EXPECT_TRUE(listing.out.endsWith("\t3\n")); // the minimum is ticked

    // "Indeterminabile": the value becomes the word and every band the INDET. one.
    QStringList indet = exampleBill("text");
    indet << QStringLiteral("--mode") << QStringLiteral("1");
    const Result text = render(indet);
    ASSERT_EQ(text.status, 0);
    EXPECT_TRUE(text.out.contains("VALORE DELLA CONTROVERSIA: 10000 \xe2\x82\xac")); // the bill's own value
}

TEST(Render, WrongFlagsAndUnreadableFiles)
{
    struct Case {
        QStringList args;
        int status;
        const char *message;
    };
    const QStringList base = exampleBill("text");
    const Case cases[] = {
        {{QStringLiteral("--bogus")}, 2, "unknown argument"},
        {base.mid(0, 6), 2, "--output is required"},
        {QStringList(base) << QStringLiteral("--mode") << QStringLiteral("3"), 2, "--mode"},
        {QStringList(base) << QStringLiteral("--category") << QStringLiteral("Spese"), 2, "--subcategory"},
        {QStringList(base) << QStringLiteral("--decimal-mark"), 2, "needs a value"},
        {QStringList{QStringLiteral("--tariff"), QStringLiteral("/nessun/file")} + base.mid(2), 1, "/nessun/file"},
        {QStringList(base.mid(0, 4)) << QStringLiteral("--bill") << golden("utenza.txt") << base.mid(6), 1,
         "is not a bill"},
    };
    for (const auto &c : cases) {
        const Result r = render(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(QLatin1Char(' ')).toStdString();
        EXPECT_TRUE(r.err.contains(c.message)) << r.err.constData();
        EXPECT_TRUE(r.out.isEmpty());
    }
}

TEST(Render, AScanPastColumn55EndsWithStatus1)
{
    QTemporaryDir dir;
    const QString tariff = dir.filePath(QStringLiteral("t.txt"));
    const QString bill = dir.filePath(QStringLiteral("b.qX9"));
    writeBytes(tariff, "Diritti\nAltro\nVoce senza fascia aperta\n\n100\n1\n2\n");
    writeBytes(bill, "***PARCELLA***\r**********\r**********\r500\r60\r1\r0\r1\r\r");
    const Result r = render({QStringLiteral("--tariff"), tariff, QStringLiteral("--user"), dir.filePath(QStringLiteral("nessuno")),
                             QStringLiteral("--bill"), bill, QStringLiteral("--output"), QStringLiteral("bill")});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.err.contains("Errore imprevisto")) << r.err.constData();
}

TEST(Render, ComposesTheShippedTariffQuickly)
{
    QTemporaryDir dir;
    const QString bill = dir.filePath(QStringLiteral("b.qX9"));
    writeBytes(bill, "***PARCELLA***\rCausa\r**********\rCliente\r**********\r30000\r60\r2\r0\r1\r\r");
    const QStringList args = {QStringLiteral("--tariff"), QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/tariffe_database.txt"),
                              QStringLiteral("--user"), golden("utenza.txt"), QStringLiteral("--bill"), bill,
                              QStringLiteral("--output"), QStringLiteral("rtf")};
    std::vector<qint64> times;
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer timer;
        timer.start();
        const Result r = render(args);
        times.push_back(timer.elapsed());
        ASSERT_EQ(r.status, 0) << r.err.constData();
        ASSERT_TRUE(r.out.startsWith("{\\rtf1\\ansi\\ansicpg256"));
    }
    std::sort(times.begin(), times.end());
    // A generous bound: the tool is meant for batches, and CI machines are shared.
    EXPECT_LT(times[2], 2000);
    RecordProperty("median_ms", int(times[2]));
}
