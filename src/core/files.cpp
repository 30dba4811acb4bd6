// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/files.h"

#include "core/failure.h"
#include "core/log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#ifdef Q_OS_WIN
#include <windows.h>
#endif

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace lumetra {

namespace {

// Qt reports the system's words for a cause, some of them translated; the user
// reads ours. They are told apart by Qt's own text for each cause: on Windows
// Qt words the system's error codes, elsewhere errno.
QString motivo(const QString &errorString)
{
    static const struct {
        int code;
        const char *testo;
    } noti[] = {
#ifdef Q_OS_WIN
        {ERROR_DISK_FULL, "disco pieno"},
        {ERROR_HANDLE_DISK_FULL, "disco pieno"},
        {1295, "spazio su disco esaurito"}, // ERROR_DISK_QUOTA_EXCEEDED, missing in MinGW's headers
        {ERROR_FILE_TOO_LARGE, "file troppo grande"},
        {ERROR_ACCESS_DENIED, "permesso negato"},
        {ERROR_SHARING_VIOLATION, "file in uso da un altro programma"},
        {ERROR_LOCK_VIOLATION, "file in uso da un altro programma"},
        {ERROR_WRITE_PROTECT, "disco di sola lettura"},
        {ERROR_FILE_NOT_FOUND, "cartella o file inesistente"},
        {ERROR_PATH_NOT_FOUND, "cartella o file inesistente"},
        {ERROR_DIRECTORY, "è una cartella"},
        {ERROR_CRC, "errore del disco"},
        {ERROR_IO_DEVICE, "errore del disco"},
#else
        {ENOSPC, "disco pieno"},
        {EDQUOT, "spazio su disco esaurito"},
        {EFBIG, "file troppo grande"},
        {EACCES, "permesso negato"},
        {EPERM, "permesso negato"},
        {EROFS, "disco di sola lettura"},
        {ENOENT, "cartella o file inesistente"},
        {ENOTDIR, "cartella inesistente"},
        {EISDIR, "è una cartella"},
        {EIO, "errore del disco"},
#endif
    };
    for (const auto &n : noti) {
        if (errorString.contains(qt_error_string(n.code), Qt::CaseInsensitive))
            return QString::fromUtf8(n.testo);
    }
    return errorString;
}

QString nome(const QString &path) { return QDir::toNativeSeparators(path); }

LetturaFile leggi(const QString &path)
{
    // What the path names is looked at before it is opened: opening a FIFO
    // waits for a writer, reading a device may never end.
    const QFileInfo info(path);
    if (!info.exists())
        return {{}, QStringLiteral("il file non esiste")};
    if (info.isDir())
        return {{}, QStringLiteral("è una cartella")};
    if (!info.isFile())
        return {{}, QStringLiteral("non è un file regolare")};
    if (info.size() > kDimensioneMassima)
        return {{}, QStringLiteral("è troppo grande per essere un file del programma")};

    QFile file;
#ifdef Q_OS_UNIX
    // Opened without waiting, and looked at once more as it is open: the path
    // may have been replaced in between.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return {{}, motivo(qt_error_string(errno))};
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return {{}, QStringLiteral("non è un file regolare")};
    }
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return {{}, motivo(file.errorString())};
    }
#else
    file.setFileName(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, motivo(file.errorString())};
#endif
    // One byte more than the bound tells a file that has grown since.
    QByteArray bytes = file.read(kDimensioneMassima + 1);
    if (bytes.size() > kDimensioneMassima)
        return {{}, QStringLiteral("è troppo grande per essere un file del programma")};
    if (file.error() != QFileDevice::NoError) {
        qCDebug(logFiles).noquote() << "read" << nome(path) << "failed:" << file.errorString();
        throw UnhandledFailure(
            QStringLiteral("impossibile leggere il file %1 (%2)").arg(nome(path), motivo(file.errorString())));
    }
    return {std::move(bytes), {}};
}

} // namespace

QString messaggioRifiuto(const QString &path, const QString &rifiuto)
{
    return QStringLiteral("impossibile leggere il file %1: %2").arg(nome(path), rifiuto);
}

LetturaFile leggiFile(const QString &path)
{
    LetturaFile lettura = leggi(path);
    if (lettura.rifiuto.isEmpty())
        qCDebug(logFiles).noquote() << "read" << nome(path) << lettura.bytes.size() << "bytes";
    else
        qCDebug(logFiles).noquote() << "read" << nome(path) << "refused:" << lettura.rifiuto;
    return lettura;
}

QByteArray readWholeFile(const QString &path)
{
    LetturaFile lettura = leggiFile(path);
    if (!lettura.rifiuto.isEmpty())
        throw UnhandledFailure(messaggioRifiuto(path, lettura.rifiuto));
    return std::move(lettura.bytes);
}

void writeWholeFile(const QString &path, const QByteArray &bytes)
{
    // What is not committed is thrown away with the object: the old file stays.
    QSaveFile file(path);
    const auto fallita = [&] {
        qCDebug(logFiles).noquote() << "write" << nome(path) << bytes.size() << "bytes failed:" << file.errorString();
        return UnhandledFailure(
            QStringLiteral("impossibile registrare il file %1 (%2)").arg(nome(path), motivo(file.errorString())));
    };
    // Unbuffered, so that each write reaches the system and its failure is seen.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw fallita();
    // A short write is not always an error to Qt (a file size limit, a disk
    // that fills up): the write of the rest then tells why it fails.
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 n = file.write(bytes.constData() + written, bytes.size() - written);
        if (n <= 0)
            throw fallita();
        written += n;
    }
    if (!file.commit())
        throw fallita();
    qCDebug(logFiles).noquote() << "write" << nome(path) << bytes.size() << "bytes done";
}

} // namespace lumetra
