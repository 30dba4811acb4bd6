#include "core/files.h"

#include "core/failure.h"
#include "core/log.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <cerrno>

namespace lumetra {

namespace {

// Qt reports the system's words for a cause, some of them translated; the user
// reads ours. They are told apart by Qt's own text for each cause.
QString motivo(const QString &errorString)
{
    static const struct {
        int code;
        const char *testo;
    } noti[] = {
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
    };
    for (const auto &n : noti) {
        if (errorString.contains(qt_error_string(n.code), Qt::CaseInsensitive))
            return QString::fromUtf8(n.testo);
    }
    return errorString;
}

QString nome(const QString &path) { return QDir::toNativeSeparators(path); }

} // namespace

QByteArray readWholeFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(logFiles).noquote() << "read" << nome(path) << "failed:" << file.errorString();
        throw UnhandledFailure(
            QStringLiteral("impossibile aprire il file %1 (%2)").arg(nome(path), motivo(file.errorString())));
    }
    const QByteArray bytes = file.readAll();
    qCDebug(logFiles).noquote() << "read" << nome(path) << bytes.size() << "bytes";
    return bytes;
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
