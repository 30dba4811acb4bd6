#include "editor/ui/look.h"

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

} // namespace lumetra
