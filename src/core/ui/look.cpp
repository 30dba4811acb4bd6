// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/look.h"

#include <QWidget>

namespace lumetra {

QFont arial(int size, bool bold)
{
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(size);
    f.setBold(bold);
    return f;
}

void colore(QWidget *w, QPalette::ColorRole role, const QColor &color)
{
    QPalette p = w->palette();
    p.setColor(QPalette::Active, role, color);
    p.setColor(QPalette::Inactive, role, color);
    w->setPalette(p);
}

void coloreTesto(QWidget *w, const QColor &color)
{
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colore(w, role, color);
}

void sfondo(QWidget *w, const QColor &color)
{
    colore(w, QPalette::Window, color);
    w->setAutoFillBackground(true);
}

void place(QWidget *w, int left, int top, int width, int height) { w->setGeometry(left, top, width, height); }

} // namespace lumetra
