#pragma once
// Whole-file reads and writes. A write replaces the old file only by a complete
// new one; a failure leaves the old file as it was and is an unhandled failure
// that tells why, in words the user understands.

#include <QByteArray>
#include <QString>

namespace lumetra {

QByteArray readWholeFile(const QString &path);
void writeWholeFile(const QString &path, const QByteArray &bytes);

} // namespace lumetra
