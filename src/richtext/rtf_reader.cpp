// SPDX-License-Identifier: GPL-3.0-or-later
#include "richtext/rtf_reader.h"

#include "core/encodings.h"
#include "core/failure.h"

#include <QStringDecoder>
#include <algorithm>
#include <deque>

namespace lumetra {

namespace {

// A byte of the data, or -1 outside it: every look ahead goes through here.
int byteAt(const QByteArray &data, qsizetype pos)
{
    return pos >= 0 && pos < data.size() ? static_cast<unsigned char>(data[pos]) : -1;
}

bool isLetter(int b) { return (b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z'); }
bool isDigit(int b) { return b >= '0' && b <= '9'; }

int hexValue(int b)
{
    if (isDigit(b))
        return b - '0';
    if (b >= 'a' && b <= 'f')
        return b - 'a' + 10;
    if (b >= 'A' && b <= 'F')
        return b - 'A' + 10;
    return -1;
}

// Names of control words compare ignoring case. Most names differ from a word
// in length already, and a word's length is known here.
template <size_t N>
bool is(const QByteArray &name, const char (&word)[N])
{
    return name.size() == qsizetype(N - 1) && qstrnicmp(name.constData(), word, N - 1) == 0;
}

// Font names are stored as bytes; our writer puts them as UTF-8, other writers
// mostly in ASCII.
QString fontName(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString name = utf8.decode(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : name;
}

QChar plainChar(RtfEncoding encoding, unsigned char byte)
{
    switch (encoding) {
    case RtfEncoding::Windows1252:
        return windows1252Char(byte);
    case RtfEncoding::MacRoman:
        return macRomanChar(byte);
    default:
        return QChar(char16_t(byte));
    }
}

struct RtfState {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    float size = 0;
    QString font = QStringLiteral("System");
    Colour colour = 0;
    RtfEncoding numbered = RtfEncoding::Ascii; // \u and \'hh
    RtfEncoding plain = RtfEncoding::Ascii; // the file's own bytes
};

class Reader {
public:
    Reader(StyledText &text, const QByteArray &data) : m_text(text), m_data(data) {}

    void run()
    {
        while (m_position < m_data.size() - 1) {
            if (!pass())
                return; // a '}' with no open group: no final commit
        }
        commit();
    }

private:
    // One character: from the pending queue if a group is open and it holds
    // one, otherwise the next byte of the file. False when reading stops.
    bool pass()
    {
        bool fromQueue = false;
        QString queued;
        int byte = -1;
        if (!m_stack.empty() && !m_pending.empty()) {
            queued = m_pending.front();
            m_pending.pop_front();
            fromQueue = true;
        } else {
            byte = byteAt(m_data, ++m_position);
        }
        const auto current = [&](char c) { return fromQueue ? queued == QLatin1Char(c) : byte == c; };

        if (!fromQueue && (byte == '\r' || byte == '\n')) {
            // Line breaks of the file are layout, not text.
        } else if (current('\\')) {
            const int next = byteAt(m_data, m_position + 1);
            if (next == '\\' || next == '{' || next == '}') {
                m_position++;
                text(QChar(char16_t(next)));
            } else {
                RtfCommand command;
                m_position = ReadCommand(m_data, m_position + 1, command);
                if (is(command.name, "bin"))
                    stepOverBinary(rtfNumber(command.parameter));
                else if (m_skipDepth == 0)
                    act(command);
            }
        } else if (current('{')) {
            m_stack.push_back(m_stack.empty() ? RtfState{} : m_stack.back());
            if (m_skipDepth > 0)
                m_skipDepth++;
            m_groupJustOpened = true;
            return true;
        } else if (current('}')) {
            if (m_stack.empty())
                return false;
            m_stack.pop_back();
            if (m_skipDepth > 0)
                m_skipDepth--;
            commit();
        } else if (fromQueue) {
            text(queued);
        } else if (!m_stack.empty()) {
            // Nothing styles text outside every group, and nothing keeps it.
            plainText();
        }
        m_groupJustOpened = false;
        return true;
    }

    static bool isPlain(int byte)
    {
        return byte >= 0 && byte != '\\' && byte != '{' && byte != '}' && byte != '\r' && byte != '\n';
    }

    // The byte at the position and the plain ones behind it, taken whole: each
    // would do in a pass of its own what the first does, since plain text
    // queues nothing and ends no paragraph.
    void plainText()
    {
        const qsizetype from = m_position;
        qsizetype end = from + 1;
        while (isPlain(byteAt(m_data, end)))
            ++end;
        m_position = end - 1;
        if (m_skipDepth > 0)
            return;
        openRun();
        QString &run = m_run->text;
        const qsizetype old = run.size();
        run.resize(old + (end - from));
        QChar *out = run.data() + old;
        const RtfEncoding encoding = m_stack.back().plain;
        for (qsizetype p = from; p < end; ++p)
            *out++ = plainChar(encoding, static_cast<unsigned char>(m_data[p]));
        m_textSeen = true;
    }

    void openRun()
    {
        if (m_run)
            return;
        const RtfState &state = m_stack.back();
        TextStyle style;
        style.bold = state.bold;
        style.italic = state.italic;
        style.underline = state.underline;
        style.size = state.size;
        style.font = state.font;
        style.textColor = state.colour;
        m_run = StyleRun{QString(), style};
    }

    void text(QChar character) { text(QStringView(&character, 1)); }

    // One character, which from the queue may be a surrogate pair.
    void text(QStringView character)
    {
        if (m_skipDepth > 0 || m_stack.empty())
            return;
        openRun();
        const bool lineEnd = character.size() == 1 && character.front() == QChar(13);
        if (!m_textSeen && lineEnd)
            return; // leading empty lines never appear
        m_run->text += character;
        if (lineEnd)
            commit();
        m_textSeen = true;
    }

    void stepOverBinary(qint64 length)
    {
        // A negative length would walk back over the \bin itself for ever.
        const qint64 room = m_data.size() - m_position;
        m_position += std::clamp<qint64>(length, 0, std::max<qint64>(room, 0));
    }

    void commit() { CommitRun(m_text, m_run, m_alignment); }

    void act(const RtfCommand &c)
    {
        const QByteArray &w = c.name;
        // With no group open a word has no state to change; a scratch one takes
        // the change, and no run is open to commit.
        RtfState scratch;
        RtfState &top = m_stack.empty() ? scratch : m_stack.back();
        const bool on = c.parameter != "0";
        const qint64 number = rtfNumber(c.parameter);

        if (is(w, "rtf") || is(w, "upr") || isRunSwitch(w)) {
        } else if (is(w, "ansicpg")) {
            top.numbered = encodingForCodePage(number);
        } else if (is(w, "ansi")) {
            top.plain = RtfEncoding::Windows1252;
        } else if (is(w, "mac")) {
            top.plain = RtfEncoding::MacRoman;
        } else if (is(w, "b") || is(w, "i") || is(w, "ul") || is(w, "ulnone")) {
            bool RtfState::*member = is(w, "b") ? &RtfState::bold
                : is(w, "i")                    ? &RtfState::italic
                                                : &RtfState::underline;
            top.*member = on && !is(w, "ulnone");
            commit();
        } else if (is(w, "u")) {
            if (!m_stack.empty())
                queueNumbered(top.numbered, number, c.hexByte);
        } else if (is(w, "fonttbl")) {
            m_fonts = ReadFontTable(m_data, m_position);
        } else if (is(w, "colortbl")) {
            m_colours = ReadColorTable(m_data, m_position);
        } else if (is(w, "cf")) {
            if (m_colours) {
                top.colour = number >= 0 && number < qint64(m_colours->size()) ? (*m_colours)[size_t(number)] : 0;
                commit();
            }
        } else if (is(w, "f")) {
            if (m_fonts) {
                const auto entry = m_fonts->find(number);
                if (entry != m_fonts->end() && !entry->second.isEmpty()) {
                    top.font = entry->second;
                    commit();
                }
            }
        } else if (is(w, "par")) {
            m_pending.push_back(QString(QChar(13)));
        } else if (is(w, "qc")) {
            m_alignment = 2;
        } else if (is(w, "qr")) {
            m_alignment = 3;
        } else if (is(w, "ql") || is(w, "qj") || is(w, "pard")) {
            m_alignment = 1;
        } else if (is(w, "fs")) {
            top.size = float(number) / 2;
            commit();
        } else if (m_groupJustOpened) {
            m_skipDepth = 1; // a group that begins with a word we don't know
        }
    }

    // Words with which writers open the group of every stretch of text (which
    // script, which direction). They change nothing here, and unlike unknown
    // words they don't make the group a dropped one: without them the text of
    // a LibreOffice or Word document would vanish whole.
    static bool isRunSwitch(const QByteArray &w)
    {
        return is(w, "loch") || is(w, "hich") || is(w, "dbch") || is(w, "rtlch") || is(w, "ltrch");
    }

    void queueNumbered(RtfEncoding encoding, qint64 number, bool hexByte)
    {
        QString character;
        if (encoding == RtfEncoding::Utf8 && hexByte) {
            const char byte = char(number);
            character = m_utf8.decode(QByteArrayView(&byte, 1));
        } else {
            character = numberedChar(encoding, number);
        }
        if (!character.isEmpty())
            m_pending.push_back(character);
    }

    StyledText &m_text;
    const QByteArray &m_data;
    qsizetype m_position = -1; // the last byte used
    std::vector<RtfState> m_stack;
    std::deque<QString> m_pending;
    std::optional<RtfFontTable> m_fonts;
    std::optional<RtfColorTable> m_colours;
    qsizetype m_skipDepth = 0;
    std::optional<StyleRun> m_run;
    int m_alignment = 1;
    bool m_groupJustOpened = false;
    bool m_textSeen = false;
    QStringDecoder m_utf8{QStringDecoder::Utf8};
};

} // namespace

RtfEncoding encodingForCodePage(qint64 number)
{
    switch (number) {
    case 256:
        return RtfEncoding::Unicode;
    case 10000:
        return RtfEncoding::MacRoman;
    case 65001:
        return RtfEncoding::Utf8;
    default:
        return RtfEncoding::Windows1252;
    }
}

QString numberedChar(RtfEncoding encoding, qint64 number)
{
    switch (encoding) {
    case RtfEncoding::Unicode:
    case RtfEncoding::Utf8:
        if (number < 0 && number >= -32768)
            number += 65536;
        if (number < 0 || number > 0x10FFFF)
            return {};
        // A lone surrogate stays as it is, so that a pair written as two \u
        // numbers joins up again in the text.
        if (number <= 0xFFFF)
            return QString(QChar(char16_t(number)));
        {
            const char32_t codePoint = char32_t(number);
            return QString::fromUcs4(&codePoint, 1);
        }
    default:
        if (number < 0 || number > 255)
            return {};
        return QString(plainChar(encoding, static_cast<unsigned char>(number)));
    }
}

qint64 rtfNumber(const QByteArray &parameter)
{
    constexpr qint64 limit = 2'000'000'000;
    qsizetype i = 0;
    const bool negative = parameter.startsWith('-');
    if (negative)
        i = 1;
    qint64 value = 0;
    for (; i < parameter.size() && isDigit(byteAt(parameter, i)); ++i)
        value = std::min(limit, value * 10 + (parameter[i] - '0'));
    return negative ? -value : value;
}

qsizetype PosAfterDelimiter(const QByteArray &data, qsizetype pos)
{
    const int b = byteAt(data, pos);
    if (b == '\\' || b == '{' || b == ';' || b == '}')
        return pos - 1;
    if (b == '\r' && byteAt(data, pos + 1) == '\n')
        return pos + 1;
    return pos;
}

qsizetype ReadCommand(const QByteArray &data, qsizetype pos, RtfCommand &command)
{
    command = RtfCommand{};
    qsizetype p = pos;
    // "{\*\word": the name keeps its "*\", so that it matches no known word.
    if (byteAt(data, pos - 2) == '{' && byteAt(data, pos - 1) == '\\' && byteAt(data, pos) == '*'
        && byteAt(data, pos + 1) == '\\')
        p += 2;
    while (isLetter(byteAt(data, p)))
        ++p;
    command.name = data.mid(pos, p - pos);

    const int b = byteAt(data, p);
    if (isDigit(b) || b == '-') {
        const qsizetype start = p++;
        while (isDigit(byteAt(data, p)))
            ++p;
        command.parameter = data.mid(start, p - start);
    } else if (b == '\'' && command.name.isEmpty()) {
        int value = 0;
        for (int k = 1; k <= 2; ++k) {
            const int digit = hexValue(byteAt(data, p + k));
            if (digit < 0)
                break;
            value = value * 16 + digit;
        }
        command.name = "u";
        command.parameter = QByteArray::number(value);
        command.hexByte = true;
        p += 2;
    } else if ((b == '\r' || b == '\n') && command.name.isEmpty()) {
        command.name = "par";
    }
    return PosAfterDelimiter(data, p);
}

std::optional<RtfFontTable> ReadFontTable(const QByteArray &data, qsizetype &pos)
{
    std::map<qint64, QByteArray> names;
    QByteArray *entry = nullptr;
    bool nameDone = false;
    qsizetype depth = 0;
    qsizetype skip = 0;
    bool afterBrace = false;
    while (pos < data.size() - 1) {
        const int b = byteAt(data, ++pos);
        bool brace = false;
        if (b == '\\') {
            RtfCommand command;
            pos = ReadCommand(data, pos + 1, command);
            if (is(command.name, "f")) {
                entry = &names[rtfNumber(command.parameter)];
                entry->clear();
                nameDone = false;
            } else if (afterBrace && skip == 0) {
                skip = 1; // {\*\falt ...}, {\panose ...}
            }
        } else if (b == '{') {
            depth++;
            if (skip > 0)
                skip++;
            brace = true;
        } else if (b == '}') {
            if (--depth < 0) {
                pos = PosAfterDelimiter(data, pos + 1);
                RtfFontTable table;
                for (const auto &[number, name] : names)
                    table[number] = fontName(name);
                return table;
            }
            if (skip > 0)
                skip--;
        } else if (skip == 0 && !nameDone) {
            if (b == ';')
                nameDone = true;
            else if (!entry)
                throw UnhandledFailure(QStringLiteral("testo prima del primo \\f nella tabella dei caratteri RTF"));
            else
                entry->append(char(b));
        }
        afterBrace = brace;
    }
    return std::nullopt;
}

std::optional<RtfColorTable> ReadColorTable(const QByteArray &data, qsizetype &pos)
{
    RtfColorTable table;
    // One colour for the whole table: a component not given keeps the last
    // entry's value.
    Colour red = 0, green = 0, blue = 0;
    while (pos < data.size() - 1) {
        const int b = byteAt(data, ++pos);
        if (b == '\\') {
            RtfCommand command;
            pos = ReadCommand(data, pos + 1, command);
            const Colour value = Colour(std::clamp<qint64>(rtfNumber(command.parameter), 0, 255));
            if (is(command.name, "red"))
                red = value;
            else if (is(command.name, "green"))
                green = value;
            else if (is(command.name, "blue"))
                blue = value;
        } else if (b == '}') {
            pos = PosAfterDelimiter(data, pos + 1);
            return table;
        } else if (b == ';') {
            table.push_back(red << 16 | green << 8 | blue);
        }
    }
    return std::nullopt;
}

void CommitRun(StyledText &text, std::optional<StyleRun> &run, int alignment)
{
    if (!run)
        return;
    const int before = text.ParagraphCount();
    text.AppendStyleRun(*run);
    run.reset();
    if (alignment != 0 && text.ParagraphCount() != before)
        text.ParagraphAlignment(text.ParagraphCount() - 1, alignment);
}

void SetRTFData(StyledText &text, const QByteArray &rtf)
{
    // Removing every run leaves the empty text.
    text = StyledText();
    if (rtf.left(5).compare("{\\rtf", Qt::CaseInsensitive) != 0)
        return;
    Reader(text, rtf).run();
}

} // namespace lumetra
