#pragma once
// Small helpers for laying controls out at fixed places with the program's
// fonts: sizes are given as on the original screens, one point to a pixel.

#include <QColor>
#include <QFont>
#include <QString>

class QWidget;

namespace lumetra {

QFont programFont(const QString &family, int size, bool bold = false, bool italic = false);
void place(QWidget *w, int left, int top, int width, int height);
void setTextColour(QWidget *w, const QColor &colour);
void setBackground(QWidget *w, const QColor &colour);

} // namespace lumetra
