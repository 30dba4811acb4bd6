// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_files.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace lumetra::test;
using namespace Qt::StringLiterals;

namespace {

struct Result {
    int status = -1;
    QByteArray out, err;
};

Result run(const QString &program, const QStringList &args, const QProcessEnvironment &env)
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(program, args);
    EXPECT_TRUE(p.waitForFinished(30000));
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
            p.readAllStandardError()};
}

Result render(const QStringList &args)
{
    return run(QStringLiteral(LUMETRA_RENDER), args, QProcessEnvironment::systemEnvironment());
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

// The bill is repriced in the band of the kind of value: "Min" and "Max" follow it, own amounts stay.
TEST(Render, TheBillIsRepricedForTheKindOfValue)
{
    for (const auto &[mode, total] : {std::pair{"0", "601,81"}, {"1", "751,81"}, {"2", "1901,81"}}) {
        const Result r = render(exampleBill(u"bill"_s) + QStringList{u"--mode"_s, QString::fromLatin1(mode)});
        EXPECT_TRUE(r.out.endsWith(QByteArray("TOTALE:\t") + total + '\n')) << mode << r.out.constData();
    }
}

// A wrong flag ends with status 2; a failure, or a bill the program's door refuses (a folder; a FIFO would block
// the run, /dev/zero would fill the memory), with status 1 and the reason naming the file.
TEST(Render, ExitStatuses)
{
    EXPECT_EQ(render({u"--bogus"_s}).status, 2);
    QTemporaryDir dir;
    // A tariff row with no band that ends the scan: the bill's value reads past column 55.
    writeBytes(dir.filePath(u"t.txt"_s), "Diritti\nAltro\nVoce senza fascia aperta\n\n100\n1\n2\n");
    writeBytes(dir.filePath(u"b.qX9"_s), "***PARCELLA***\r**********\r**********\r500\r60\r1\r0\r1\r\r");
    // the argument replaced (1 the tariff, 3 the user data, 5 the bill), by what, the message
    const QString cartella = dir.filePath(u"cartella.qX9"_s);
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"cartella.qX9"_s));
    std::vector<std::tuple<int, QString, const char *>> cases = {
        {5, dir.filePath(u"b.qX9"_s), "Errore imprevisto"},
        {5, cartella, "cartella.qX9: è una cartella"},
        {3, cartella, "cartella.qX9: è una cartella"},
        {1, cartella, "cartella.qX9: è una cartella"},
    };
#ifdef Q_OS_UNIX
    // FIFOs and devices are Unix's.
    const QString tubo = dir.filePath(u"tubo.qX9"_s);
    ASSERT_EQ(mkfifo(tubo.toLocal8Bit().constData(), 0600), 0);
    cases.insert(cases.end(),
                 {{5, tubo, "tubo.qX9: non è un file regolare"},
                  {5, u"/dev/zero"_s, "/dev/zero: non è un file regolare"},
                  {3, tubo, "tubo.qX9: non è un file regolare"},
                  {1, tubo, "tubo.qX9: non è un file regolare"}});
#endif
    for (const auto &[index, file, message] : cases) {
        QStringList args = exampleBill(u"bill"_s);
        args[1] = dir.filePath(u"t.txt"_s);
        args[5] = dir.filePath(u"b.qX9"_s);
        args[index] = file;
        const Result r = render(args);
        // The messages are in the system's own 8-bit encoding (Windows's code page, UTF-8 here).
        EXPECT_TRUE(r.status == 1 && QString::fromLocal8Bit(r.err).contains(QString::fromUtf8(message)))
            << file.toStdString() << r.err.constData();
    }
}

// Both programs answer --help and --version on standard output, and a wrong
// option on standard error with status 2, on a machine with no display: with
// the X platform asked for and no DISPLAY, starting Qt's windowing would abort.
TEST(Programs, HelpVersionAndAWrongOptionNeedNoDisplay)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(u"DISPLAY"_s);
    env.remove(u"WAYLAND_DISPLAY"_s);
    env.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    const QString lumetra = QStringLiteral(LUMETRA_PROGRAM), renderer = QStringLiteral(LUMETRA_RENDER);
    const QByteArray version = LUMETRA_VERSION;
    struct Case {
        QString program;
        QString arg;
        int status;
        QByteArray out, err;
    };
    for (const Case &c : {Case{lumetra, u"--version"_s, 0, "Lumetra " + version + "\nLicenza GPL-3.0-or-later", ""},
                          Case{lumetra, u"--help"_s, 0, "Uso: lumetra ", ""},
                          Case{lumetra, u"--bogus"_s, 2, "", "lumetra: opzione sconosciuta: --bogus\n"},
                          Case{renderer, u"--version"_s, 0, "lumetra-render (Lumetra) " + version + "\n", ""},
                          Case{renderer, u"--help"_s, 0, "usage: lumetra-render ", ""}}) {
        Result r = run(c.program, {c.arg}, env);
        // Windows ends a printed line with a carriage return too.
        r.out.replace("\r\n", "\n");
        r.err.replace("\r\n", "\n");
        const std::string what = c.program.toStdString() + " " + c.arg.toStdString();
        EXPECT_EQ(r.status, c.status) << what << r.err.constData();
        EXPECT_TRUE(c.out.isEmpty() ? r.out.isEmpty() : r.out.startsWith(c.out)) << what << r.out.constData();
        EXPECT_TRUE(c.err.isEmpty() ? r.err.isEmpty() : r.err.startsWith(c.err)) << what << r.err.constData();
    }
}
