#include "core/text_functions.h"

#include <gtest/gtest.h>
#include <limits>

using namespace lumetra;

namespace {

struct ConventionGuard {
    explicit ConventionGuard(bool italian) : saved(numberConvention())
    {
        setNumberConvention(italian ? italianConvention() : pointConvention());
    }
    ~ConventionGuard() { setNumberConvention(saved); }
    NumberConvention saved;
};

QString q(const char *s) { return QString::fromUtf8(s); }

} // namespace

TEST(TextFunctions, StringsAndIntegers)
{
    const std::pair<QString, const char *> texts[] = {
        {Left(q("abc"), 5), "abc"}, {Left(q("abc"), 0), ""},         {Right(q("abcdef"), 2), "ef"},
        {Right(q("ab"), 9), "ab"},  {Mid(q("abcdef"), 2, 3), "bcd"}, {Mid(q("abcdef"), 5, 10), "ef"},
        {Mid(q("abc"), 7, 2), ""},  {Mid(q("abcdef"), 3), "cdef"},   {Chr(8212), "—"},
        {Str(-42), "-42"},
    };
    for (const auto &[actual, expected] : texts)
        EXPECT_EQ(actual, q(expected));
    const std::pair<long long, long long> numbers[] = {
        {Len(q("Città")), 5}, {Asc(q("à")), 224}, {Asc(QString()), 0},     {Sign(-3.5), -1},
        {Sign(0), 0},         {Sign(1e-300), 1},  {toInteger(-37.5), -37},
    };
    for (const auto &[actual, expected] : numbers)
        EXPECT_EQ(actual, expected);
    EXPECT_TRUE(Eq(q("città"), q("CITTÀ")));
    EXPECT_FALSE(Eq(q("Marca da bollo"), q("Marca da bollo ")));
}

TEST(TextFunctions, ValReadsThePointWhateverTheConvention)
{
    const std::pair<const char *, double> cases[] = {
        {"1.2.3", 1.2},
        {"Importante", 0},
        {"", 0},
        {"  42abc", 42},
        {"--5", 0},
        {"-", 0},
        {".5", 0.5},
        {"-.5", -0.5},
        {"12.5", 12.5},
        {"25000.50", 25000.5},
        {"1.225,50", 1.225},
        {"1225,00", 1225},
        {"1e3", 1000},
        {"1e", 1},
        {"2E-2x", 0.02},
        {"+7", 7},
        {"5.", 5},
        {"-500", -500},
        {"\t3", 3},
        {"1.5e+2", 150},
    };
    for (bool italian : {true, false}) {
        ConventionGuard guard(italian);
        for (const auto &[text, value] : cases)
            EXPECT_DOUBLE_EQ(Val(q(text)), value) << text;
    }
}

TEST(TextFunctions, CDblFollowsTheConvention)
{
    struct Case {
        const char *text;
        double italian, point;
    };
    const double inf = std::numeric_limits<double>::infinity();
    // Group signs count only in a well-formed grouping; a group sign anywhere
    // else between digits is the decimal mark, so typed cents are never lost.
    const Case cases[] = {
        {"1.225,50", 1225.5, 1.225},
        {"1,234,567.8", 1.234, 1234567.8},
        {"1.234.567,8", 1234567.8, 1.234},
        {"1.225", 1225, 1.225},
        {"1,225", 1.225, 1225},
        {"150.000", 150000, 150},
        {"1000.50", 1000.5, 1000.5},
        {"1000,50", 1000.5, 1000.5},
        {"1.5", 1.5, 1.5},
        {"1,5", 1.5, 1.5},
        {"0.035", 0.035, 0.035}, // a leading 0 is no grouping
        {"0,035", 0.035, 0.035},
        {"1.2.3", 1.2, 1.2},
        {"1.225.5", 1.225, 1.225}, // something behind the last group
        {"1.2255", 1.2255, 1.2255},
        {"1225,00", 1225, 1225},
        {"12.", 12, 12},
        {"1.5e3", 1500, 1500},
        {"> 5000", 0, 0},
        {"INDET.", 0, 0},
        {"", 0, 0},
        {" -500", -500, -500},
        {"-1.225,5", -1225.5, -1.225},
        {"--150", 0, 0},
        {",5", 0.5, 0},
        {".5", 0, 0.5},
        {"—", 0, 0},
        {"1e999", inf, inf},
    };
    for (const auto &c : cases)
        for (bool italian : {true, false}) {
            ConventionGuard guard(italian);
            EXPECT_DOUBLE_EQ(CDbl(q(c.text)), italian ? c.italian : c.point) << c.text << " italian=" << italian;
            EXPECT_EQ(CDbl(QString(400, QLatin1Char('9'))), inf);
        }
}

TEST(TextFunctions, CStrReadsBackThroughCDbl)
{
    const double values[] = {45, 0.015, -500, 0.1 + 0.2, 1e-7, 123456789.125, 1.0 / 3, 37.5, 1e15, -0.0};
    for (bool italian : {true, false}) {
        ConventionGuard guard(italian);
        for (double v : values) {
            const QString text = CStr(v);
            EXPECT_FALSE(text.contains(QLatin1Char('e')) || text.contains(QLatin1Char(' '))) << text.toStdString();
            EXPECT_EQ(CDbl(text), v) << text.toStdString();
        }
        EXPECT_EQ(CStr(0.015), q(italian ? "0,015" : "0.015"));
        EXPECT_EQ(CStr(-0.0), q("0"));
    }
}

TEST(TextFunctions, FormatMasks)
{
    struct Case {
        double number;
        const char *mask, *point, *italian;
    };
    const Case cases[] = {
        {1225, "-#.00", "1225.00", "1225,00"},
        {-500, "-#.00", "-500.00", "-500,00"},
        {0.5, "-#.00", ".50", ",50"},
        {0, "-#.00", ".00", ",00"},
        {0.125, "#.00%", "12.50%", "12,50%"},
        {0.04, "-#.00%", "4.00%", "4,00%"},
        {0.21, "-#.00%", "21.00%", "21,00%"},
        {0.2, "#.00%", "20.00%", "20,00%"},
        {1.005, "-#.00", "1.01", "1,01"},
        {-1.005, "-#.00", "-1.01", "-1,01"},
        {2.675, "-#.00", "2.68", "2,68"},
        {0.004, "-#.00", ".00", ",00"},
        {-0.004, "-#.00", ".00", ",00"},
        {-0.005, "-#.00", "-.01", "-,01"},
        {999.995, "-#.00", "1000.00", "1000,00"},
        {136.5, "-#.00", "136.50", "136,50"},
        {-125, "#.00%", "12500.00%", "12500,00%"},
        {1234567.891, "-#.00", "1234567.89", "1234567,89"},
    };
    for (const auto &c : cases)
        for (bool italian : {true, false}) {
            ConventionGuard guard(italian);
            EXPECT_EQ(Format(c.number, q(c.mask)), q(italian ? c.italian : c.point)) << c.number << " " << c.mask;
        }
}
