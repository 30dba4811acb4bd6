// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/istruzioni.h"

#include "core/files.h"
#include "core/log.h"
#include "core/paths.h"

#include <QDir>

namespace lumetra {

IstruzioniState &x_istruzioni()
{
    static IstruzioniState state;
    return state;
}

QByteArray istruzioni()
{
    IstruzioniState &s = x_istruzioni();
    if (s.loaded)
        return s.permaText;
    // Set before the file is looked at: a failed read is not tried again.
    s.loaded = true;

    // A manual that is missing or refused at the door shows as an empty one.
    const QString path = shippedFile(QStringLiteral("istruzioni.rtf"));
    if (path.isEmpty())
        return s.permaText;
    const LetturaFile manuale = leggiFile(path);
    if (!manuale.rifiuto.isEmpty()) {
        qCDebug(logFiles).noquote() << "manual:" << QDir::toNativeSeparators(path) << "unreadable:" << manuale.rifiuto;
        return s.permaText;
    }
    s.permaText = manuale.bytes;
    qCDebug(logFiles).noquote() << "manual:" << QDir::toNativeSeparators(path) << s.permaText.size() << "bytes";
    return s.permaText;
}

} // namespace lumetra
