// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/encodings.h"

#include <QHash>

namespace lumetra {

namespace {

const char16_t kMacRoman[128] = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5,
    0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3, 0x00F2, 0x00F4,
    0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6,
    0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, 0x221E, 0x00B1, 0x2264, 0x2265,
    0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF,
    0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB, 0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5,
    0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044,
    0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1,
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9,
    0x0131, 0x02C6, 0x02DC, 0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};

// 0x80 to 0x9F; the five holes keep their C1 code points.
const char16_t kWindows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

const QHash<char16_t, char> &macRomanReverse()
{
    static const QHash<char16_t, char> table = [] {
        QHash<char16_t, char> t;
        for (int i = 0; i < 128; ++i)
            t.insert(kMacRoman[i], char(0x80 + i));
        return t;
    }();
    return table;
}

} // namespace

QChar macRomanChar(unsigned char byte) { return byte < 0x80 ? QChar(char16_t(byte)) : QChar(kMacRoman[byte - 0x80]); }

QChar windows1252Char(unsigned char byte)
{
    if (byte >= 0x80 && byte < 0xA0)
        return QChar(kWindows1252[byte - 0x80]);
    return QChar(char16_t(byte));
}

namespace {

QString decode(const QByteArray &bytes, QChar (*charOf)(unsigned char))
{
    QString out;
    out.reserve(bytes.size());
    for (char b : bytes)
        out += charOf(static_cast<unsigned char>(b));
    return out;
}

} // namespace

QString fromMacRoman(const QByteArray &bytes) { return decode(bytes, macRomanChar); }

QByteArray toMacRoman(const QString &text)
{
    QByteArray out;
    out.reserve(text.size());
    const auto &reverse = macRomanReverse();
    for (QChar c : text) {
        const char16_t u = c.unicode();
        if (u < 0x80)
            out += char(u);
        else
            out += reverse.value(u, '?');
    }
    return out;
}

QString fromWindows1252(const QByteArray &bytes) { return decode(bytes, windows1252Char); }

LineReader::LineReader(QString text) : m_text(std::move(text)) {}

bool LineReader::atEnd() const { return m_pos >= m_text.size(); }

QString LineReader::readLine()
{
    if (atEnd())
        return {};
    qsizetype end = m_pos;
    while (end < m_text.size() && m_text[end] != QLatin1Char('\r') && m_text[end] != QLatin1Char('\n'))
        ++end;
    QString line = m_text.mid(m_pos, end - m_pos);
    if (end < m_text.size()) {
        if (m_text[end] == QLatin1Char('\r') && end + 1 < m_text.size() && m_text[end + 1] == QLatin1Char('\n'))
            ++end;
        ++end;
    }
    m_pos = end;
    return line;
}

} // namespace lumetra
