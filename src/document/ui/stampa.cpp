// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/ui/stampa.h"

#include <QPainter>
#include <QPrinter>
#include <QTextDocument>
#include <algorithm>
#include <memory>

namespace lumetra {

namespace {
constexpr double kWidth = 612;
constexpr double kBlock = 720;
constexpr double kHair = 0.05; // points, far below a printer's dot
} // namespace

int stampaBozza(const QTextDocument &document, QPrinter &printer)
{
    // The document shows sizes one point to a pixel, so one layout unit is
    // one point on paper. A line that would cross the end of a block goes to
    // the next one, so that no line is cut in two.
    std::unique_ptr<QTextDocument> copy(document.clone());
    copy->setDocumentMargin(0);
    copy->setPageSize(QSizeF(kWidth, kBlock));
    const int pages = copy->pageCount();

    // The block's top left is the printable area's, where the printer puts
    // its origin: outside that area it puts no ink. The area is measured in
    // device pixels, as the painter draws, so the fit holds at any
    // resolution. A block that does not fit the area is scaled down, the same
    // in both directions; one that fits is drawn at its size.
    printer.setFullPage(false);
    const QRect area = printer.pageLayout().paintRectPixels(printer.resolution());
    const double pixelsPerPoint = printer.resolution() / 72.0;
    const double fit
        = std::min({1.0, area.width() / (kWidth * pixelsPerPoint), area.height() / (kBlock * pixelsPerPoint)});

    QPainter painter(&printer);
    painter.scale(pixelsPerPoint * fit, pixelsPerPoint * fit);
    for (int page = 0; page < pages; ++page) {
        painter.save();
        painter.translate(0, -page * kBlock);
        // A line pushed to the next block starts exactly where this one ends,
        // and the layout draws every line that touches its clip: a hair less
        // keeps such a line off this page, where it would be clipped away on
        // paper but would stay in a PDF's text, found and copied twice.
        copy->drawContents(&painter, QRectF(0, page * kBlock, kWidth, kBlock).adjusted(0, kHair, 0, -kHair));
        painter.restore();
        if (page + 1 < pages)
            printer.newPage();
    }
    return pages;
}

} // namespace lumetra
