// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The draft print of a document: a fixed geometry that does not come from the
// printer, width 612 and blocks of height 720 at the top left of each page,
// one unit a point, with no margin, header or page number of our own. Paper
// whose printable area is narrower or lower than a block (A4 is 595 points
// wide) takes each block scaled down whole, so that nothing is cut; the page
// breaks stay those of the fixed geometry.

class QPrinter;
class QTextDocument;

namespace lumetra {

// Returns the number of pages printed.
int stampaBozza(const QTextDocument &document, QPrinter &printer);

} // namespace lumetra
