// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The conversions on which every rule of the program rests: the tariff and the
// bill are text, and every figure is turned into text and back at each use.

#include <QChar>
#include <QString>
#include <cstdint>

namespace lumetra {

// The marks CDbl reads and CStr/Format write. The program is Italian, so it
// uses the Italian marks whatever the machine's locale; tests may switch to the
// point convention to check figures written the other way.
struct NumberConvention {
    QChar decimal = QLatin1Char(',');
    QChar group = QLatin1Char('.');
};

NumberConvention italianConvention();
NumberConvention pointConvention();
const NumberConvention &numberConvention();
void setNumberConvention(const NumberConvention &convention);

// Positions start at 1, lengths count characters.
int Len(const QString &text);
QString Left(const QString &text, int n);
QString Right(const QString &text, int n);
QString Mid(const QString &text, int start, int n);
QString Mid(const QString &text, int start);
int Asc(const QString &text);
QString Chr(int code);
QString Str(std::int64_t number);

// Val always reads a point as the decimal mark; CDbl reads the convention's marks.
double Val(const QString &text);
double CDbl(const QString &text);
QString CStr(double number);
// Masks in use: "-#.00", "#.00%", "-#.00%".
QString Format(double number, const QString &mask);
int Sign(double number);

// Double to Integer: the fraction is dropped (37.5 gives 37).
int toInteger(double number);

// The text with each CR and LF turned into a blank: what a one-line field or
// a line of a file can hold.
QString unaRiga(QString text);

// String equality of the program: letter case is ignored.
bool Eq(const QString &a, const QString &b);

} // namespace lumetra
