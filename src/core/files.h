// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whole-file reads and writes.
//
// One door for every file the program reads (a bill however it comes, the
// tariff, utenza.txt): a regular file, readable, of no more than
// kDimensioneMassima bytes. Anything else (a folder, a FIFO, a device, a file
// no real one is as large as) is refused before a byte is read, so that
// nothing the user points the program at makes it hang or fill the memory.
//
// A write replaces the old file only by a complete new one; a failure leaves
// the old file as it was and is an unhandled failure that tells why, in words
// the user understands.

#include <QByteArray>
#include <QString>

namespace lumetra {

// Larger than any bill, tariff or utenza.txt: the whole tariff is about 100 KB.
constexpr qint64 kDimensioneMassima = 16 * 1024 * 1024;

struct LetturaFile {
    QByteArray bytes;
    // Why the file was refused, for the user ("non è un file regolare");
    // empty when it was read.
    QString rifiuto;
};

// The door: the file's bytes, or the reason it was refused. A read that fails
// half way (a disk error) is an unhandled failure.
LetturaFile leggiFile(const QString &path);

// The door for a file the program cannot do without: a refusal is an unhandled
// failure that names the file.
QByteArray readWholeFile(const QString &path);

// The text of a refusal that names the file: "impossibile leggere il file
// <path>: <reason>".
QString messaggioRifiuto(const QString &path, const QString &rifiuto);

void writeWholeFile(const QString &path, const QByteArray &bytes);

} // namespace lumetra
