// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Text with style runs and paragraphs: the model behind the output window, the
// RTF writer and the RTF reader. Character 13 ends a paragraph; a paragraph
// holds its line end, so "a\rb" has two paragraphs and "a\r" one.

#include <QHash>
#include <QString>
#include <cstdint>
#include <vector>

namespace lumetra {

// 0xRRGGBB.
using Colour = std::uint32_t;

struct TextStyle {
    QString font = QStringLiteral("System");
    float size = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Colour textColor = 0;

    bool operator==(const TextStyle &other) const = default;
};

size_t qHash(const TextStyle &style, size_t seed = 0) noexcept;

struct StyleRun {
    QString text;
    TextStyle style;
};

struct Paragraph {
    int startPos = 0;
    // Characters of the paragraph, its line end not counted.
    int length = 0;
    // 0 default, 1 left, 2 centre, 3 right.
    int alignment = 0;
};

// Inside the class the operations Paragraph and StyleRun hide the types of
// the same names, which are therefore written lumetra::Paragraph and
// lumetra::StyleRun there.
class StyledText {
public:
    StyledText() = default;
    explicit StyledText(const QString &text) { SetText(text); }

    QString Text() const { return m_text; }
    // Replaces the characters; all of them take the default style, and every
    // paragraph alignment 0.
    void SetText(const QString &text);

    // Styles of the characters from start (counted from 0), length of them.
    // Underline and colour come with appended runs only.
    void Font(int start, int length, const QString &name);
    void Size(int start, int length, float size);
    void Bold(int start, int length, bool on);
    void Italic(int start, int length, bool on);
    TextStyle styleAt(int position) const;

    int ParagraphCount() const;
    // An index outside 0..ParagraphCount()-1 is an unhandled failure.
    lumetra::Paragraph Paragraph(int index) const;
    void ParagraphAlignment(int index, int alignment);
    int ParagraphAlignment(int index) const;

    // Maximal stretches of characters with one style; a line end does not
    // break a run.
    int StyleRunCount() const;
    lumetra::StyleRun StyleRun(int index) const;
    void AppendStyleRun(const lumetra::StyleRun &run);
    void RemoveStyleRun(int index);

    bool operator==(const StyledText &other) const;

private:
    template <class F>
    void apply(int start, int length, F change);
    // The number of a style in the palette, which it joins if it is new.
    int styleNumber(const TextStyle &style);
    void syncParagraphs();
    // Records the paragraphs that start at or behind from.
    void addParagraphStarts(int from);
    const std::vector<lumetra::StyleRun> &runs() const;

    QString m_text;
    // Each character holds the number of its style in a palette of distinct
    // styles: a few bytes a character, and runs come apart by comparing
    // numbers.
    std::vector<int> m_styles; // one per character
    std::vector<TextStyle> m_palette;
    QHash<TextStyle, int> m_paletteIndex;
    std::vector<int> m_alignments; // one per paragraph
    std::vector<int> m_paragraphStarts;
    mutable std::vector<lumetra::StyleRun> m_runs;
    mutable bool m_runsValid = false;
};

} // namespace lumetra
