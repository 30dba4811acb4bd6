#include "help/istruzioni.h"

#include "core/paths.h"

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

    QFile file(shippedFile(QStringLiteral("istruzioni.rtf")));
    if (!file.open(QIODevice::ReadOnly))
        return s.permaText;
    s.permaText = file.readAll();
    return s.permaText;
}

} // namespace lumetra
