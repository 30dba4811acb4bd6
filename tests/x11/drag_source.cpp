// SPDX-License-Identifier: GPL-3.0-or-later
// A program of its own that drags a file, as a file manager does: a small
// window at the place it is told, which starts a drag of the file when the
// mouse button goes down on it. It ends as soon as the drop is done, as some
// sources do, so that the target can no longer ask it for the data; with
// "resta" it goes on running, as a file manager does.
//   x11_drag_source FILE X Y [resta]

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <QWindow>
#include <cstdio>

namespace {

class Sorgente : public QWidget {
public:
    Sorgente(const QString &file, bool resta) : m_file(file), m_resta(resta) {}

protected:
    void mousePressEvent(QMouseEvent *) override
    {
        auto *drag = new QDrag(this);
        auto *mime = new QMimeData;
        mime->setUrls({QUrl::fromLocalFile(m_file)});
        drag->setMimeData(mime);
        // What a file manager offers.
        const Qt::DropAction done = drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::CopyAction);
        std::printf("dropped %d\n", int(done));
        std::fflush(stdout);
        QTimer::singleShot(m_resta ? 5000 : 0, qApp, &QApplication::quit);
    }

private:
    QString m_file;
    bool m_resta;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (argc != 4 && argc != 5) {
        std::fprintf(stderr, "usage: x11_drag_source FILE X Y [resta]\n");
        return 2;
    }
    Sorgente window(QString::fromLocal8Bit(argv[1]), argc == 5);
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.setGeometry(QString::fromLatin1(argv[2]).toInt(), QString::fromLatin1(argv[3]).toInt(), 60, 60);
    window.show();
    // Once the window is on the screen, the test can press on it.
    QTimer attesa;
    QObject::connect(&attesa, &QTimer::timeout, &window, [&] {
        if (!window.windowHandle() || !window.windowHandle()->isExposed())
            return;
        attesa.stop();
        std::printf("ready\n");
        std::fflush(stdout);
    });
    attesa.start(20);
    return app.exec();
}
