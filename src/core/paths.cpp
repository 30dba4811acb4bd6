// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/paths.h"

#include "core/log.h"

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
#ifdef Q_OS_WIN
    // The user's roaming application data: %APPDATA%\Lumetra.
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
#else
    // Lower case, as Linux programs name their folders, whatever the
    // application's display name is.
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/lumetra");
#endif
}

void setUserDataFolder(const QString &folder) { g_userDataFolder = folder; }

QString shippedFile(const QString &name)
{
    const QDir here(executableFolder());
    for (const QString &relative :
         {name, QStringLiteral("../Resources/") + name, QStringLiteral("../share/lumetra/") + name}) {
        // Whatever stands there is the file: one the program cannot read is
        // refused with its name when it is read, never passed over.
        const QString path = QDir::cleanPath(here.filePath(relative));
        if (QFileInfo::exists(path))
            return path;
    }
    qCDebug(logFiles).noquote() << name << "not found beside" << QDir::toNativeSeparators(here.path())
                                << "nor in ../Resources/ or ../share/lumetra/";
    return {};
}

QString tariffFile()
{
    const QString own = QDir(userDataFolder()).filePath(kTariffa);
    if (QFileInfo::exists(own)) {
        qCDebug(logFiles).noquote() << "tariff:" << QDir::toNativeSeparators(own) << "(the user's own)";
        return own;
    }
    const QString shipped = shippedFile(kTariffa);
    if (!shipped.isEmpty())
        qCDebug(logFiles).noquote() << "tariff:" << QDir::toNativeSeparators(shipped) << "(shipped)";
    return shipped;
}

QString userFile()
{
    const QString portable = QDir(executableFolder()).filePath(kUtenza);
    return QFileInfo::exists(portable) ? portable : QDir(userDataFolder()).filePath(kUtenza);
}

} // namespace lumetra
