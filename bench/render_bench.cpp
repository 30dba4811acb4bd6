// SPDX-License-Identifier: GPL-3.0-or-later
// Time of one lumetra-render run, process start included, over the shipped
// tariff: load the tariff and the user data, open a bill, compose its RTF.
// The tool is meant for batches, so its start-up counts.
//
//   render_bench [runs]
//
// Prints the median and the slowest run; exits 1 when a run fails or the
// median is not under 2 s.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

bool write(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    QTemporaryDir dir;
    const QString bill = dir.filePath(QStringLiteral("b.qX9")), user = dir.filePath(QStringLiteral("utenza.txt"));
    if (!write(bill, "***PARCELLA***\rCausa\r**********\rCliente\r**********\r30000\r60\r2\r0\r1\r\r")
        || !write(user,
                  "\nAvv. Tizio Caio\nVia Roma 1\n98100 Messina\n090 123456\n\n\n01234567890\nTZICAI70A01F158X\n")) {
        std::fprintf(stderr, "cannot write the input files\n");
        return 1;
    }
    const QStringList args = {QStringLiteral("--tariff"), QStringLiteral(LUMETRA_TARIFF),
                              QStringLiteral("--user"),   user,
                              QStringLiteral("--bill"),   bill,
                              QStringLiteral("--output"), QStringLiteral("rtf")};
    std::vector<qint64> ms;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        QProcess p;
        p.start(QStringLiteral(LUMETRA_RENDER), args);
        const bool done = p.waitForFinished(60000);
        ms.push_back(timer.elapsed());
        if (!done || p.exitCode() != 0 || !p.readAllStandardOutput().startsWith("{\\rtf1")) {
            std::fprintf(stderr, "lumetra-render failed: %s\n", p.readAllStandardError().constData());
            return 1;
        }
    }
    std::sort(ms.begin(), ms.end());
    const qint64 median = ms[ms.size() / 2];
    std::printf("lumetra-render, shipped tariff, RTF: median %lld ms, slowest %lld ms (%d runs)\n",
                static_cast<long long>(median), static_cast<long long>(ms.back()), runs);
    return median < 2000 ? 0 : 1;
}
