// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reading and writing test files as bytes.

#include <QByteArray>
#include <QFile>
#include <QString>
#include <ostream>
#include <stdexcept>

// Texts in failure messages as text, not as arrays of characters.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }

namespace lumetra::test {

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

inline QString dataPath(const QString &relative) { return QStringLiteral(LUMETRA_TEST_DATA "/") + relative; }

} // namespace lumetra::test
