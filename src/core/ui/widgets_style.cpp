#include "core/ui/widgets_style.h"

#include <QPalette>
#include <QWidget>

namespace lumetra {

QFont programFont(const QString &family, int size, bool bold, bool italic)
{
    QFont font(family);
    font.setPixelSize(size);
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

void place(QWidget *w, int left, int top, int width, int height) { w->setGeometry(left, top, width, height); }

void setTextColour(QWidget *w, const QColor &colour)
{
    QPalette pal = w->palette();
    pal.setColor(QPalette::WindowText, colour);
    pal.setColor(QPalette::Text, colour);
    pal.setColor(QPalette::ButtonText, colour);
    w->setPalette(pal);
}

void setBackground(QWidget *w, const QColor &colour)
{
    QPalette pal = w->palette();
    pal.setColor(QPalette::Window, colour);
    w->setPalette(pal);
    w->setAutoFillBackground(true);
}

} // namespace lumetra
