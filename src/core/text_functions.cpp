// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text_functions.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace lumetra {

namespace {

NumberConvention g_convention;

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }
bool isBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }

double parseAscii(const std::string &s)
{
    if (s.empty())
        return 0;
    double value = 0;
    auto [ptr, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (ec == std::errc::result_out_of_range) {
        // Beyond the range of a double: keep the sign and the magnitude's direction.
        const bool negative = s.front() == '-';
        const auto e = s.find_first_of("eE");
        const bool tiny = e != std::string::npos && s.find('-', e) != std::string::npos;
        value = tiny ? 0.0 : std::numeric_limits<double>::infinity();
        return negative ? -value : value;
    }
    if (ec != std::errc())
        return 0;
    return value;
}

// Reads an optional exponent at i into out; advances i only when digits follow.
void readExponent(const QString &t, int &i, std::string &out)
{
    if (i >= t.size() || (t[i] != QLatin1Char('e') && t[i] != QLatin1Char('E')))
        return;
    int j = i + 1;
    std::string exp = "e";
    if (j < t.size() && (t[j] == QLatin1Char('+') || t[j] == QLatin1Char('-')))
        exp += char(t[j++].unicode());
    if (j >= t.size() || !isDigit(t[j]))
        return;
    while (j < t.size() && isDigit(t[j]))
        exp += char(t[j++].unicode());
    out += exp;
    i = j;
}

// The shortest decimal text that reads back to the same double, with '.'.
std::string shortestFixed(double number)
{
    char buf[400];
    auto [ptr, ec] = std::to_chars(buf, buf + sizeof buf, number, std::chars_format::fixed);
    if (ec != std::errc())
        return "0";
    return std::string(buf, ptr);
}

} // namespace

NumberConvention italianConvention() { return {QLatin1Char(','), QLatin1Char('.')}; }
NumberConvention pointConvention() { return {QLatin1Char('.'), QLatin1Char(',')}; }
const NumberConvention &numberConvention() { return g_convention; }
void setNumberConvention(const NumberConvention &convention) { g_convention = convention; }

int Len(const QString &text) { return int(text.size()); }

QString Left(const QString &text, int n)
{
    if (n <= 0)
        return {};
    return text.left(n);
}

QString Right(const QString &text, int n)
{
    if (n <= 0)
        return {};
    return text.right(n);
}

QString Mid(const QString &text, int start, int n)
{
    if (start < 1)
        start = 1;
    if (n <= 0 || start > text.size())
        return {};
    return text.mid(start - 1, n);
}

QString Mid(const QString &text, int start)
{
    if (start < 1)
        start = 1;
    if (start > text.size())
        return {};
    return text.mid(start - 1);
}

int Asc(const QString &text)
{
    if (text.isEmpty())
        return 0;
    return text.at(0).unicode();
}

QString Chr(int code)
{
    if (code < 0)
        return {};
    return QString(QChar(char16_t(code)));
}

QString Str(std::int64_t number) { return QString::number(number); }

// The leading number of a text: blanks, a sign, the whole part, the decimal
// mark and its digits, an exponent; 0 when there is none. Group signs count
// only in a well-formed grouping, [1-9]d{0,2}(Gddd)+ with no group sign or
// digit right behind the last group; anywhere else a group sign between
// digits is the decimal mark, since the program's own fields turn a typed
// comma into a point and the cents must survive that. A null group sign reads
// none.
static double readNumber(const QString &text, QChar decimal, QChar group)
{
    int i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    std::string s;
    if (i < text.size() && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+')))
        s += char(text[i++].unicode());
    bool digits = false;
    const int start = i;
    while (i < text.size() && isDigit(text[i])) {
        s += char(text[i++].unicode());
        digits = true;
    }
    QChar mark = decimal;
    if (!group.isNull() && digits) {
        const auto groupAt = [&](int k) {
            return k + 3 < text.size() && text[k] == group && isDigit(text[k + 1]) && isDigit(text[k + 2])
                && isDigit(text[k + 3]);
        };
        int end = i;
        if (i - start <= 3 && text[start] != QLatin1Char('0'))
            while (groupAt(end))
                end += 4;
        const bool wellFormed = end > i && !(end < text.size() && (text[end] == group || isDigit(text[end])));
        if (wellFormed) {
            for (; i < end; i += 4)
                s += text.mid(i + 1, 3).toStdString();
        } else if (i + 1 < text.size() && text[i] == group && isDigit(text[i + 1])) {
            mark = group;
        }
    }
    if (i < text.size() && text[i] == mark) {
        int j = i + 1;
        std::string frac = ".";
        while (j < text.size() && isDigit(text[j]))
            frac += char(text[j++].unicode());
        if (frac.size() > 1 || digits) {
            digits = digits || frac.size() > 1;
            s += frac;
            i = j;
        }
    }
    if (!digits)
        return 0;
    readExponent(text, i, s);
    if (s.front() == '+')
        s.erase(0, 1);
    if (s.back() == '.')
        s.pop_back();
    // A whole part of 0 before a bare fraction. (Not string::insert: GCC 12
    // warns wrongly of overlapping copies in it at -O3.)
    if (s.size() > 1 && s[0] == '-' && s[1] == '.')
        s = "-0" + s.substr(1);
    else if (s[0] == '.')
        s = "0" + s;
    return parseAscii(s);
}

double Val(const QString &text) { return readNumber(text, QLatin1Char('.'), QChar()); }

double CDbl(const QString &text) { return readNumber(text, g_convention.decimal, g_convention.group); }

QString CStr(double number)
{
    if (number == 0)
        return QStringLiteral("0");
    QString out = QString::fromLatin1(shortestFixed(number));
    out.replace(QLatin1Char('.'), g_convention.decimal);
    return out;
}

QString Format(double number, const QString &mask)
{
    const bool percent = mask.endsWith(QLatin1Char('%'));
    const bool showMinus = mask.startsWith(QLatin1Char('-'));
    if (!std::isfinite(number))
        return CStr(number);
    const bool negative = number < 0;
    std::string digits = shortestFixed(std::fabs(number));
    auto dot = digits.find('.');
    std::string whole = dot == std::string::npos ? digits : digits.substr(0, dot);
    std::string frac = dot == std::string::npos ? std::string() : digits.substr(dot + 1);
    if (percent) { // multiply by 100 on the decimal text, so that no binary error creeps in
        frac.append(2 > frac.size() ? 2 - frac.size() : 0, '0');
        whole += frac.substr(0, 2);
        frac.erase(0, 2);
    }
    // Round half away from zero to two decimals, on the decimal text.
    frac.append(frac.size() < 3 ? 3 - frac.size() : 0, '0');
    const bool up = frac[2] >= '5';
    std::string cents = whole + frac.substr(0, 2);
    if (up) {
        int k = int(cents.size()) - 1;
        while (k >= 0 && cents[k] == '9')
            cents[k--] = '0';
        if (k < 0)
            cents.insert(cents.begin(), '1');
        else
            ++cents[k];
    }
    std::string intPart = cents.substr(0, cents.size() - 2);
    const std::string decPart = cents.substr(cents.size() - 2);
    const auto firstNonZero = intPart.find_first_not_of('0');
    intPart = firstNonZero == std::string::npos ? std::string() : intPart.substr(firstNonZero);
    const bool zero = intPart.empty() && decPart == "00";
    QString out;
    if (negative && showMinus && !zero)
        out += QLatin1Char('-');
    out += QString::fromLatin1(intPart);
    out += g_convention.decimal;
    out += QString::fromLatin1(decPart);
    if (percent)
        out += QLatin1Char('%');
    return out;
}

int Sign(double number)
{
    if (number > 0)
        return 1;
    if (number < 0)
        return -1;
    return 0;
}

int toInteger(double number)
{
    if (std::isnan(number))
        return 0;
    const double t = std::trunc(number);
    if (t >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (t <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(t);
}

QString unaRiga(QString text)
{
    for (QChar &c : text)
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n'))
            c = QLatin1Char(' ');
    return text;
}

bool Eq(const QString &a, const QString &b) { return QString::compare(a, b, Qt::CaseInsensitive) == 0; }

} // namespace lumetra
