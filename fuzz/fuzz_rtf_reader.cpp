// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes through the RTF reader: it must neither crash nor read outside the
// data. The one failure it reports (text before the first \f of a font table)
// is an UnhandledFailure; anything else thrown ends the run as a finding.

#include "core/failure.h"
#include "richtext/rtf_reader.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace lumetra;
    StyledText text;
    try {
        SetRTFData(text, QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    } catch (const UnhandledFailure &) {
        return 0;
    }
    // What the reader built must hold together.
    int length = 0;
    for (int i = 0; i < text.StyleRunCount(); ++i)
        length += int(text.StyleRun(i).text.size());
    if (length != text.Text().size())
        std::abort();
    for (int i = 0; i < text.ParagraphCount(); ++i) {
        const int alignment = text.ParagraphAlignment(i);
        if (alignment < 0 || alignment > 3)
            std::abort();
    }
    return 0;
}
