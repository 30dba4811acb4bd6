// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/value_filter.h"

namespace lumetra {

std::optional<QString> filtraValore(const QString &testo)
{
    if (testo.isEmpty())
        return std::nullopt;
    // A character outside the basic plane is two units; it is no digit, and
    // goes whole.
    qsizetype ultimo = 1;
    if (testo.size() >= 2 && testo.back().isLowSurrogate() && testo.at(testo.size() - 2).isHighSurrogate())
        ultimo = 2;
    const QChar l = testo.back();
    QChar c = l;
    if (ultimo == 1 && c == QLatin1Char(','))
        c = QLatin1Char('.');
    const bool cifra = ultimo == 1 && c.unicode() >= 48 && c.unicode() <= 57;
    if (ultimo == 1 && (c == QLatin1Char('.') || cifra)) {
        if (c == l)
            return std::nullopt;
        return testo.left(testo.size() - 1) + c;
    }
    return testo.left(testo.size() - ultimo);
}

} // namespace lumetra
