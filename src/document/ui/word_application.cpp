// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/ui/word_application.h"

namespace lumetra {

WordApplication::WordApplication() : OLEObject(QStringLiteral("Word.Application")) {}

QVariant WordApplication::Event_EventTriggered(const QString &name, const OLEParameters &parameters)
{
    if (name.compare(QLatin1String("DocumentChange"), Qt::CaseInsensitive) == 0) {
        if (DocumentChange)
            DocumentChange();
    } else if (name.compare(QLatin1String("Quit"), Qt::CaseInsensitive) == 0) {
        if (Quit)
            Quit();
    } else if (EventTriggered) {
        return EventTriggered(name, parameters);
    }
    return {};
}

} // namespace lumetra
