#include "core/ui/app.h"

#include <QTimer>
#include <exception>

int main(int argc, char **argv)
{
    using lumetra::App;
    App app(argc, argv);
    try {
        QTimer::singleShot(0, &app, [&app] { app.Event_Open(); });
        return app.exec();
    } catch (const std::exception &e) {
        App::reportFailure(QString::fromStdString(e.what()));
    }
}
