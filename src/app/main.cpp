// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/app.h"
#include "app/command_line.h"
#include "app/document_handover.h"
#include "core/ui/handler_guard.h"
#include "editor/ui/finestra.h"

#include <QTimer>
#include <exception>

int main(int argc, char **argv)
{
    using namespace lumetra;
    if (const auto esito = rispondiRigaDiComando(argc, argv))
        return *esito;
    App app(argc, argv);
    try {
        const QStringList documents = documentArguments(App::arguments());
        DocumentHandover handover;
        if (handover.avvia(documents) == DocumentHandover::Avvio::Consegnati)
            return 0;
        handover.openDocument = [&app](const QString &document) { app.Event_OpenDocument(document); };
        handover.activate = [] {
            QWidget *w = QApplication::activeModalWidget();
            if (!w && finestra::exists())
                w = &finestra::instance();
            if (w) {
                w->setWindowState(w->windowState() & ~Qt::WindowMinimized);
                w->raise();
                w->activateWindow();
            }
        };
        QTimer::singleShot(0, &app, [&app, &handover, documents] {
            runGuarded([&] {
                app.Event_Open();
                if (!finestra::exists()) // no tariff: the program is ending
                    return;
                App::setStarted(true);
                for (const QString &document : documents)
                    handover.deliver(document);
                handover.ready = true;
            });
        });
        return app.exec();
    } catch (const std::exception &e) {
        App::reportFailure(QString::fromStdString(e.what()));
        return 1;
    }
}
