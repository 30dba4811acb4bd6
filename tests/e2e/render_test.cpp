#include "support/test_files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace lumetra::test;
using namespace Qt::StringLiterals;

namespace {

struct Result {
    int status = -1;
    QByteArray out, err;
};

Result render(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(LUMETRA_RENDER), args);
    EXPECT_TRUE(p.waitForFinished(30000));
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
            p.readAllStandardError()};
}

QString golden(const QString &file) { return dataPath(u"golden/nota_e_fattura/"_s + file); }

QStringList exampleBill(const QString &output, const QString &kind = u"nota"_s)
{
    return {u"--tariff"_s, golden(u"tariffe_database.txt"_s),
            u"--user"_s,   golden(u"utenza.txt"_s),
            u"--bill"_s,   golden(u"parcella.qX9"_s),
            u"--date"_s,   u"2011-11-16"_s,
            u"--kind"_s,   kind,
            u"--output"_s, output};
}

} // namespace

TEST(Render, TheWorkedDocumentsComeOutByteForByte)
{
    for (const auto &[kind, stem] : {std::pair{u"nota"_s, u"nota_spese"_s}, std::pair{u"fattura"_s, u"fattura"_s}}) {
        const Result text = render(exampleBill(u"text"_s, kind));
        ASSERT_EQ(text.status, 0) << text.err.constData();
        EXPECT_EQ(text.out, readBytes(golden(stem + u".txt"_s))) << stem.toStdString();
        EXPECT_EQ(render(exampleBill(u"rtf"_s, kind)).out, readBytes(golden(stem + u".rtf"_s))) << stem.toStdString();
        // The .sty_f golden files hold "first last zone" for rows 0 to 9; the tool writes rows 0 to 6.
        QByteArray sty;
        const QList<QByteArray> rows = readBytes(golden(stem + u".sty_f"_s)).split('\n');
        for (int r = 0; r <= 6; ++r)
            sty += QByteArray::number(r) + ' ' + rows[r].trimmed() + '\n';
        EXPECT_EQ(render(exampleBill(u"sty"_s, kind)).out, sty) << stem.toStdString();
    }
}

TEST(Render, BillListOfTheWorkedExample)
{
    const Result bill = render(exampleBill(u"bill"_s));
    ASSERT_EQ(bill.status, 0) << bill.err.constData();
    QList<QByteArray> totals;
    for (const QByteArray &line : bill.out.split('\n'))
        totals << line.split('\t').value(5);
    // The running-totals example plus the stamp of 1,81, an empty row, the total, the final line end.
    EXPECT_EQ(totals, (QList<QByteArray>{"100", "1,81", "200", "800", "-500", "", "601,81", ""}));
    EXPECT_TRUE(bill.out.endsWith("\t\t\t\t\t\n\t\t\t\tTOTALE:\t601,81\n"));
}

TEST(Render, WrongFlagsAndUnreadableFiles)
{
    const QStringList base = exampleBill(u"text"_s);
    const std::tuple<QStringList, int, const char *> cases[] = {
        {{u"--bogus"_s}, 2, "unknown argument"},
        {base.mid(0, 6), 2, "--output is required"},
        {QStringList{u"--tariff"_s, u"/nessun/file"_s} + base.mid(2), 1, "/nessun/file"},
        {base.mid(0, 4) + QStringList{u"--bill"_s, golden(u"utenza.txt"_s)} + base.mid(6), 1, "is not a bill"},
    };
    for (const auto &[args, status, message] : cases) {
        const Result r = render(args);
        EXPECT_EQ(r.status, status) << args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains(message) && r.out.isEmpty()) << r.err.constData();
    }
}

TEST(Render, AScanPastColumn55EndsWithStatus1)
{
    QTemporaryDir dir;
    writeBytes(dir.filePath(u"t.txt"_s), "Diritti\nAltro\nVoce senza fascia aperta\n\n100\n1\n2\n");
    writeBytes(dir.filePath(u"b.qX9"_s), "***PARCELLA***\r**********\r**********\r500\r60\r1\r0\r1\r\r");
    const Result r = render({u"--tariff"_s, dir.filePath(u"t.txt"_s), u"--user"_s, dir.filePath(u"nessuno"_s),
                             u"--bill"_s, dir.filePath(u"b.qX9"_s), u"--output"_s, u"bill"_s});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.err.contains("Errore imprevisto")) << r.err.constData();
}

TEST(Render, ComposesTheShippedTariffQuickly)
{
    QTemporaryDir dir;
    writeBytes(dir.filePath(u"b.qX9"_s),
               "***PARCELLA***\rCausa\r**********\rCliente\r**********\r30000\r60\r2\r0\r1\r\r");
    const QStringList args = {u"--tariff"_s, QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/tariffe_database.txt"),
                              u"--user"_s,   golden(u"utenza.txt"_s),
                              u"--bill"_s,   dir.filePath(u"b.qX9"_s),
                              u"--output"_s, u"rtf"_s};
    std::vector<qint64> times;
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer timer;
        timer.start();
        const Result r = render(args);
        times.push_back(timer.elapsed());
        ASSERT_EQ(r.status, 0) << r.err.constData();
        ASSERT_TRUE(r.out.startsWith("{\\rtf1\\ansi\\ansicpg256"));
    }
    std::sort(times.begin(), times.end());
    // A generous bound: the tool is meant for batches, and CI machines are shared.
    EXPECT_LT(times[1], 2000);
    RecordProperty("median_ms", int(times[1]));
}

TEST(Render, RefusesWhatIsNoRegularFile)
{
    // A FIFO would block the run, /dev/zero would fill the memory.
    QTemporaryDir dir;
    const QByteArray fifo = dir.filePath(u"tubo.qX9"_s).toLocal8Bit();
    ASSERT_EQ(mkfifo(fifo.constData(), 0600), 0);
    for (const QString &bill : {QString::fromLocal8Bit(fifo), u"/dev/zero"_s}) {
        QStringList args = exampleBill(u"text"_s);
        args[5] = bill;
        const Result r = render(args);
        EXPECT_EQ(r.status, 1) << bill.toStdString();
        EXPECT_TRUE(r.err.contains("is not a regular file")) << r.err.constData();
    }
}
