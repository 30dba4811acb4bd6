// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/edit_field.h"

#include "core/text_functions.h"
#include "core/ui/handler_guard.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QValidator>

namespace lumetra {

bool tastoSelezionaTutto(const QKeyEvent *event)
{
    return event->key() == Qt::Key_A && (event->modifiers() & Qt::ControlModifier);
}

// Turns a line break the user pastes into a blank, and cuts what the user adds
// beyond the limit; nothing the program sets. It sees the text as it will be
// after the edit, with the caret behind what was added, so the excess is the
// tail of the added piece.
class LimitValidator : public QValidator {
public:
    explicit LimitValidator(EditLine *field) : QValidator(field), m_field(field) {}

    State validate(QString &input, int &pos) const override
    {
        const EditLine &f = *m_field;
        if (f.m_programWrite)
            return Acceptable;
        input = unaRiga(input);
        if (f.m_limit <= 0)
            return Acceptable;
        const qsizetype allowed = std::max<qsizetype>(f.m_limit, f.m_lastLength);
        const qsizetype excess = input.size() - allowed;
        if (excess > 0) {
            const qsizetype cut = std::min<qsizetype>(excess, pos);
            input.remove(pos - cut, cut);
            pos -= int(cut);
        }
        return Acceptable;
    }

private:
    EditLine *m_field;
};

EditLine::EditLine(QWidget *parent) : QLineEdit(parent)
{
    setValidator(new LimitValidator(this));
    connect(this, &QLineEdit::textChanged, this, &EditLine::onTextChanged);
}

void EditLine::setText(const QString &text)
{
    // The flags fall back however the write ends, so that the field filters
    // and raises its handler after a failure as before it.
    const QScopedValueRollback<bool> programma(m_programWrite, true);
    programWrite([&] {
        if (text == this->text())
            onTextChanged();
        else
            QLineEdit::setText(text);
    });
}

void EditLine::onTextChanged()
{
    m_lastLength = text().size();
    if (m_inHandler)
        return;
    const QScopedValueRollback<bool> dentro(m_inHandler, true);
    emit TextChange();
}

namespace {

// Whether the field's key handler keeps the key from the field. One that fails
// keeps it: the command stops there.
bool premiTasto(const KeyDownHandler &keyDown, QKeyEvent *event)
{
    bool trattenuto = true;
    runGuarded([&] { trattenuto = keyDown && keyDown(event); });
    return trattenuto;
}

} // namespace

void EditLine::keyPressEvent(QKeyEvent *event)
{
    if (premiTasto(keyDown, event))
        return;
    QLineEdit::keyPressEvent(event);
}

EditText::EditText(QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &EditText::onTextChanged);
}

QString EditText::Text() const
{
    QString t = toPlainText();
    t.replace(QLatin1Char('\n'), QChar(13));
    return t;
}

void EditText::setText(const QString &text)
{
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(QChar(13), QLatin1Char('\n'));
    programWrite([&] {
        if (shown == toPlainText())
            onTextChanged();
        else
            setPlainText(shown);
    });
}

void EditText::onTextChanged()
{
    if (m_inHandler)
        return;
    const QScopedValueRollback<bool> dentro(m_inHandler, true);
    emit TextChange();
}

qsizetype EditText::room() const
{
    if (m_limit <= 0)
        return std::numeric_limits<qsizetype>::max();
    const QTextCursor c = textCursor();
    const qsizetype length = document()->characterCount() - 1;
    return m_limit - (length - (c.selectionEnd() - c.selectionStart()));
}

void EditText::keyPressEvent(QKeyEvent *event)
{
    if (premiTasto(keyDown, event))
        return;
    const QString typed = event->text();
    const bool inserts = !isReadOnly() && !typed.isEmpty()
        && (typed.at(0).isPrint() || typed.at(0) == QChar(13) || typed.at(0) == QLatin1Char('\n'))
        && !(event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier));
    if (inserts && room() < typed.size())
        return;
    QPlainTextEdit::keyPressEvent(event);
}

void EditText::insertFromMimeData(const QMimeData *source)
{
    if (!source || !source->hasText() || m_limit <= 0) {
        QPlainTextEdit::insertFromMimeData(source);
        return;
    }
    const qsizetype space = room();
    if (space <= 0)
        return;
    QString text = source->text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QChar(13), QLatin1Char('\n'));
    QMimeData cut;
    cut.setText(text.left(space));
    QPlainTextEdit::insertFromMimeData(&cut);
}

void EditText::inputMethodEvent(QInputMethodEvent *event)
{
    if (m_limit > 0 && !event->commitString().isEmpty() && room() < event->commitString().size()) {
        const qsizetype space = std::max<qsizetype>(room(), 0);
        QInputMethodEvent cut(event->preeditString(), event->attributes());
        cut.setCommitString(event->commitString().left(space), event->replacementStart(), event->replacementLength());
        QPlainTextEdit::inputMethodEvent(&cut);
        return;
    }
    QPlainTextEdit::inputMethodEvent(event);
}

} // namespace lumetra
