// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The program's own RTF writer. Its output is fixed to the byte: one top-level
// group, code page 256 (Unicode), font and colour tables in order of first use,
// and control words only where a value changes from the run before.

#include "richtext/styled_text.h"

#include <QByteArray>
#include <QString>

namespace lumetra {

// The whole RTF document of a styled text.
QByteArray RTFData(const StyledText &text);

// The text of one run: "\par" for 13 and 10, "\u" numbers for non-ASCII,
// a backslash before "\", "{" and "}", and the blank that closes a control
// word only where text follows it (or at the end).
QByteArray EncodeNonAsciiText(const QString &text);

} // namespace lumetra
