#include "app/controls/text_box.h"

#include "document/puzzle_file.h"
#include "wordlist/limits.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QValidator>

#include <algorithm>
#include <utility>

/// Every way of entering text passes the line edit's validator, so the rule is applied here.
class TextValidator : public QValidator {
public:
    TextValidator(TextBox& box, const wordlist::TextRule& rule) : QValidator(&box), Box(box), Rule(rule) {}

    State validate(QString& text, int& cursor) const override;

    QString Admitted(const QString& text) const
    {
        return QString::fromStdU16String(Admit(text.toStdU16String(), static_cast<std::size_t>(Before.size()),
                                               static_cast<std::size_t>(Replaced), Rule));
    }

    /// Notes the text, and what an insertion would replace.
    void Remember()
    {
        Before = Box.text();
        Start = Box.hasSelectedText() ? Box.selectionStart() : Box.cursorPosition();
        Replaced = Box.selectionLength();
    }

    bool TakesLists = false;
    mutable QStringList Rest; ///< of the list last inserted

private:
    TextBox& Box;
    wordlist::TextRule Rule;
    QString Before;
    qsizetype Start = 0;
    qsizetype Replaced = 0;
};

/// The line edit undoes an invalid edit. When the text is changed here, the line edit takes it over and clears its
/// undo history.
QValidator::State TextValidator::validate(QString& text, int& cursor) const
{
    // The program's own texts leave nothing to undo, an edit always does. Only undo leaves something to redo.
    const bool edited = Box.isUndoAvailable() && !Box.isRedoAvailable();
    const qsizetype length = text.size() - Before.size() + Replaced;
    if (!edited || length <= 0 || !text.startsWith(Before.left(Start)) ||
        !text.endsWith(Before.mid(Start + Replaced)))
        return Acceptable;
    QString entered = text.mid(Start, length);
    if (TakesLists) {
        for (const std::u16string& word : wordlist::WordsOfList(entered.toStdU16String()))
            Rest += QString::fromStdU16String(word);
        entered = Rest.takeFirst();
    }
    const QString admitted = Admitted(entered);
    if (admitted.isEmpty() && Rest.isEmpty())
        return Invalid;
    text.replace(Start, length, admitted);
    cursor = static_cast<int>(Start + admitted.size());
    return Acceptable;
}

TextBox::TextBox(const wordlist::TextRule& rule, QWidget* parent)
    : QLineEdit(parent), Validator(new TextValidator(*this, rule))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred); // as high as its row
    setMaxLength(static_cast<int>(document::MaxFileBytes)); // room for any file's title; the rule limits the user
    setValidator(Validator);
    const auto remember = [this] { Validator->Remember(); };
    connect(this, &QLineEdit::textChanged, this, remember);
    connect(this, &QLineEdit::selectionChanged, this, remember);
    connect(this, &QLineEdit::cursorPositionChanged, this, remember);
}

/// The line edit never sees a discarded character: it would forget what it could redo.
void TextBox::keyPressEvent(QKeyEvent* event)
{
    const QString typed = event->text();
    if (typed.size() != 1 || !typed.at(0).isPrint() || !Validator->Admitted(typed).isEmpty())
        QLineEdit::keyPressEvent(event);
}

/// Inserts composed text like pasted text: committing it, the line edit would report the new cursor before it asks
/// the validator.
void TextBox::inputMethodEvent(QInputMethodEvent* event)
{
    if (!event->commitString().isEmpty() || event->replacementLength() > 0) {
        QInputMethodEvent end;
        QLineEdit::inputMethodEvent(&end);
        const QString before = text();
        const int cursor = cursorPosition();
        if (event->replacementLength() > 0)
            setSelection(std::max(cursor + event->replacementStart(), 0), event->replacementLength());
        insert(event->commitString());
        if (event->replacementLength() > 0 && text() == before)
            setCursorPosition(cursor);
    }
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&composing);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton && rect().contains(event->position().toPoint()))
        emit Clicked();
    QLineEdit::mouseReleaseEvent(event);
}

void TextBox::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Mouse)
        emit Clicked();
    QLineEdit::contextMenuEvent(event);
}

WordBox::WordBox(QWidget* parent) : TextBox({wordlist::TakesInWord, wordlist::MaxWordLength}, parent)
{
    Validator->TakesLists = true;
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (const QStringList rest = std::exchange(Validator->Rest, {}); !rest.isEmpty())
            emit ListInserted(rest);
    });
}

void WordBox::keyPressEvent(QKeyEvent* event)
{
    const bool control = (event->modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier; // with Alt it is AltGr
    // These keys make control characters, which no word has. The window may have commands for them.
    if (control && event->key() >= Qt::Key_At && event->key() <= Qt::Key_Underscore)
        event->ignore();
    else
        TextBox::keyPressEvent(event);
}

void WordBox::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions())
        action->setText(action->text().section('\t', 0, 0)); // this box ignores their keys
    menu->popup(event->globalPos());
}
