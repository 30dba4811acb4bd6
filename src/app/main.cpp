#include "app/app.h"
#include "app/document_handover.h"
#include "editor/ui/finestra.h"

#include <QTimer>
#include <exception>

int main(int argc, char **argv)
{
    using namespace lumetra;
    App app(argc, argv);
    try {
        const QStringList documents = documentArguments(App::arguments());
        DocumentHandover handover;
        // Two starts at once: the one that loses the race to listen hands over
        // to the other.
        bool listening = false;
        for (int attempt = 0; attempt < 3 && !listening; ++attempt) {
            const auto esito = handover.consegna(documents);
            if (esito == DocumentHandover::Esito::Consegnati)
                return 0;
            if (esito == DocumentHandover::Esito::NessunaRisposta)
                break; // a copy that hangs: this one runs on its own
            listening = handover.listen();
        }
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
            app.Event_Open();
            if (!finestra::exists()) // no tariff: the program is ending
                return;
            App::setStarted(true);
            for (const QString &document : documents)
                handover.deliver(document);
            handover.ready = true;
        });
        return app.exec();
    } catch (const std::exception &e) {
        App::reportFailure(QString::fromStdString(e.what()));
        return 1;
    }
}
