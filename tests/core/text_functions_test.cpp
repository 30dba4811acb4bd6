// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text_functions.h"
#include "core/value_filter.h"
#include "support/test_files.h"

#include <gtest/gtest.h>
#include <limits>

using namespace lumetra;
using lumetra::test::u;

namespace {

// Runs check under the Italian convention, then under the point convention.
template <class F>
void inBoth(F check)
{
    for (bool italian : {true, false}) {
        setNumberConvention(italian ? italianConvention() : pointConvention());
        check(italian);
    }
    setNumberConvention(italianConvention());
}

} // namespace

TEST(TextFunctions, ValReadsThePointWhateverTheConvention)
{
    const std::pair<const char *, double> cases[]
        = {{"1.2.3", 1.2}, {"Importante", 0},   {"", 0},           {"  42abc", 42}, {"--5", 0},     {".5", 0.5},
           {"-.5", -0.5},  {"1.225,50", 1.225}, {"1225,00", 1225}, {"1e", 1},       {"2E-2x", 0.02}};
    inBoth([&](bool) {
        for (const auto &[text, value] : cases)
            EXPECT_DOUBLE_EQ(Val(u(text)), value) << text;
    });
}

TEST(TextFunctions, CDblFollowsTheConvention)
{
    const double inf = std::numeric_limits<double>::infinity();
    // Group signs count only in a well-formed grouping; a group sign anywhere else between digits is the
    // decimal mark, so typed cents are never lost.
    const std::tuple<const char *, double, double> cases[] = {
        {"1.225,50", 1225.5, 1.225},
        {"1.225", 1225, 1.225},
        {"150.000", 150000, 150},
        {"1000.50", 1000.5, 1000.5},
        {"1000,50", 1000.5, 1000.5},
        {"0.035", 0.035, 0.035},
        {"1.2.3", 1.2, 1.2},
        {"1.225.5", 1.225, 1.225},
        {"12.", 12, 12},
        {"1.5e3", 1500, 1500},
        {"> 5000", 0, 0},
        {"-1.225,5", -1225.5, -1.225},
        {",5", 0.5, 0},
        {"1e999", inf, inf},
        // Every group of a grouping counts, with and without cents; the other convention's grouping stops at
        // its first mark.
        {"1.500.000", 1500000, 1.5},
        {"1.500.000,50", 1500000.5, 1.5},
        {"12.345.678", 12345678, 12.345},
        {"1.200.000.000", 1200000000, 1.2},
        {"1,500,000", 1.5, 1500000},
        {"1,500,000.50", 1.5, 1500000.5},
        {"12,345,678", 12.345, 12345678},
        {"1,200,000,000", 1.2, 1200000000},
        // Near misses: a short or a long group is no grouping, and its first sign is the decimal mark.
        {"1.500.00", 1.5, 1.5},
        {"1.5000.000", 1.5, 1.5},
        {"1,500,00", 1.5, 1.5},
        {"1,5000,000", 1.5, 1.5},
    }; // text, Italian, point
    inBoth([&](bool italian) {
        for (const auto &[text, it, point] : cases)
            EXPECT_DOUBLE_EQ(CDbl(u(text)), italian ? it : point) << text << " italian=" << italian;
    });
}

TEST(TextFunctions, CStrReadsBackThroughCDbl)
{
    inBoth([](bool italian) {
        for (double v : {0.015, -500.0, 0.1 + 0.2, 1e-7, 123456789.125, 1.0 / 3, 1e15})
            EXPECT_TRUE(CDbl(CStr(v)) == v && !CStr(v).contains(u'e')) << CStr(v).toStdString();
        EXPECT_EQ(CStr(0.015) + u'|' + CStr(-0.0), u(italian ? "0,015|0" : "0.015|0"));
    });
}

TEST(TextFunctions, FormatMasks)
{
    // Commercial rounding of the shortest decimal text; no minus on what rounds to zero.
    const std::tuple<double, const char *, const char *> cases[]
        = {{-500, "-#.00", "-500,00"},    {0.125, "#.00%", "12,50%"},  {1.005, "-#.00", "1,01"},
           {2.675, "-#.00", "2,68"},      {-0.004, "-#.00", ",00"},    {-0.005, "-#.00", "-,01"},
           {999.995, "-#.00", "1000,00"}, {-125, "#.00%", "12500,00%"}};
    inBoth([&](bool italian) {
        for (const auto &[number, mask, text] : cases)
            EXPECT_EQ(Format(number, u(mask)), italian ? u(text) : u(text).replace(u',', u'.')) << number << mask;
    });
}

TEST(ValueFilter, JudgesTheLastCharacterAlone)
{
    // {typed, what stays; nullptr: the text stands}. A paste is judged by its last character only; the blank
    // PopImport adds is what goes; a character outside the basic plane goes whole.
    const char *cases[][2] = {{"12", nullptr},   {"12,", "12."},
                              {"1.2.", nullptr}, {"12x", "12"},
                              {"a1", nullptr},   {"Importante ", "Importante"},
                              {"5€", "5"},       {"1\xF0\x9F\x98\x80", "1"}};
    for (const auto &[typed, stays] : cases)
        EXPECT_EQ(filtraValore(u(typed)).value_or(u("<stands>")), u(stays ? stays : "<stands>")) << typed;
}
