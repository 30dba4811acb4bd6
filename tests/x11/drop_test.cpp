// SPDX-License-Identifier: GPL-3.0-or-later
// A bill dragged from another program, as a file manager drags one, through
// the real X11 drag and drop: on Xvfb, a drag source of its own process drops
// it onto the main window, on a field, a list, the panel and the window's own
// background, and the bill opens as "Apri.." opens it.
//
// The program starts its own Xvfb; without Xvfb or xdotool it is skipped
// (status 77).

#include "core/bill_file.h"
#include "editor/ui/finestra_fixture.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

// Where the drag source's window stands: right of the main window.
const QPoint kSorgente(1100, 100);

class X11Drop : public FinestraTest {
protected:
    // Drags file from a program of its own onto the point of target, and
    // waits for the heading of the bill to show in EditField1. The source ends
    // as soon as it has dropped, or with resta goes on running.
    bool trascina(const QString &file, QWidget *target, QPoint local, const QString &heading, bool resta = false)
    {
        const QPoint at = target->mapToGlobal(local);
        QWidget *under = QApplication::widgetAt(at);
        EXPECT_TRUE(under == target || target->isAncestorOf(under))
            << target->objectName().toStdString() << " is not where the drop goes";

        QProcess source;
        QStringList arguments{file, QString::number(kSorgente.x()), QString::number(kSorgente.y())};
        if (resta)
            arguments << u("resta");
        source.start(QStringLiteral(LUMETRA_DRAG_SOURCE), arguments);
        // The source's window on the screen: this program takes its events meanwhile.
        if (!attendi([&] { return source.canReadLine(); }, 10000)) {
            ADD_FAILURE() << "the drag source did not start: " << source.readAllStandardError().toStdString();
            return false;
        }
        // Press on the source, move over the window in a few steps, release.
        QStringList steps{u("mousemove"),
                          QString::number(kSorgente.x() + 30),
                          QString::number(kSorgente.y() + 30),
                          u("mousedown"),
                          u("1"),
                          u("sleep"),
                          u("0.3")};
        for (int i = 1; i <= 4; ++i) {
            const QPoint p = kSorgente + (at + QPoint(3, 2) - kSorgente) * i / 4;
            steps << u("mousemove") << QString::number(p.x()) << QString::number(p.y()) << u("sleep") << u("0.2");
        }
        steps << u("mousemove") << QString::number(at.x()) << QString::number(at.y()) << u("sleep") << u("0.2")
              << u("mouseup") << u("1");
        QProcess xdotool;
        xdotool.start(QStringLiteral("xdotool"), steps);
        const bool dropped = attendi([&] { return xdotool.state() == QProcess::NotRunning; }, 15000)
            && attendi([&] { return EditField1->Text() == heading; }, 10000);
        source.kill();
        source.waitForFinished(5000);
        return dropped;
    }

    // Takes events until done() holds, for at most ms milliseconds.
    template <class F>
    static bool attendi(F done, int ms)
    {
        for (QElapsedTimer t; !done();) {
            if (!t.isValid())
                t.start();
            if (t.elapsed() > ms)
                return false;
            QTest::qWait(20);
        }
        return true;
    }
};

} // namespace

TEST_F(X11Drop, ABillDroppedFromAnotherProgramOpensWhereverItLands)
{
    QWidget *panel = w->findChild<QWidget *>(u("Rectangle1"));
    ASSERT_NE(panel, nullptr);
    // where, the point there (a free spot of the panel, of the window's background)
    const std::tuple<const char *, QWidget *, QPoint> cases[] = {
        {"field", EditField1, EditField1->rect().center()},
        {"value", EditQuantum, EditQuantum->rect().center()},
        {"bill list", Listbox2, Listbox2->rect().center()},
        {"tariff list", Listbox1, Listbox1->rect().center()},
        {"panel", panel, QPoint(600, 47)},
        {"background", w->centralWidget(), QPoint(40, 100)},
    };
    int n = 0;
    for (const auto &[where, target, local] : cases) {
        const QString heading = u("Causa trascinata sul punto %1").arg(++n);
        writeFile(u("Trascinata%1.qX9").arg(n), scriviParcella({heading, u("Cliente"), u("3000"), true, true}, dati()));
        EXPECT_TRUE(trascina(folderPath(u("Trascinata%1.qX9").arg(n)), target, local, heading)) << where;
        EXPECT_EQ(globali().nome_attuale, u("Trascinata%1.qX9").arg(n)) << where;
    }
    // A bill with unsaved changes, from a source that goes on running: the warning first, as "Apri.." gives it.
    digita(EditField2, u(" modificato"));
    continua();
    EXPECT_TRUE(trascina(folderPath(u("Trascinata1.qX9")), EditField2, EditField2->rect().center(),
                         u("Causa trascinata sul punto 1"), true));
    EXPECT_TRUE(avvisi == 1 && !globali().modificato);
}

// An Xvfb of the test's own for the whole run, on a display it picks itself.
int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (QStandardPaths::findExecutable(u("Xvfb")).isEmpty() || QStandardPaths::findExecutable(u("xdotool")).isEmpty()) {
        std::fprintf(stderr, "Xvfb or xdotool is missing: the X11 drop is not tested\n");
        return 77;
    }
    int display[2];
    if (pipe(display) != 0)
        return 1;
    const pid_t xvfb = fork();
    if (xvfb == 0) {
        close(display[0]);
        const std::string fd = std::to_string(display[1]);
        execlp("Xvfb", "Xvfb", "-displayfd", fd.c_str(), "-nolisten", "tcp", "-screen", "0", "1280x1024x24",
               static_cast<char *>(nullptr));
        _exit(127);
    }
    close(display[1]);
    // The number and a line end, which Xvfb may write apart: the pipe stays
    // open for it until the end.
    QByteArray number;
    for (char c = 0; read(display[0], &c, 1) == 1 && c != '\n';)
        number += c;
    if (number.isEmpty()) {
        std::fprintf(stderr, "Xvfb did not start\n");
        return 1;
    }
    qputenv("DISPLAY", ":" + number);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("WAYLAND_DISPLAY");
    int result = 1;
    {
        App app(argc, argv);
        result = RUN_ALL_TESTS();
    }
    kill(xvfb, SIGTERM);
    waitpid(xvfb, nullptr, 0);
    close(display[0]);
    return result;
}
