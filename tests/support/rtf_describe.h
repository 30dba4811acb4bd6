// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A StyledText as a short text for tests: runs split by '|', each with its
// style in angle brackets when it has one (b, i, u, @size, font, #colour), a
// line end shown as '¶', then '/' and one digit per paragraph alignment.

#include "richtext/styled_text.h"
#include "support/test_files.h"

#include <QStringList>
#include <ostream>

namespace lumetra::test {

inline QString describe(const StyledText &t)
{
    QStringList runs;
    for (int i = 0; i < t.StyleRunCount(); ++i) {
        const TextStyle s = t.StyleRun(i).style;
        QStringList parts{QString::fromLatin1(s.bold ? "b" : "") + QLatin1StringView(s.italic ? "i" : "")
                          + QLatin1StringView(s.underline ? "u" : "")};
        if (s.size != 0)
            parts << QStringLiteral("@%1").arg(s.size);
        if (s.font != QStringLiteral("System"))
            parts << s.font;
        if (s.textColor != 0)
            parts << QStringLiteral("#%1").arg(s.textColor, 6, 16, QLatin1Char('0'));
        const QString style = parts.join(QLatin1Char(' ')).trimmed();
        runs << (style.isEmpty() ? QString() : QLatin1Char('<') + style + QLatin1Char('>'))
                + QString(t.StyleRun(i).text).replace(QChar(13), QChar(0x00B6));
    }
    QString out = runs.join(QLatin1Char('|')) + QLatin1Char('/');
    for (int i = 0; i < t.ParagraphCount(); ++i)
        out += QString::number(t.ParagraphAlignment(i));
    return out;
}

} // namespace lumetra::test
