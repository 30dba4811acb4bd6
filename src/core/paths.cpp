#include "core/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace lumetra {

namespace {
QString g_executableFolder;
QString g_userDataFolder;

const QString kTariffa = QStringLiteral("tariffe_database.txt");
const QString kUtenza = QStringLiteral("utenza.txt");
} // namespace

QString executableFolder()
{
    return g_executableFolder.isEmpty() ? QCoreApplication::applicationDirPath() : g_executableFolder;
}

void setExecutableFolder(const QString &folder) { g_executableFolder = folder; }

QString userDataFolder()
{
    if (!g_userDataFolder.isEmpty())
        return g_userDataFolder;
    // Lower case, as Linux programs name their folders, whatever the
    // application's display name is.
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/lumetra");
}

void setUserDataFolder(const QString &folder) { g_userDataFolder = folder; }

QString shippedFile(const QString &name)
{
    const QDir here(executableFolder());
    for (const QString &relative :
         {name, QStringLiteral("../Resources/") + name, QStringLiteral("../share/lumetra/") + name}) {
        const QString path = QDir::cleanPath(here.filePath(relative));
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString tariffFile()
{
    const QString own = QDir(userDataFolder()).filePath(kTariffa);
    return QFileInfo(own).isFile() ? own : shippedFile(kTariffa);
}

QString userFile()
{
    const QString portable = QDir(executableFolder()).filePath(kUtenza);
    return QFileInfo::exists(portable) ? portable : QDir(userDataFolder()).filePath(kUtenza);
}

} // namespace lumetra
