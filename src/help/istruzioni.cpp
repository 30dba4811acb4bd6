#include "help/istruzioni.h"

#include "core/log.h"
#include "core/paths.h"

#include <QDir>
#include <QFile>

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

    const QString path = shippedFile(QStringLiteral("istruzioni.rtf"));
    if (path.isEmpty())
        return s.permaText;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(logFiles).noquote() << "manual:" << QDir::toNativeSeparators(path)
                                    << "unreadable:" << file.errorString();
        return s.permaText;
    }
    s.permaText = file.readAll();
    qCDebug(logFiles).noquote() << "manual:" << QDir::toNativeSeparators(path) << s.permaText.size() << "bytes";
    return s.permaText;
}

} // namespace lumetra
