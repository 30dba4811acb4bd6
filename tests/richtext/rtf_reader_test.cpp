// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/rtf_reader.h"

#include "core/failure.h"
#include "support/rtf_describe.h"
#include "support/test_files.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;
using lumetra::test::describe;

namespace {

StyledText read(const QByteArray &rtf)
{
    StyledText t;
    SetRTFData(t, rtf);
    return t;
}

} // namespace

// Expected: describe(), the runs ('|' between, '¶' a line end), '/', one alignment digit per paragraph.
TEST(RtfReader, Documents)
{
    const std::pair<QByteArray, QString> cases[] = {
        {"", u"/"_s},
        {"hello {\\b x}", u"/"_s},
        {"{\\RTF1\\B a\\PAR\\QC b}", u"<b>a¶b/12"_s},
        // Line ends: the first \par is lost, a CR or LF of the file is nothing, backslash newline is \par.
        {"{\\rtf1\\par a\\par\\par b}", u"a¶¶b/111"_s},
        {"{\\rtf1 a\\\\b\\{c\\}\r\nd\re\nf}", u"a\\b{c}def/1"_s},
        {"{\\rtf1 a\\\r\nb}", u"a¶b/11"_s},
        // Delimiters: one byte of any kind is swallowed, but not a ';'.
        {"{\\rtf1\\b  x}", u"<b> x/1"_s},
        {"{\\rtf1\\b1x y\\i;z}", u"<b> y|<bi>;z/1"_s},
        // Groups
        {"{\\rtf1{\\b bold} plain}", u"<b>bold| plain/1"_s},
        {"{\\rtf1{\\foo drop}{\\*\\b drop}a\\foo b}", u"ab/1"_s},
        {"{\\rtf1{\\upr{a}{\\*\\ud{b}}}}", u"a/1"_s},
        {"{\\rtf1 a\\bin-5 b\\bin3 \\}{c}", u"abc/1"_s},
        {"{\\rtf1 a\\bin99999999999999999999 b}", u"a/1"_s},
        {"{\\rtf1 a}}b", u"a/1"_s},
        // Queued characters act: \'7d closes the group, \'5c starts a word, \'7b opens a group.
        {"{\\rtf1 a\\'7d b}", u"a/1"_s},
        {"{\\rtf1 \\'7b\\'5cb x} y}", u"<b>x| y/1"_s},
        // Tables: their braces stay open and swallow the byte behind them.
        {"{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red255\\green0\\blue0;}\\f0\\cf1 x}y",
         u"<Arial #ff0000>x|y/1"_s},
        {"{\\rtf1{\\fonttbl{\\f0 A;}}xy{\\colortbl;}zw}", u"yw/1"_s},
        {"{\\rtf1{\\fonttbl{\\f0 Arial", u"/"_s},
        {"{\\rtf1{\\fonttbl{\\f0;}{\\f1 Arial;}}\\f1 a\\f0 b\\f7 c}", u"<Arial>abc/1"_s},
        {"{\\rtf1{\\colortbl\\red999\\green-4\\blue99999999999;\\green255;}\\cf0 a\\cf1 b\\cf9 c}",
         u"<#ff00ff>a|<#ffffff>b|c/1"_s},
        // Switches and sizes
        {"{\\rtf1\\b\\i\\ul a\\b0 b\\i0 c\\ul0 d\\ul e\\ulnone f}", u"<biu>a|<iu>b|<u>c|d|<u>e|f/1"_s},
        {"{\\rtf1\\b00 a\\b-0 b}", u"<b>ab/1"_s},
        {"{\\rtf1\\fs21 a\\fs b\\fs99999999999 c}", u"<@10.5>a|b|<@1e+09>c/1"_s},
        // Alignment goes to the paragraph a run starts in; \pard resets it alone.
        {"{\\rtf1\\qc a\\par\\qr b\\par\\ql c\\par\\qj d\\par\\qc e\\pard f}", u"a¶b¶c¶d¶ef/23111"_s},
        {"{\\rtf1 a\\b\\qc b\\par c}", u"a|<b>b¶c/12"_s},
        {"{\\rtf1\\qc\\b a\\par\\pard b}", u"<b>a¶b/21"_s},
        // Numbered characters and plain bytes: without \ansicpg as ASCII, read as Latin-1.
        {"{\\rtf1 \\'e9\\'80\xe0 \\u233\\u8364 .}", u"é\u0080à é./1"_s},
        {"{\\rtf1\\ansicpg256 \\u8364\\u224\\'e9\\u-3913\\u55357\\u56832}", u"€àé\uF0B7😀/1"_s},
        {"{\\rtf1\\ansicpg437 \\'80\\'e0\\'9c}", u"€àœ/1"_s},
        {"{\\rtf1\\ansicpg10000 \\'8e\\'88\\'db}", u"éà€/1"_s},
        {"{\\rtf1\\ansicpg65001 \\'c3\\'a0\\'e2\\'82\\'ac\\u233}", u"à€é/1"_s},
        {"{\\rtf1\\ansi \xe0\x80\\mac \x88\xdb}", u"à€à€/1"_s},
        {"{\\rtf1{\\ansicpg1252 \\'80}\\'80\\'zzy}", u"€\u0080\0y/1"_s},
    };
    for (const auto &[rtf, expected] : cases)
        EXPECT_EQ(describe(read(rtf)), expected) << rtf.constData();
}

TEST(RtfReader, TextBeforeTheFirstFontIsAnUnhandledFailure)
{
    EXPECT_THROW(read("{\\rtf1{\\fonttbl Arial;}}"), UnhandledFailure);
    EXPECT_THROW(read("{\\rtf1{\\fonttbl\n\n{\\f0 Arial;}}}"), UnhandledFailure);
    EXPECT_NO_THROW(read("{\\rtf1{\\fonttbl;\r\n{\\f0 Arial;}}}"));
}

// Documents written by LibreOffice Writer (tests/data/rtf/sources): the whole
// text is compared, so the style sheet, the information group and the pictures
// are proven dropped; each accented letter comes twice, as \u and as its
// fallback \'hh, and both stay.
TEST(RtfReader, LibreOfficeDocuments)
{
    const std::pair<const char *, QString> cases[] = {
        {"lettera.rtf",
         u"<b @12 Arial>Nota spese|<@12 Arial>¶Egregio cliente, le invio la |<b @12 Arial>parcella|"
         "<@12 Arial> per la causa |<i @12 Arial>Rossi contro Bianchi|<@12 Arial>.¶Il valore della controversia "
         "èè di |<@16 Arial>25.900 \u0080|<@12 Arial>, |<u @12 Arial>giàà|<@12 Arial> versato in parte.¶|"
         "<i @10 Liberation Serif>Cittàà, lìì 16/11/2011¶/2113"_s},
        {"promemoria.rtf",
         u"<b>Promemoria|¶Voci |<b>in grassetto|, |<i>in corsivo| e |<@18>grandi|: perchéé, piùù, èè.¶"
         "Testo dopo l'immagine.¶/211"_s},
        {"testo.rtf",
         u"<@10 Liberation Mono>Prima riga semplice.¶Seconda riga: cittàà, perchéé, \u0080 10.¶¶"
         "Dopo una riga vuota {graffe} e \\ barra.¶/1111"_s},
    };
    for (const auto &[file, expected] : cases)
        EXPECT_EQ(describe(read(test::readBytes(test::dataPath(u"rtf/"_s + QLatin1StringView(file))))), expected)
            << file;
}

// The inputs the fuzzer found (tests/fuzz), read in every build: none may fail
// other than by the one failure the reader reports, and the result holds together.
TEST(RtfReader, FuzzCorpusReadsSafely)
{
    const QDir corpus(QStringLiteral(LUMETRA_SOURCE_DIR "/tests/fuzz"));
    const QStringList files = corpus.entryList(QDir::Files);
    ASSERT_GT(files.size(), 100);
    int failures = 0;
    for (const QString &name : files) {
        try {
            const StyledText t = read(test::readBytes(corpus.filePath(name)));
            QString runs;
            for (int i = 0; i < t.StyleRunCount(); ++i)
                runs += t.StyleRun(i).text;
            EXPECT_EQ(runs, t.Text()) << name.toStdString();
            for (int i = 0; i < t.ParagraphCount(); ++i)
                EXPECT_TRUE(t.ParagraphAlignment(i) >= 1 && t.ParagraphAlignment(i) <= 3) << name.toStdString();
        } catch (const UnhandledFailure &) {
            ++failures;
        }
    }
    EXPECT_GT(failures, 0); // some inputs do put text before a font table's first \f
    EXPECT_LT(failures, files.size());
}
