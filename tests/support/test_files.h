// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reading and writing test files as bytes, and a file no reader may take.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <ostream>
#include <stdexcept>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

// Texts in failure messages as text, not as arrays of characters.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }

namespace lumetra::test {

inline QString u(const char *s) { return QString::fromUtf8(s); }

inline QByteArray readBytes(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return f.readAll();
}

inline void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw std::runtime_error("cannot write " + path.toStdString());
    f.write(bytes);
}

// What no reader may take, and what the program's door says of it: a FIFO; on Windows, which has none, a folder.
#ifdef Q_OS_UNIX
inline const QString kRifiuto = QString::fromUtf8("non è un file regolare");
inline bool nessunFile(const QString &path) { return mkfifo(path.toLocal8Bit().constData(), 0600) == 0; }
#else
inline const QString kRifiuto = QString::fromUtf8("è una cartella");
inline bool nessunFile(const QString &path) { return QDir().mkdir(path); }
#endif

inline QString dataPath(const QString &relative) { return QStringLiteral(LUMETRA_TEST_DATA "/") + relative; }

} // namespace lumetra::test
