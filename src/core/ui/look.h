// SPDX-License-Identifier: GPL-3.0-or-later
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
// The text colour of a label or button.
void coloreTesto(QWidget *w, const QColor &color);
// A window or panel filled with one colour.
void sfondo(QWidget *w, const QColor &color);
// A control at its place: left, top, width, height.
void place(QWidget *w, int left, int top, int width, int height);

} // namespace lumetra
