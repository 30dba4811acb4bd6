// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The styled text builder: lays the fonts, sizes, styles and alignments of the
// style map over the composed plain text.

#include "document/sty_map.h"
#include "richtext/styled_text.h"

#include <QString>

namespace lumetra {

// size1 is the smaller size (sender, sections, summary), size2 the larger.
// elab 0 centres the title of a "Nota spese - Competenze", elab 1 leaves the
// title of a "Fattura" at the left. A map that does not belong to the text
// asks for paragraphs that do not exist: an unhandled failure.
StyledText Crea_stile(const QString &text, const StyMap &sty_f, int elab, int size1, int size2);

} // namespace lumetra
