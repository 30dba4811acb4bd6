#include "document/ui/fin_elaborazione.h"

#include "core/globali.h"
#include "editor/ui/finestra.h"

namespace lumetra {

fin_elaborazione::fin_elaborazione()
{
    setObjectName(QStringLiteral("fin_elaborazione"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    resize(640, 480);
}

void fin_elaborazione::Event_Open()
{
    setWindowTitle(globali().elab != 0 ? QStringLiteral("Fattura") : QStringLiteral("Nota spese - Competenze"));
}

void fin_elaborazione::Event_Close() { finestra::instance().show(); }

void fin_elaborazione::ShowModal() { exec(); }

void fin_elaborazione::done(int result)
{
    Event_Close();
    QDialog::done(result);
}

} // namespace lumetra
