#include "support/test_files.h"

#include <QProcess>
#include <QTemporaryDir>
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
    return QStringList{u"--tariff"_s, golden(u"tariffe_database.txt"_s), u"--user"_s, golden(u"utenza.txt"_s)}
    + QStringList{u"--bill"_s, golden(u"parcella.qX9"_s), u"--date"_s, u"2011-11-16"_s}
    + QStringList{u"--kind"_s, kind, u"--output"_s, output};
}

} // namespace

TEST(Render, TheWorkedExampleComesOutByteForByte)
{
    for (const auto &[kind, stem] : {std::pair{u"nota"_s, u"nota_spese"_s}, std::pair{u"fattura"_s, u"fattura"_s}}) {
        const Result text = render(exampleBill(u"text"_s, kind));
        ASSERT_EQ(text.status, 0) << text.err.constData();
        EXPECT_EQ(text.out, readBytes(golden(stem + u".txt"_s))) << stem.toStdString();
        EXPECT_EQ(render(exampleBill(u"rtf"_s, kind)).out, readBytes(golden(stem + u".rtf"_s))) << stem.toStdString();
    }
}

TEST(Render, AWrongFlagEndsWithStatus2AFailureWithStatus1)
{
    EXPECT_EQ(render({u"--bogus"_s}).status, 2);
    // A tariff row with no band that ends the scan: the bill's value reads past column 55.
    QTemporaryDir dir;
    writeBytes(dir.filePath(u"t.txt"_s), "Diritti\nAltro\nVoce senza fascia aperta\n\n100\n1\n2\n");
    writeBytes(dir.filePath(u"b.qX9"_s), "***PARCELLA***\r**********\r**********\r500\r60\r1\r0\r1\r\r");
    const Result r = render({u"--tariff"_s, dir.filePath(u"t.txt"_s), u"--user"_s, dir.filePath(u"nessuno"_s),
                             u"--bill"_s, dir.filePath(u"b.qX9"_s), u"--output"_s, u"bill"_s});
    EXPECT_TRUE(r.status == 1 && r.err.contains("Errore imprevisto")) << r.err.constData();
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
