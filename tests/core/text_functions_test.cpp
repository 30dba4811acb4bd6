#include "core/text_functions.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

struct ConventionGuard {
    explicit ConventionGuard(NumberConvention c) : saved(numberConvention()) { setNumberConvention(c); }
    ~ConventionGuard() { setNumberConvention(saved); }
    NumberConvention saved;
};

QString q(const char *s) { return QString::fromUtf8(s); }

} // namespace

TEST(TextFunctions, StringSlices)
{
    EXPECT_EQ(Len(QString()), 0);
    EXPECT_EQ(Len(q("Città")), 5);
    EXPECT_EQ(Left(q("abc"), 5), q("abc"));
    EXPECT_EQ(Left(q("abc"), 0), QString());
    EXPECT_EQ(Right(q("abcdef"), 2), q("ef"));
    EXPECT_EQ(Right(q("ab"), 9), q("ab"));
    EXPECT_EQ(Mid(q("abcdef"), 2, 3), q("bcd"));
    EXPECT_EQ(Mid(q("abcdef"), 5, 10), q("ef"));
    EXPECT_EQ(Mid(q("abc"), 7, 2), QString());
    EXPECT_EQ(Mid(q("abcdef"), 3), q("cdef"));
    EXPECT_EQ(Asc(q("A")), 65);
    EXPECT_EQ(Asc(q("à")), 224);
    EXPECT_EQ(Asc(QString()), 0);
    EXPECT_EQ(Chr(13), QString(QChar(13)));
    EXPECT_EQ(Chr(8212), q("—"));
    EXPECT_EQ(Str(0), q("0"));
    EXPECT_EQ(Str(-42), q("-42"));
    EXPECT_TRUE(Eq(q("Marca da bollo"), q("MARCA DA BOLLO")));
    EXPECT_TRUE(Eq(q("città"), q("CITTÀ")));
    EXPECT_FALSE(Eq(q("Marca da bollo"), q("Marca da bollo ")));
}

TEST(TextFunctions, ValReadsThePointWhateverTheConvention)
{
    struct Case {
        const char *text;
        double value;
    };
    const Case cases[] = {
        {"1.2.3", 1.2},     {"Importante", 0},  {"", 0},         {"  42abc", 42}, {"--5", 0},
        {"-", 0},           {".5", 0.5},        {"-.5", -0.5},   {"12.5", 12.5},  {"25000.50", 25000.5},
        {"1.225,50", 1.225}, {"1225,00", 1225}, {"1e3", 1000},   {"1e", 1},       {"2E-2x", 0.02},
        {"+7", 7},          {"5.", 5},          {"-500", -500},  {"\t3", 3},      {"1.5e+2", 150},
    };
    for (auto convention : {italianConvention(), pointConvention()}) {
        ConventionGuard guard(convention);
        for (const auto &c : cases)
            EXPECT_DOUBLE_EQ(Val(q(c.text)), c.value) << c.text;
    }
}

TEST(TextFunctions, CDblFollowsTheConvention)
{
    struct Case {
        const char *text;
        double italian;
        double point;
    };
    const Case cases[] = {
        {"1.225,50", 1225.5, 1.225},
        {"25000.50", 25000, 25000.5},
        {"12.5", 12, 12.5},
        {"1225,00", 1225, 1225},
        {"0,02", 0.02, 0},
        {"0.02", 0, 0.02},
        {"1.234.567,8", 1234567.8, 1.234},
        {"1,234,567.8", 1.234, 1234567.8},
        {"12.3456", 12, 12.3456},
        {"> 5000", 0, 0},
        {"INDET.", 0, 0},
        {"", 0, 0},
        {" -500", -500, -500},
        {"-150", -150, -150},
        {"--150", 0, 0},
        {",5", 0.5, 0},
        {"1e2", 100, 100},
        {"—", 0, 0},
    };
    for (const auto &c : cases) {
        {
            ConventionGuard guard(italianConvention());
            EXPECT_DOUBLE_EQ(CDbl(q(c.text)), c.italian) << "italian " << c.text;
        }
        {
            ConventionGuard guard(pointConvention());
            EXPECT_DOUBLE_EQ(CDbl(q(c.text)), c.point) << "point " << c.text;
        }
    }
}

TEST(TextFunctions, CStrReadsBackThroughCDbl)
{
    const double values[] = {45, 0.015, -500, 0.1 + 0.2, 1e-7, 123456789.125, 1.0 / 3, 37.5, 1e15, -0.0};
    for (auto convention : {italianConvention(), pointConvention()}) {
        ConventionGuard guard(convention);
        for (double v : values) {
            const QString text = CStr(v);
            EXPECT_FALSE(text.contains(QLatin1Char('e'))) << text.toStdString();
            EXPECT_FALSE(text.contains(QLatin1Char(' ')));
            EXPECT_EQ(CDbl(text), v) << text.toStdString();
        }
    }
    ConventionGuard guard(pointConvention());
    EXPECT_EQ(CStr(45), q("45"));
    EXPECT_EQ(CStr(0.015), q("0.015"));
    EXPECT_EQ(CStr(-500), q("-500"));
    EXPECT_EQ(CStr(-0.0), q("0"));
    setNumberConvention(italianConvention());
    EXPECT_EQ(CStr(15.5), q("15,5"));
}

TEST(TextFunctions, FormatMasks)
{
    struct Case {
        double number;
        const char *mask;
        const char *point;
        const char *italian;
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
    for (const auto &c : cases) {
        {
            ConventionGuard guard(pointConvention());
            EXPECT_EQ(Format(c.number, q(c.mask)), q(c.point)) << c.number << " " << c.mask;
        }
        {
            ConventionGuard guard(italianConvention());
            EXPECT_EQ(Format(c.number, q(c.mask)), q(c.italian)) << c.number << " " << c.mask;
        }
    }
    ConventionGuard guard(italianConvention());
    EXPECT_DOUBLE_EQ(CDbl(Format(1225, q("-#.00"))), 1225);
    EXPECT_DOUBLE_EQ(Val(Format(1225, q("-#.00"))), 1225);
}

TEST(TextFunctions, SignAndInteger)
{
    EXPECT_EQ(Sign(-3.5), -1);
    EXPECT_EQ(Sign(0), 0);
    EXPECT_EQ(Sign(1e-300), 1);
    EXPECT_EQ(ToInteger(37.5), 37);
    EXPECT_EQ(ToInteger(-37.5), -37);
    EXPECT_EQ(ToInteger(0.015), 0);
}
