#include "help/ui/fin_aiuto.h"

#include "editor/ui/finestra.h"
#include "help/istruzioni.h"
#include "richtext/rtf_reader.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

namespace lumetra {

namespace {

Qt::Alignment qtAlignment(int alignment, Qt::Alignment above)
{
    switch (alignment) {
    case 1:
        return Qt::AlignLeft;
    case 2:
        return Qt::AlignHCenter;
    case 3:
        return Qt::AlignRight;
    default:
        return above; // the default alignment looks like the paragraph above
    }
}

QTextCharFormat charFormat(const TextStyle &style)
{
    QTextCharFormat f;
    if (style.font != QStringLiteral("System") && !style.font.isEmpty())
        f.setFontFamilies({style.font});
    if (style.size > 0)
        f.setFontPointSize(style.size);
    f.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
    f.setFontItalic(style.italic);
    f.setFontUnderline(style.underline);
    f.setForeground(QColor(QRgb(style.textColor)));
    return f;
}

// The styled text as the field's document: one block per paragraph, one
// fragment per stretch of equal style.
void showStyledText(QTextEdit *field, const StyledText &text)
{
    field->clear();
    QTextCursor cursor(field->document());
    const QString all = text.Text();
    Qt::Alignment alignment = Qt::AlignLeft;
    for (int p = 0; p < text.ParagraphCount(); ++p) {
        const Paragraph paragraph = text.paragraph(p);
        if (p > 0)
            cursor.insertBlock();
        QTextBlockFormat block;
        alignment = qtAlignment(paragraph.alignment, alignment);
        block.setAlignment(alignment);
        cursor.setBlockFormat(block);
        int start = paragraph.startPos;
        const int end = paragraph.startPos + paragraph.length;
        while (start < end) {
            const TextStyle style = text.styleAt(start);
            int stop = start + 1;
            while (stop < end && text.styleAt(stop) == style)
                ++stop;
            cursor.insertText(all.mid(start, stop - start), charFormat(style));
            start = stop;
        }
    }
    // A text that ends with a line end shows an empty last line.
    if (all.endsWith(QChar(13)))
        cursor.insertBlock();
    field->moveCursor(QTextCursor::Start);
}

} // namespace

fin_aiuto::fin_aiuto()
{
    setObjectName(QStringLiteral("fin_aiuto"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                   | Qt::MSWindowsFixedSizeDialogHint);
    setWindowTitle(QStringLiteral("Aiuto di Lumetra"));
    setFixedSize(800, 690);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(0xcc, 0xcc, 0xcc));
    setPalette(pal);

    EditF = new QTextEdit(this);
    EditF->setObjectName(QStringLiteral("EditF"));
    EditF->setGeometry(10, 10, 780, 670);
    EditF->setAcceptRichText(true);
    EditF->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    EditF->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    EditF->setAttribute(Qt::WA_MacShowFocusRect, false);
    QPalette text = EditF->palette();
    text.setColor(QPalette::Base, Qt::white);
    text.setColor(QPalette::Text, Qt::black);
    EditF->setPalette(text);
    EditF->setFont(QFont(QStringLiteral("Times New Roman"), 18));
    EditF->document()->setDocumentMargin(10);
    EditF_Open(EditF);
}

void fin_aiuto::Event_Open()
{
    if (QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void fin_aiuto::EditF_Open(QTextEdit *field)
{
    StyledText manual;
    SetRTFData(manual, istruzioni());
    showStyledText(field, manual);
}

void fin_aiuto::Event_Close()
{
    finestra &main = finestra::instance();
    main.show();
    main.raise();
    main.activateWindow();
}

void fin_aiuto::ShowModal() { exec(); }

void fin_aiuto::done(int result)
{
    Event_Close();
    QDialog::done(result);
}

} // namespace lumetra
