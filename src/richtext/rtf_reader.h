// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reading RTF into a StyledText: one pass over the bytes with a stack of style
// states. It understands a handful of control words; a group that begins with
// any other word is dropped whole and other words are passed over, so that it
// reads our own writer's output and ordinary RTF in a reduced form. It never
// reports anything: bad input gives as much text as was read before it.

#include "richtext/styled_text.h"

#include <QByteArray>
#include <QString>
#include <map>
#include <optional>
#include <vector>

namespace lumetra {

// How a number (\u, \'hh) or a plain byte of the file becomes a character.
// Ascii, the default, reads 0x80 to 0xFF as the Latin-1 characters of those
// numbers. An 8-bit encoding holds the numbers 0 to 255 only; any other number
// gives no character. Unicode and Utf8 take a \u number as a code point (a
// negative one as its 16-bit complement, as RTF writers put large ones); under
// Utf8 the bytes of \'hh are decoded as UTF-8.
enum class RtfEncoding { Ascii, Unicode, Windows1252, MacRoman, Utf8 };

// \ansicpg: 256 Unicode, 1252 Windows-1252, 10000 Mac Roman, 65001 UTF-8; any
// other number Windows-1252.
RtfEncoding encodingForCodePage(qint64 number);
// The character of a number in an encoding, or an empty text if it holds none.
QString numberedChar(RtfEncoding encoding, qint64 number);
// The number a control word's parameter gives; the digits saturate, so a huge
// parameter is a large number and never overflows.
qint64 rtfNumber(const QByteArray &parameter);

struct RtfCommand {
    QByteArray name;
    QByteArray parameter;
    // The word was \'hh: name "u", parameter the byte in decimal.
    bool hexByte = false;
};

// Font number to name; colour number to colour. nullopt: the data ended
// inside the table.
using RtfFontTable = std::map<qint64, QString>;
using RtfColorTable = std::vector<Colour>;

// Reads the control word whose name starts at pos (the byte behind the
// backslash) and returns the position of its last byte, delimiter included.
qsizetype ReadCommand(const QByteArray &data, qsizetype pos, RtfCommand &command);
// The position of the last byte of a control word that ends at pos: a
// backslash, brace or ';' there is not swallowed, any other byte is (a CR LF
// pair both).
qsizetype PosAfterDelimiter(const QByteArray &data, qsizetype pos);
// Both start behind the table's word (pos on its last byte) and leave pos on
// the last byte they used. Text before the table's first \f is an unhandled
// failure.
std::optional<RtfFontTable> ReadFontTable(const QByteArray &data, qsizetype &pos);
std::optional<RtfColorTable> ReadColorTable(const QByteArray &data, qsizetype &pos);
// Appends the open run, if any, and gives the alignment to the paragraph it
// started.
void CommitRun(StyledText &text, std::optional<StyleRun> &run, int alignment);

// Replaces the content of text with what the RTF holds; the counterpart of
// RTFData.
void SetRTFData(StyledText &text, const QByteArray &rtf);

} // namespace lumetra
