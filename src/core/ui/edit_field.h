// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The program's text fields. Both kinds keep the same rules:
// - TextChange is raised by every change of the text, the user's or the
//   program's, but not again by a write from inside its own handler;
// - text the program sets with setText always raises TextChange, even when it
//   equals what the field shows;
// - LimitText stops typing and pasting at the limit, while text the program
//   sets is never cut;
// - keyDown, when set, sees every key press before the field does, and
//   returning true keeps the key from the field;
// - a one-line field holds no line break: one the user pastes becomes a blank,
//   since a break would split the line of a bill or of utenza.txt in two.

#include <QLineEdit>
#include <QPlainTextEdit>
#include <functional>

namespace lumetra {

using KeyDownHandler = std::function<bool(QKeyEvent *)>;

// Whether a key press is the select-all of the fields: the command key (Ctrl;
// Qt maps the Mac's Cmd to it) with "A", in any letter case.
bool tastoSelezionaTutto(const QKeyEvent *event);

// A one-line text field.
class EditLine : public QLineEdit {
    Q_OBJECT
public:
    explicit EditLine(QWidget *parent = nullptr);

    QString Text() const { return text(); }
    // Hides QLineEdit::setText on purpose: every program write goes through here.
    void setText(const QString &text);
    void setLimitText(int limit) { m_limit = limit; }

    KeyDownHandler keyDown;

signals:
    void TextChange();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class LimitValidator;
    void onTextChanged();

    int m_limit = 0; // 0: no limit
    bool m_inHandler = false;
    bool m_programWrite = false;
    qsizetype m_lastLength = 0;
};

// A multi-line text field. Its text uses character 13 as line end, as the
// program's documents do.
class EditText : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit EditText(QWidget *parent = nullptr);

    QString Text() const;
    void setText(const QString &text);
    void setLimitText(int limit) { m_limit = limit; }

    KeyDownHandler keyDown;

signals:
    void TextChange();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    void onTextChanged();
    // How many characters the user may still add in place of the selection.
    qsizetype room() const;

    int m_limit = 0;
    bool m_inHandler = false;
};

} // namespace lumetra
