#include "help/istruzioni.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace lumetra {

namespace {
QString g_executableFolder;
}

IstruzioniState &x_istruzioni()
{
    static IstruzioniState state;
    return state;
}

void setIstruzioniExecutableFolder(const QString &folder) { g_executableFolder = folder; }

QByteArray istruzioni()
{
    IstruzioniState &s = x_istruzioni();
    if (s.loaded)
        return s.permaText;
    // Set before the file is looked at: a failed read is not tried again.
    s.loaded = true;

    QDir folder(g_executableFolder.isEmpty() ? QCoreApplication::applicationDirPath() : g_executableFolder);
    if (!folder.cdUp() || !folder.cd(QStringLiteral("Resources")))
        return s.permaText;
    QFile file(folder.filePath(QStringLiteral("istruzioni.rtf")));
    if (!file.open(QIODevice::ReadOnly))
        return s.permaText;
    s.permaText = file.readAll();
    return s.permaText;
}

} // namespace lumetra
