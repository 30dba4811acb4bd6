// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/styled_text.h"

#include "core/failure.h"

#include <algorithm>

namespace lumetra {

size_t qHash(const TextStyle &style, size_t seed) noexcept
{
    // 0 and -0 are one size, as == has it.
    const float size = style.size == 0 ? 0.0f : style.size;
    return qHashMulti(seed, style.font, size, style.bold, style.italic, style.underline, style.textColor);
}

void StyledText::SetText(const QString &text)
{
    m_text = text;
    m_palette.clear();
    m_paletteIndex.clear();
    m_styles.assign(size_t(text.size()), styleNumber(TextStyle{}));
    m_alignments.clear();
    syncParagraphs();
    m_runsValid = false;
}

template <class F>
void StyledText::apply(int start, int length, F change)
{
    const int from = std::max(0, start);
    const int to = std::min(int(m_text.size()), start + std::max(0, length));
    // Neighbours mostly share a style: the last one changed is remembered.
    int before = -1;
    int after = -1;
    for (int i = from; i < to; ++i) {
        int &number = m_styles[size_t(i)];
        if (number != before) {
            TextStyle style = m_palette[size_t(number)];
            change(style);
            before = number;
            after = styleNumber(style);
        }
        number = after;
    }
    m_runsValid = false;
}

int StyledText::styleNumber(const TextStyle &style)
{
    const auto found = m_paletteIndex.constFind(style);
    if (found != m_paletteIndex.cend())
        return *found;
    const int number = int(m_palette.size());
    m_palette.push_back(style);
    m_paletteIndex.insert(style, number);
    return number;
}

void StyledText::Font(int start, int length, const QString &name)
{
    apply(start, length, [&](TextStyle &s) { s.font = name; });
}

void StyledText::Size(int start, int length, float size)
{
    apply(start, length, [&](TextStyle &s) { s.size = size; });
}

void StyledText::Bold(int start, int length, bool on)
{
    apply(start, length, [&](TextStyle &s) { s.bold = on; });
}

void StyledText::Italic(int start, int length, bool on)
{
    apply(start, length, [&](TextStyle &s) { s.italic = on; });
}

TextStyle StyledText::styleAt(int position) const
{
    if (position < 0 || position >= int(m_styles.size()))
        return {};
    return m_palette[size_t(m_styles[size_t(position)])];
}

void StyledText::syncParagraphs()
{
    m_paragraphStarts.clear();
    addParagraphStarts(0);
}

void StyledText::addParagraphStarts(int from)
{
    const QChar *chars = m_text.constData();
    for (int i = from; i < m_text.size(); ++i) {
        if (i == 0 || chars[i - 1] == QChar(13))
            m_paragraphStarts.push_back(i);
    }
    m_alignments.resize(m_paragraphStarts.size(), 0);
}

int StyledText::ParagraphCount() const { return int(m_paragraphStarts.size()); }

Paragraph StyledText::Paragraph(int index) const
{
    if (index < 0 || index >= ParagraphCount())
        throw UnhandledFailure(QStringLiteral("paragrafo %1 inesistente").arg(index));
    lumetra::Paragraph p;
    p.startPos = m_paragraphStarts[size_t(index)];
    const int next = index + 1 < ParagraphCount() ? m_paragraphStarts[size_t(index) + 1] : int(m_text.size());
    p.length = next - p.startPos;
    if (p.length > 0 && m_text[next - 1] == QChar(13))
        --p.length;
    p.alignment = m_alignments[size_t(index)];
    return p;
}

void StyledText::ParagraphAlignment(int index, int alignment)
{
    if (index < 0 || index >= ParagraphCount())
        throw UnhandledFailure(QStringLiteral("paragrafo %1 inesistente").arg(index));
    m_alignments[size_t(index)] = alignment;
}

int StyledText::ParagraphAlignment(int index) const { return Paragraph(index).alignment; }

const std::vector<StyleRun> &StyledText::runs() const
{
    if (!m_runsValid) {
        m_runs.clear();
        for (int start = 0, end = 0; start < m_text.size(); start = end) {
            const int number = m_styles[size_t(start)];
            while (end < m_text.size() && m_styles[size_t(end)] == number)
                ++end;
            m_runs.push_back({m_text.mid(start, end - start), m_palette[size_t(number)]});
        }
        m_runsValid = true;
    }
    return m_runs;
}

int StyledText::StyleRunCount() const { return int(runs().size()); }

StyleRun StyledText::StyleRun(int index) const
{
    const auto &all = runs();
    if (index < 0 || index >= int(all.size()))
        throw UnhandledFailure(QStringLiteral("stile %1 inesistente").arg(index));
    return all[size_t(index)];
}

void StyledText::AppendStyleRun(const lumetra::StyleRun &run)
{
    // Only the appended characters can start paragraphs: the ones before keep
    // theirs, so reading a long document stays linear.
    const int from = int(m_text.size());
    m_text += run.text;
    m_styles.insert(m_styles.end(), size_t(run.text.size()), styleNumber(run.style));
    addParagraphStarts(from);
    m_runsValid = false;
}

void StyledText::RemoveStyleRun(int index)
{
    const auto &all = runs();
    if (index < 0 || index >= int(all.size()))
        throw UnhandledFailure(QStringLiteral("stile %1 inesistente").arg(index));
    int start = 0;
    for (int i = 0; i < index; ++i)
        start += int(all[size_t(i)].text.size());
    const int length = int(all[size_t(index)].text.size());
    m_text.remove(start, length);
    m_styles.erase(m_styles.begin() + start, m_styles.begin() + start + length);
    // Paragraphs from the removed stretch on lose their alignment.
    const auto keep
        = std::count_if(m_paragraphStarts.begin(), m_paragraphStarts.end(), [&](int p) { return p < start; });
    m_alignments.resize(size_t(keep));
    syncParagraphs();
    m_runsValid = false;
}

bool StyledText::operator==(const StyledText &other) const
{
    if (m_text != other.m_text || m_alignments != other.m_alignments)
        return false;
    // The two palettes number their styles each in its own way.
    for (size_t i = 0; i < m_styles.size(); ++i) {
        const bool sameAsBefore = i > 0 && m_styles[i] == m_styles[i - 1] && other.m_styles[i] == other.m_styles[i - 1];
        if (!sameAsBefore && !(m_palette[size_t(m_styles[i])] == other.m_palette[size_t(other.m_styles[i])]))
            return false;
    }
    return true;
}

} // namespace lumetra
