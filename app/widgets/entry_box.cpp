#include "app/widgets/entry_box.h"

#include "document/puzzle_file.h"
#include "wordlist/limits.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QValidator>

#include <utility>

/// Sits where a line edit asks whether its new text will do, which every way of entering text goes through.
class EntryValidator : public QValidator {
public:
    explicit EntryValidator(EntryBox* box) : QValidator(box), Box(*box) {}

    /// Refused, an edit is taken back by the line edit, which keeps its selection and its history.
    State validate(QString& text, int& /*cursor*/) const override { return Box.Admits(text) ? Acceptable : Invalid; }

private:
    EntryBox& Box;
};

EntryBox::EntryBox(const wordlist::EntryRule& rule, QWidget* parent) : QLineEdit(parent), Rule(rule)
{
    setMaxLength(static_cast<int>(document::MaxFileBytes)); // whatever a file brings; the rule bounds the user
    setValidator(new EntryValidator(this));
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) { Before = text; });
    // The menu's Paste comes when no event of the box is under way.
    connect(this, &QLineEdit::inputRejected, this, &EntryBox::MakePendingChange, Qt::QueuedConnection);
}

bool EntryBox::Admits(const QString& wanted)
{
    // Setting a text leaves nothing to undo, an edit always does; only undo leaves something to redo.
    const bool edited = isUndoAvailable() && !isRedoAvailable();
    if (!edited || wanted == Before)
        return true;
    Pending = wordlist::AdmitEdit(Before.toStdU16String(), {wanted.toStdU16String(), Typing}, Rule);
    if (!Pending)
        return false;
    QString admitted = Before;
    admitted.replace(static_cast<qsizetype>(Pending->position), static_cast<qsizetype>(Pending->removed),
                     QString::fromStdU16String(Pending->inserted));
    if (admitted == wanted)
        Pending.reset();
    return !Pending;
}

/// Makes what remains of an edit that was taken back, as an edit of its own.
void EntryBox::MakePendingChange()
{
    if (!Pending)
        return;
    const wordlist::Change change = *std::exchange(Pending, std::nullopt);
    home(false); // moving about keeps this edit and the one before apart, for undo
    setSelection(static_cast<int>(change.position), static_cast<int>(change.removed));
    insert(QString::fromStdU16String(change.inserted));
}

bool EntryBox::event(QEvent* event)
{
    const bool handled = QLineEdit::event(event);
    MakePendingChange();
    return handled;
}

/// A character that the rule discards does not even reach the line edit, which would forget what it could redo.
void EntryBox::keyPressEvent(QKeyEvent* event)
{
    const QString typed = event->text();
    Typing = typed.size() == 1 && typed.at(0).isPrint();
    if (Typing && Rule.filter(typed.toStdU16String(), text().isEmpty()).empty())
        event->accept();
    else
        QLineEdit::keyPressEvent(event);
    Typing = false;
}

void EntryBox::mouseReleaseEvent(QMouseEvent* event)
{
    const bool clicks = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    if (clicks && rect().contains(event->position().toPoint()))
        emit Clicked();
    QLineEdit::mouseReleaseEvent(event);
}

void EntryBox::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Mouse)
        emit Clicked();
    QLineEdit::contextMenuEvent(event);
}

WordBox::WordBox(QWidget* parent)
    : EntryBox({wordlist::FilterWord, static_cast<std::size_t>(wordlist::MaxWordLength)}, parent)
{
}

void WordBox::keyPressEvent(QKeyEvent* event)
{
    const bool control = event->modifiers().testFlag(Qt::ControlModifier) &&
                         !event->modifiers().testFlag(Qt::AltModifier); // both together are AltGr
    if (control && event->key() >= Qt::Key_At && event->key() <= Qt::Key_Underscore)
        event->ignore(); // for the window
    else
        EntryBox::keyPressEvent(event);
}

void WordBox::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions())
        action->setText(action->text().section('\t', 0, 0)); // its keys do nothing here
    menu->popup(event->globalPos());
}
