#pragma once
// The look shared by the program's windows.

#include <QColor>
#include <QFont>
#include <QPalette>

class QWidget;

namespace lumetra {

// The windows were drawn at 72 dots per inch, where a point is a pixel: sizes
// are given in pixels so that the text fits the controls on every screen.
QFont arial(int size, bool bold = false);

// A colour of the control, whether its window is active or not.
void colore(QWidget *w, QPalette::ColorRole role, const QColor &color);

} // namespace lumetra
