#include "core/ui/app.h"
#include "core/ui/document_handover.h"
#include "editor/ui/finestra.h"

#include <QTimer>
#include <exception>

int main(int argc, char **argv)
{
    using namespace lumetra;
    App app(argc, argv);
    try {
        const QStringList documents = documentArguments(App::arguments());
        if (!documents.isEmpty() && DocumentHandover::forwardToRunning(documents))
            return 0;
        DocumentHandover handover;
        QTimer::singleShot(0, &app, [&app, &handover, documents] {
            app.Event_Open();
            if (!finestra::exists()) // no tariff: the program is ending
                return;
            for (const QString &document : documents)
                app.Event_OpenDocument(document);
            handover.listen();
        });
        return app.exec();
    } catch (const std::exception &e) {
        App::reportFailure(QString::fromStdString(e.what()));
    }
}
