// The inputs the fuzzer of the reader found (tests/fuzz, see fuzz/), read
// again in every build: none may fail other than by the one failure the reader
// reports, and what it builds must hold together.

#include "richtext/rtf_reader.h"

#include "core/failure.h"
#include "support/test_files.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace lumetra;

TEST(RtfFuzzCorpus, EveryInputReadsSafely)
{
    const QDir corpus(QStringLiteral(LUMETRA_SOURCE_DIR "/tests/fuzz"));
    const QStringList files = corpus.entryList(QDir::Files);
    ASSERT_GT(files.size(), 100);
    int failures = 0;
    for (const QString &name : files) {
        StyledText text;
        try {
            SetRTFData(text, test::readBytes(corpus.filePath(name)));
        } catch (const UnhandledFailure &) {
            ++failures;
            continue;
        }
        int length = 0;
        for (int i = 0; i < text.StyleRunCount(); ++i)
            length += int(text.styleRun(i).text.size());
        EXPECT_EQ(length, text.Text().size()) << name.toStdString();
        for (int i = 0; i < text.ParagraphCount(); ++i) {
            EXPECT_GE(text.ParagraphAlignment(i), 1) << name.toStdString();
            EXPECT_LE(text.ParagraphAlignment(i), 3) << name.toStdString();
        }
    }
    // Some inputs do put text before a font table's first \f.
    EXPECT_GT(failures, 0);
    EXPECT_LT(failures, files.size());
}
