// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

#include "support/rtf_describe.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;

namespace {

const QString CR(QChar(13));
const TextStyle arial{.font = u"Arial"_s};

StyledText doc(std::initializer_list<StyleRun> runs, std::initializer_list<int> alignments = {})
{
    StyledText t;
    for (const StyleRun &r : runs)
        t.AppendStyleRun(r);
    int p = 0;
    for (int a : alignments)
        t.ParagraphAlignment(p++, a);
    return t;
}

const QByteArray kHead
    = "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl\\red0\\green0\\blue0;}\\uc0 ";
const QByteArray kBlack = "}{\\colortbl\\red0\\green0\\blue0;}\\uc0 ";

} // namespace

TEST(RTFData, WholeDocuments)
{
    const StyledText example = doc({{u"Città"_s, {.font = u"Arial"_s, .size = 12, .bold = true}}}, {2});
    const std::pair<StyledText, QByteArray> cases[] = {
        {example, kHead + "\\qc\\b\\f0\\fs24 Citt\\u224 }"},
        {StyledText(), "{\\rtf1\\ansi\\ansicpg256{\\fonttbl}{\\colortbl}\\uc0 }"},
        // A run ending with a line break, in the default style, with the characters to escape.
        {StyledText(u"a\\b{c}"_s + CR),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil System;}" + kBlack + "\\f0 a\\\\b\\{c\\}\\par }"},
        // Equal neighbours write no control words between them.
        {doc({{u"ab"_s, arial}, {u"cd"_s, arial}}), kHead + "\\f0 abcd}"},
        {doc({{u"x"_s, {.font = QString()}}}), "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil ;}" + kBlack + "x}"},
        // Only where a run starts is the alignment written: the \qr goes, the centre goes back to \ql.
        {doc({{u"a"_s + CR + u"b"_s + CR, arial}, {u"c"_s, {.font = u"Arial"_s, .bold = true}}}, {2, 3, 0}),
         kHead + "\\qc\\f0 a\\par b\\par \\ql\\b c}"},
        // Style carries over and is switched off; half points rounded half away from zero.
        {doc({{u"a"_s, {.font = u"Arial"_s, .size = 12, .bold = true}},
              {u"b"_s, {.font = u"Arial"_s, .size = 10.5f, .italic = true}},
              {u"c"_s, {.font = u"Arial"_s, .size = 10.25f, .underline = true}},
              {u"d"_s, {.font = u"Arial"_s, .size = 9}}}),
         kHead + "\\b\\f0\\fs24 a\\b0\\i\\fs21 b\\i0\\ul\\fs21 c\\ul0\\fs18 d}"},
        // Colours numbered by first use, with no blank first entry.
        {doc({{u"r"_s, {.font = u"Arial"_s, .textColor = 0xff0000}},
              {u"k"_s, arial},
              {u"g"_s, {.font = u"Arial"_s, .textColor = 0x00ff80}}}),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Arial;}}"
         "{\\colortbl\\red255\\green0\\blue0;\\red0\\green0\\blue0;\\red0\\green255\\blue128;}\\uc0 "
         "\\f0\\cf0 r\\cf1 k\\cf2 g}"},
        // Font names looked up ignoring case, the first spelling kept; a non-ASCII name as raw UTF-8.
        {doc({{u"a"_s, {.font = u"Città"_s}}, {u"b"_s, {.font = u"CITTà"_s, .bold = true}}, {u"c"_s, arial}}),
         "{\\rtf1\\ansi\\ansicpg256{\\fonttbl{\\f0\\fnil Citt\xc3\xa0;}{\\f1\\fnil Arial;}" + kBlack
             + "\\f0 a\\b b\\b0\\f1 c}"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(RTFData(text), expected) << text.Text().toStdString();

    // What the writer writes, the reader reads back: runs, characters and alignments.
    const StyledText rich = doc(
        {{u"Nota spese"_s + CR, {.font = u"Arial"_s, .size = 16, .bold = true, .textColor = 0x800000}},
         {u"cliente"_s + CR + CR, {.font = u"Times New Roman"_s, .size = 10.5f, .italic = true, .underline = true}},
         {u"a\\b {c} è à — € 1.225,00"_s, {.font = u"Courier New"_s, .size = 9, .bold = true, .textColor = 0xff}}},
        {2, 1, 1, 3});
    StyledText back;
    SetRTFData(back, RTFData(rich));
    EXPECT_EQ(test::describe(back), test::describe(rich));
    EXPECT_TRUE(back == rich);
}

TEST(RTFData, EncodeNonAsciiText)
{
    const std::pair<QString, QByteArray> cases[] = {
        {CR + QChar(10), "\\par\\par "},
        {u"è a"_s, "\\u232  a"},
        {u"ü\\"_s, "\\u252 \\\\"},
        {QString(QChar(0x7fff)), "\\u32767 "},
        // From 0x8000 on a unit is negative: the character itself, in UTF-8.
        {u"è"_s + QChar(0x8000), "\\u232 \xe8\x80\x80"},
        {u"😀x"_s, "\xf0\x9f\x98\x80x"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(EncodeNonAsciiText(text), expected) << text.toStdString();
}
