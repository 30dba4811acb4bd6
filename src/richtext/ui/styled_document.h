// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The bridge between StyledText and the QTextDocument of a text field.
//
// The document shows a paragraph whose alignment is 0 with the alignment of
// the paragraph above it, which is the look the RTF of the text has. The model
// values (font name, size, alignment) ride along as format properties, so a
// document the user has not touched converts back to the very same StyledText.

#include "richtext/styled_text.h"

class QTextDocument;

namespace lumetra {

// Replaces the content of document.
void setStyledText(QTextDocument &document, const StyledText &text);
// The content of document; what the user typed or pasted takes the style it
// shows.
StyledText styledText(const QTextDocument &document);

// The document as HTML without any paragraph alignment (what the clipboard
// gets).
QString htmlWithoutAlignment(const QTextDocument &document);

} // namespace lumetra
