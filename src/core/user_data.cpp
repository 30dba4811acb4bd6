// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/user_data.h"

#include "core/encodings.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/log.h"
#include "core/paths.h"

#include <QDir>
#include <QFileInfo>

namespace lumetra {

Utenza leggiUtenza(const QByteArray &bytes)
{
    Utenza utenza;
    LineReader stream(fromMacRoman(bytes));
    int k = 0;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (k >= int(utenza.size()))
            throw UnhandledFailure(QStringLiteral("il file utenza.txt ha più di nove righe"));
        utenza[size_t(k++)] = line;
    }
    return utenza;
}

QByteArray scriviUtenza(const Utenza &utenza)
{
    QByteArray out;
    for (const QString &line : utenza) {
        out += toMacRoman(line);
        out += '\n';
    }
    return out;
}

bool esisteUtenza()
{
    const QString path = userFile();
    const bool esiste = QFileInfo::exists(path);
    const bool portatile = path == QDir(executableFolder()).filePath(QStringLiteral("utenza.txt"));
    qCDebug(logFiles).noquote() << "user data:" << QDir::toNativeSeparators(path)
                                << (portatile ? "(portable copy beside the program)" : "(per-user folder)")
                                << (esiste ? "found" : "not written yet");
    return esiste;
}

Utenza caricaUtenza() { return leggiUtenza(readWholeFile(userFile())); }

void salvaUtenza(const Utenza &utenza)
{
    const QString path = userFile();
    // The per-user folder does not exist before the first save.
    QDir().mkpath(QFileInfo(path).absolutePath());
    writeWholeFile(path, scriviUtenza(utenza));
}

void registraUtenza(Utenza &corrente, const Utenza &nuova)
{
    salvaUtenza(nuova);
    corrente = nuova;
}

} // namespace lumetra
