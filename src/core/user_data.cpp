#include "core/user_data.h"

#include "core/encodings.h"
#include "core/failure.h"

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

} // namespace lumetra
