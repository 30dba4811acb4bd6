// SPDX-License-Identifier: GPL-3.0-or-later
// Time of SetRTFData for the writer's RTF of long documents: 2 000, 16 000 and
// 20 000 paragraphs of bill text with headings, italics, money lines and
// accented letters. Prints the median of several runs for each size; exits 1
// when 20 000 paragraphs do not read in under 50 ms, so run it from a Release
// build.

#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace lumetra;

namespace {

// Built with SetText and range styles, so that making the input costs the
// same whatever AppendStyleRun costs.
QByteArray documentOf(int paragraphs)
{
    QString text;
    for (int p = 0; p < paragraphs; ++p) {
        if (p % 25 == 0)
            text += QStringLiteral("COMPETENZE — parte %1").arg(p / 25 + 1);
        else if (p % 5 == 0)
            text += QStringLiteral("Totale parziale%1€ %2,00").arg(QString(40, QLatin1Char(' '))).arg(p * 12);
        else
            text += QStringLiteral("Voce %1: esame e studio della pratica, città di Messina, perché dovuto {art. %2}")
                        .arg(p)
                        .arg(p % 97);
        text += QChar(13);
    }
    StyledText styled(text);
    styled.Font(0, int(text.size()), QStringLiteral("Times New Roman"));
    styled.Size(0, int(text.size()), 9);
    for (int p = 0; p < paragraphs; ++p) {
        const Paragraph para = styled.Paragraph(p);
        if (p % 25 == 0) {
            styled.Font(para.startPos, para.length, QStringLiteral("Arial"));
            styled.Size(para.startPos, para.length + 1, 12);
            styled.Bold(para.startPos, para.length, true);
            styled.ParagraphAlignment(p, 2);
        } else if (p % 5 == 0) {
            styled.Font(para.startPos, para.length + 1, QStringLiteral("Courier New"));
            styled.ParagraphAlignment(p, 1);
        } else if (p % 7 == 0) {
            styled.Italic(para.startPos + 5, 20, true);
        }
    }
    return RTFData(styled);
}

} // namespace

int main()
{
    double at20000 = 0;
    for (int paragraphs : {2000, 16000, 20000}) {
        const QByteArray rtf = documentOf(paragraphs);
        std::vector<double> millis;
        double total = 0;
        int runs = 0;
        // At least five runs, and enough of them to fill half a second.
        while (runs < 5 || (total < 500 && runs < 200)) {
            StyledText text;
            const auto t0 = std::chrono::steady_clock::now();
            SetRTFData(text, rtf);
            const auto t1 = std::chrono::steady_clock::now();
            if (text.ParagraphCount() != paragraphs) {
                std::fprintf(stderr, "%d paragraphs read as %d\n", paragraphs, text.ParagraphCount());
                return 2;
            }
            millis.push_back(std::chrono::duration<double, std::milli>(t1 - t0).count());
            total += millis.back();
            ++runs;
        }
        std::sort(millis.begin(), millis.end());
        const double median = millis[millis.size() / 2];
        std::printf("%6d paragraphs (%lld bytes of RTF): median %8.2f ms, best %8.2f ms over %d runs\n", paragraphs,
                    static_cast<long long>(rtf.size()), median, millis.front(), runs);
        if (paragraphs == 20000)
            at20000 = median;
    }
    return at20000 < 50 ? 0 : 1;
}
