// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/fin_aiuto.h"

#include "help/istruzioni.h"
#include "richtext/rtf_reader.h"
#include "richtext/ui/styled_document.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTextDocument>
#include <QTextEdit>

namespace lumetra {

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
    // One point to a pixel, as the styled text is shown.
    QFont font(QStringLiteral("Times New Roman"));
    font.setPixelSize(18);
    EditF->setFont(font);
    EditF->document()->setDocumentMargin(10);
    EditF->setAccessibleName(windowTitle()); // it holds the manual the title names
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
    setStyledText(*field->document(), manual);
    field->moveCursor(QTextCursor::Start);
}

void fin_aiuto::Event_Close() { emit chiusa(); }

void fin_aiuto::ShowModal() { exec(); }

void fin_aiuto::done(int result)
{
    Event_Close();
    QDialog::done(result);
}

} // namespace lumetra
