// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/finestrainfo.h"

#include "core/ui/handler_guard.h"
#include "help/contatto.h"
#include "version.h"

#include <QDesktopServices>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QUrl>

namespace lumetra {

namespace {

// Sizes are the window's points, one to a pixel, so that the text fits the
// boxes it was laid out in.
QFont arial(bool bold)
{
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(12);
    f.setBold(bold);
    return f;
}

QLabel *label(QWidget *parent, const char *name, const QString &text, QRect geometry, bool bold, QColor colour)
{
    auto *l = new QLabel(text, parent);
    l->setObjectName(QString::fromLatin1(name));
    l->setGeometry(geometry);
    l->setFont(arial(bold));
    l->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QPalette pal = l->palette();
    pal.setColor(QPalette::WindowText, colour);
    l->setPalette(pal);
    return l;
}

} // namespace

finestrainfo::finestrainfo()
{
    setObjectName(QStringLiteral("finestrainfo"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    // A title, and no close box: "Chiudi" is the way out.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint);
    setWindowTitle(QStringLiteral("Info"));
    setFixedSize(260, 130);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(0xe6, 0xe6, 0xe6));
    setPalette(pal);

    StaticText1 = label(this, "StaticText1", QStringLiteral("Lumetra\n v%1 (11/2011)").arg(QLatin1String(kVersione)),
                        {0, 7, 260, 34}, true, Qt::black);
    StaticText2 = label(this, "StaticText2", QStringLiteral("Realizzato dal progetto Lumetra"), {0, 45, 260, 16}, false,
                        Qt::black);
    StaticText3
        = label(this, "StaticText3", kContactAddress.toString(), {20, 70, 220, 16}, true, QColor(0x00, 0x00, 0xff));
    StaticText3->installEventFilter(this);

    PushButton1 = new QPushButton(QStringLiteral("Chiudi"), this);
    PushButton1->setObjectName(QStringLiteral("PushButton1"));
    PushButton1->setGeometry(80, 100, 100, 20);
    PushButton1->setFont(arial(true));
    PushButton1->setDefault(true);
    connectHandler(PushButton1, &QPushButton::clicked, this, &finestrainfo::PushButton1_Action);
}

void finestrainfo::Event_Open()
{
    if (QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void finestrainfo::PushButton1_Action() { close(); }

void finestrainfo::StaticText3_MouseEnter()
{
    QFont f = StaticText3->font();
    f.setUnderline(true);
    StaticText3->setFont(f);
}

void finestrainfo::StaticText3_MouseExit()
{
    QFont f = StaticText3->font();
    f.setUnderline(false);
    StaticText3->setFont(f);
}

bool finestrainfo::StaticText3_MouseDown()
{
    QDesktopServices::openUrl(QUrl(contactMailto()));
    return false;
}

bool finestrainfo::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == StaticText3) {
        switch (event->type()) {
        case QEvent::Enter:
            StaticText3_MouseEnter();
            break;
        case QEvent::Leave:
            StaticText3_MouseExit();
            break;
        case QEvent::MouseButtonPress:
            return StaticText3_MouseDown();
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace lumetra
