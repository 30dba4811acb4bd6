// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The byte encodings of the program's files: Mac Roman for the tariff, the user
// data and bills; Windows-1252 for RTF that declares it. Qt 6 has neither codec.

#include <QByteArray>
#include <QString>
#include <vector>

namespace lumetra {

QString fromMacRoman(const QByteArray &bytes);
// A character Mac Roman lacks becomes '?'.
QByteArray toMacRoman(const QString &text);
QString fromWindows1252(const QByteArray &bytes);
QChar macRomanChar(unsigned char byte);
QChar windows1252Char(unsigned char byte);

// Lines of a text stream: CR, LF and CR LF all end a line, and a line is given
// without its terminator. Reading past the end gives empty lines.
class LineReader {
public:
    explicit LineReader(QString text);
    bool atEnd() const;
    QString readLine();

private:
    QString m_text;
    qsizetype m_pos = 0;
};

} // namespace lumetra
