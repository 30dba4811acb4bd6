// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/layout.h"

#include "core/failure.h"
#include "core/text_functions.h"

#include <vector>

namespace lumetra {

namespace {

bool isBreak(QChar c)
{
    switch (c.unicode()) {
    case u' ':
    case u',':
    case u'.':
    case u'(':
    case u')':
    case u';':
    case u':':
    case u'-':
        return true;
    default:
        return false;
    }
}

} // namespace

QString spezzatesto(const QString &text, int width)
{
    const QString t = text + QLatin1Char(' ');
    const int n = Len(t);
    const QString blank(QLatin1Char(' '));
    QString result;
    QString lastLine;
    if (width >= n) {
        result = blank + t;
        lastLine = result;
    } else {
        // b[j] is the position (from 1) of the j-th break character; b[0] = 0.
        // t ends in a blank, so the last break is at n.
        std::vector<int> b{0};
        for (int i = 1; i <= n; ++i)
            if (isBreak(t[i - 1]))
                b.push_back(i);
        const int k = int(b.size()) - 1;

        // The limits lie on a fixed grid and j only moves forward: at most one
        // cut per limit, at the end of the token before the one holding it.
        // Once j has run past the last token no limit can cut any more, so the
        // loop may stop there (which also ends it for a width of 0).
        std::vector<QString> pieces;
        int limit = width;
        int j = 0;
        int start = 1;
        while (limit < n && j <= k) {
            for (;;) {
                ++j;
                if (j <= k && b[size_t(j - 1)] <= limit && limit <= b[size_t(j)]) {
                    pieces.push_back(blank + Mid(t, start, b[size_t(j - 1)] - start + 1));
                    start = b[size_t(j - 1)] + 1;
                    break;
                }
                if (j > k)
                    break;
            }
            limit += width;
        }
        if (pieces.empty()) {
            result = blank + t;
            lastLine = result;
        } else {
            pieces.push_back(blank + Mid(t, start));
            lastLine = pieces.back();
            for (size_t i = 0; i < pieces.size(); ++i) {
                if (i > 0)
                    result += kFineRiga;
                result += pieces[i];
            }
        }
    }
    const int pad = width + 5 - Len(lastLine);
    if (pad > 0)
        result += QString(pad, QLatin1Char(' '));
    return result;
}

QString giustifica_testo(const QString &text, int width)
{
    const int pad = width - Len(text);
    if (pad <= 0)
        return text;
    return QString(pad, QLatin1Char(' ')) + text;
}

int contarighe(const QString &text, int count) { return count + int(text.count(kFineRiga)); }

QString Crea_abcde(std::span<const QString> list, int first, int last)
{
    QString result;
    for (int i = first; i <= last; ++i) {
        if (i < 0 || i >= int(list.size()))
            throw UnhandledFailure(QStringLiteral("indice %1 fuori dalla tabella delle lettere").arg(i));
        const QString &entry = list[size_t(i)];
        if (entry.isEmpty())
            continue;
        if (!result.isEmpty())
            result += QLatin1Char('+');
        result += entry;
    }
    return result;
}

QString rigaTotale() { return QString(77, QLatin1Char(' ')) + QString(14, QChar(0x2014)); }

QString rigaImporto(const QString &description, const QString &field1, const QString &field2, double amount)
{
    return spezzatesto(description, kLarghezzaVoce) + giustifica_testo(field1, 6) + giustifica_testo(field2, 14)
        + giustifica_testo(Format(amount, QStringLiteral("-#.00")) + QStringLiteral(" €"), 16);
}

} // namespace lumetra
