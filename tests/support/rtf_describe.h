#pragma once
// A StyledText as a short text for tests: runs split by '|', each with its
// style in angle brackets when it has one (b, i, u, @size, font, #colour), a
// line end shown as '¶'; and the paragraph alignments as digits.

#include "richtext/styled_text.h"

#include <QStringList>

namespace lumetra::test {

inline QString describeStyle(const TextStyle &s)
{
    QStringList parts;
    const QString flags = QString::fromLatin1(s.bold ? "b" : "") + QString::fromLatin1(s.italic ? "i" : "")
        + QString::fromLatin1(s.underline ? "u" : "");
    if (!flags.isEmpty())
        parts << flags;
    if (s.size != 0)
        parts << QStringLiteral("@") + QString::number(s.size);
    if (s.font != QStringLiteral("System"))
        parts << s.font;
    if (s.textColor != 0)
        parts << QStringLiteral("#%1").arg(s.textColor, 6, 16, QLatin1Char('0'));
    return parts.isEmpty() ? QString() : QStringLiteral("<") + parts.join(QLatin1Char(' ')) + QStringLiteral(">");
}

inline QString describe(const StyledText &t)
{
    QStringList runs;
    for (int i = 0; i < t.StyleRunCount(); ++i) {
        const StyleRun r = t.styleRun(i);
        QString text = r.text;
        text.replace(QChar(13), QChar(0x00B6));
        runs << describeStyle(r.style) + text;
    }
    return runs.join(QLatin1Char('|'));
}

inline QString alignments(const StyledText &t)
{
    QString out;
    for (int i = 0; i < t.ParagraphCount(); ++i)
        out += QString::number(t.ParagraphAlignment(i));
    return out;
}

} // namespace lumetra::test
