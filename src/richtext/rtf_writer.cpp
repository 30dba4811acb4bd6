// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/rtf_writer.h"

#include "core/text_functions.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace lumetra {

namespace {

// Numbers count from 0 in the order of first use. Font names are looked up
// ignoring letter case, and the first spelling met is the one written.
struct Tables {
    std::vector<QString> fonts;
    std::vector<Colour> colours;

    int fontNumber(const QString &name) const
    {
        for (size_t i = 0; i < fonts.size(); ++i)
            if (Eq(fonts[i], name))
                return int(i);
        return -1;
    }
    int colourNumber(Colour colour) const
    {
        for (size_t i = 0; i < colours.size(); ++i)
            if (colours[i] == colour)
                return int(i);
        return -1;
    }
};

// QString is Unicode already, so a font name never needs the guess at its
// encoding; it only has to become UTF-8.
QByteArray ProperNameForTextFont(const QString &name) { return name.toUtf8(); }

Tables CreateFontAndColorTables(const StyledText &text)
{
    Tables t;
    for (int i = 0; i < text.StyleRunCount(); ++i) {
        const TextStyle style = text.StyleRun(i).style;
        if (t.fontNumber(style.font) < 0)
            t.fonts.push_back(style.font);
        if (t.colourNumber(style.textColor) < 0)
            t.colours.push_back(style.textColor);
    }
    return t;
}

QByteArray FontTableString(const Tables &t)
{
    QByteArray out("{\\fonttbl");
    for (size_t i = 0; i < t.fonts.size(); ++i)
        out += "{\\f" + QByteArray::number(qsizetype(i)) + "\\fnil " + ProperNameForTextFont(t.fonts[i]) + ";}";
    return out + '}';
}

QByteArray ColorTableString(const Tables &t)
{
    QByteArray out("{\\colortbl");
    for (Colour c : t.colours)
        out += "\\red" + QByteArray::number((c >> 16) & 0xff) + "\\green" + QByteArray::number((c >> 8) & 0xff)
            + "\\blue" + QByteArray::number(c & 0xff) + ';';
    return out + '}';
}

QByteArray alignmentWord(int alignment)
{
    switch (alignment) {
    case 2:
        return "\\qc";
    case 3:
        return "\\qr";
    default:
        return "\\ql";
    }
}

} // namespace

QByteArray EncodeNonAsciiText(const QString &text)
{
    QByteArray out;
    bool blankOwed = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        // Units are read as signed numbers: from 0x8000 on they are negative
        // and go out as the character itself, like ASCII.
        const auto value = std::int16_t(unit);
        if (value == 13 || value == 10) {
            out += "\\par";
            blankOwed = true;
        } else if (value < 128) {
            if (blankOwed) {
                out += ' ';
                blankOwed = false;
            }
            if (value >= 0) {
                const char c = char(value);
                if (c == '\\' || c == '{' || c == '}')
                    out += '\\';
                out += c;
            } else if (QChar::isHighSurrogate(unit) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
                out += text.mid(i, 2).toUtf8();
                ++i;
            } else {
                out += QString(QChar(unit)).toUtf8();
            }
        } else {
            out += "\\u" + QByteArray::number(value);
            blankOwed = true;
        }
    }
    if (blankOwed)
        out += ' ';
    return out;
}

QByteArray RTFData(const StyledText &text)
{
    const Tables tables = CreateFontAndColorTables(text);
    QByteArray out("{\\rtf1\\ansi\\ansicpg256");
    out += FontTableString(tables);
    out += ColorTableString(tables);
    out += "\\uc0 ";

    std::vector<int> starts;
    std::vector<int> alignments;
    for (int p = 0; p < text.ParagraphCount(); ++p) {
        const Paragraph paragraph = text.Paragraph(p);
        starts.push_back(paragraph.startPos);
        alignments.push_back(paragraph.alignment);
    }
    const int paragraphs = int(starts.size());

    int lastAlignment = 0;
    TextStyle last;
    last.font.clear();
    int position = 0;
    int cursor = -1;
    for (int r = 0; r < text.StyleRunCount(); ++r) {
        const StyleRun run = text.StyleRun(r);
        const TextStyle &s = run.style;
        QByteArray words;

        // The paragraph the run starts in; the cursor only moves forward.
        int next = cursor + 1;
        while (next < paragraphs && starts[size_t(next)] <= position)
            ++next;
        cursor = next - 1;
        const int alignment = cursor >= 0 ? alignments[size_t(cursor)] : 0;
        if (alignment != lastAlignment) {
            words += alignmentWord(alignment);
            lastAlignment = alignment;
        }
        if (s.bold != last.bold)
            words += s.bold ? "\\b" : "\\b0";
        if (s.italic != last.italic)
            words += s.italic ? "\\i" : "\\i0";
        if (s.underline != last.underline)
            words += s.underline ? "\\ul" : "\\ul0";
        if (!Eq(s.font, last.font))
            words += "\\f" + QByteArray::number(tables.fontNumber(s.font));
        if (s.textColor != last.textColor)
            words += "\\cf" + QByteArray::number(tables.colourNumber(s.textColor));
        if (s.size != last.size)
            words += "\\fs" + QByteArray::number(std::lround(double(s.size) * 2));
        last = s;

        if (!words.isEmpty())
            out += words + ' ';
        out += EncodeNonAsciiText(run.text);
        position += int(run.text.size());
    }
    return out + '}';
}

} // namespace lumetra
