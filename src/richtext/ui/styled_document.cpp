// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/ui/styled_document.h"

#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <cmath>
#include <memory>

namespace lumetra {

namespace {

const int kModelFont = QTextFormat::UserProperty + 1;
const int kModelSize = QTextFormat::UserProperty + 2;
const int kModelAlignment = QTextFormat::UserProperty + 3;

const QChar kLineEnd(13);
const QChar kLineFeed(10);

// "System" is the field's own font: no family of its own in the document.
QString shownFamily(const QString &name)
{
    return name.compare(QLatin1String("System"), Qt::CaseInsensitive) == 0 ? QString() : name;
}

// Sizes are shown one point to a pixel, as the windows are drawn: only so
// does a 91-column money line at 9 points fit the width of the field, and
// printing maps a pixel back to a point.
int shownPixels(float size) { return size > 0 ? std::max(1, int(std::lround(size))) : 0; }

Qt::Alignment shownAlignment(int alignment)
{
    switch (alignment) {
    case 2:
        return Qt::AlignHCenter;
    case 3:
        return Qt::AlignRight;
    default:
        return Qt::AlignLeft;
    }
}

QTextCharFormat charFormat(const TextStyle &s)
{
    QTextCharFormat f;
    const QString family = shownFamily(s.font);
    if (!family.isEmpty())
        f.setProperty(QTextFormat::FontFamilies, QStringList{family});
    if (const int px = shownPixels(s.size))
        f.setProperty(QTextFormat::FontPixelSize, px);
    f.setFontWeight(s.bold ? QFont::Bold : QFont::Normal);
    f.setFontItalic(s.italic);
    f.setFontUnderline(s.underline);
    f.setForeground(QColor::fromRgb(QRgb(s.textColor)));
    f.setProperty(kModelFont, s.font);
    f.setProperty(kModelSize, s.size);
    return f;
}

TextStyle styleOf(const QTextCharFormat &f)
{
    TextStyle s;
    const QStringList families = f.property(QTextFormat::FontFamilies).toStringList();
    const QString family = families.isEmpty() ? QString() : families.constFirst();
    const QVariant modelFont = f.property(kModelFont);
    if (modelFont.isValid() && shownFamily(modelFont.toString()) == family)
        s.font = modelFont.toString();
    else if (!family.isEmpty())
        s.font = family;

    const int px = f.intProperty(QTextFormat::FontPixelSize);
    const QVariant modelSize = f.property(kModelSize);
    if (modelSize.isValid() && shownPixels(modelSize.toFloat()) == px)
        s.size = modelSize.toFloat();
    else if (px > 0)
        s.size = float(px);
    else if (f.hasProperty(QTextFormat::FontPointSize))
        s.size = float(f.fontPointSize());

    s.bold = f.fontWeight() >= QFont::DemiBold;
    s.italic = f.fontItalic();
    s.underline = f.fontUnderline();
    if (f.foreground().style() != Qt::NoBrush)
        s.textColor = Colour(f.foreground().color().rgb() & 0xffffff);
    return s;
}

QTextBlockFormat blockFormat(int modelAlignment, Qt::Alignment shown)
{
    QTextBlockFormat f;
    f.setAlignment(shown);
    f.setProperty(kModelAlignment, modelAlignment);
    return f;
}

int alignmentOf(const QTextBlockFormat &f)
{
    if (f.hasProperty(kModelAlignment))
        return f.intProperty(kModelAlignment);
    if (!f.hasProperty(QTextFormat::BlockAlignment))
        return 0;
    const Qt::Alignment a = f.alignment() & Qt::AlignHorizontal_Mask;
    if (a & Qt::AlignHCenter)
        return 2;
    if (a & Qt::AlignRight)
        return 3;
    return 1;
}

} // namespace

void setStyledText(QTextDocument &document, const StyledText &text)
{
    document.clear();
    QTextCursor cursor(&document);
    cursor.beginEditBlock();

    // A paragraph of alignment 0 shows the alignment of the one above it.
    int paragraph = 0;
    Qt::Alignment shown = Qt::AlignLeft;
    auto formatOf = [&](int index) {
        const int model = index < text.ParagraphCount() ? text.ParagraphAlignment(index) : 0;
        if (model != 0)
            shown = shownAlignment(model);
        return blockFormat(model, shown);
    };
    cursor.setBlockFormat(formatOf(0));

    for (int r = 0; r < text.StyleRunCount(); ++r) {
        const StyleRun run = text.StyleRun(r);
        const QTextCharFormat format = charFormat(run.style);
        QString pending;
        for (QChar c : run.text) {
            if (c != kLineEnd) {
                pending += c == kLineFeed ? QChar(QChar::LineSeparator) : c;
                continue;
            }
            cursor.insertText(pending, format);
            pending.clear();
            cursor.insertBlock(formatOf(++paragraph), format);
        }
        cursor.insertText(pending, format);
    }
    cursor.endEditBlock();
    document.clearUndoRedoStacks();
}

StyledText styledText(const QTextDocument &document)
{
    StyledText out;
    std::vector<int> alignments;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const bool ended = block.next().isValid();
        if (block.length() > 1 || ended)
            alignments.push_back(alignmentOf(block.blockFormat()));
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QString text = fragment.text();
            text.replace(QChar(QChar::LineSeparator), kLineFeed);
            out.AppendStyleRun({text, styleOf(fragment.charFormat())});
        }
        // The block's line end carries the character format of the next block.
        if (ended)
            out.AppendStyleRun({QString(kLineEnd), styleOf(block.next().charFormat())});
    }
    for (size_t p = 0; p < alignments.size(); ++p)
        out.ParagraphAlignment(int(p), alignments[p]);
    return out;
}

QString htmlWithoutAlignment(const QTextDocument &document)
{
    std::unique_ptr<QTextDocument> copy(document.clone());
    struct Stretch {
        int position;
        int length;
        QTextCharFormat format;
    };
    std::vector<Stretch> stretches;
    std::vector<int> blocks;
    for (QTextBlock block = copy->begin(); block.isValid(); block = block.next()) {
        blocks.push_back(block.position());
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QTextCharFormat cf = fragment.charFormat();
            // Sizes go out in points, as the text has them.
            const float size = styleOf(cf).size;
            cf.clearProperty(QTextFormat::FontPixelSize);
            if (size > 0)
                cf.setFontPointSize(size);
            stretches.push_back({fragment.position(), fragment.length(), cf});
        }
    }
    QTextCursor cursor(copy.get());
    cursor.beginEditBlock();
    for (int position : blocks) {
        cursor.setPosition(position);
        QTextBlockFormat bf = cursor.blockFormat();
        bf.clearProperty(QTextFormat::BlockAlignment);
        cursor.setBlockFormat(bf);
    }
    for (const Stretch &s : stretches) {
        cursor.setPosition(s.position);
        cursor.setPosition(s.position + s.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(s.format);
    }
    cursor.endEditBlock();
    return copy->toHtml();
}

} // namespace lumetra
