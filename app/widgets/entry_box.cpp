#include "app/widgets/entry_box.h"

#include "wordlist/limits.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QValidator>

namespace {

/// Sits where a line edit asks whether its new text will do, which every way of entering text goes through,
/// and answers with what the rule makes of the edit.
class EntryValidator : public QValidator {
public:
    EntryValidator(const wordlist::EntryRule& rule, EntryBox* box) : QValidator(box), Rule(rule), Box(*box)
    {
        connect(box, &QLineEdit::textChanged, this, [this](const QString& text) { Before = text; });
    }

    State validate(QString& text, int& cursor) const override
    {
        // Setting a text leaves nothing to undo, an edit always does; only undo leaves something to redo.
        const bool edited = Box.isUndoAvailable() && !Box.isRedoAvailable();
        if (!edited || text == Before)
            return Acceptable;
        const auto admitted = wordlist::AdmitEdit(Before.toStdU16String(),
                                                  {text.toStdU16String(), static_cast<std::size_t>(cursor)}, Rule);
        const bool refused = admitted.text == Before.toStdU16String();
        if (refused)
            return Invalid; // the line edit takes the edit back and keeps its selection and its history
        text = QString::fromStdU16String(admitted.text);
        cursor = static_cast<int>(admitted.cursor);
        return Acceptable;
    }

private:
    wordlist::EntryRule Rule;
    EntryBox& Box;
    QString Before;
};

} // namespace

EntryBox::EntryBox(const wordlist::EntryRule& rule, QWidget* parent) : QLineEdit(parent)
{
    setValidator(new EntryValidator(rule, this));
}

void EntryBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
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
        event->accept();
    else
        EntryBox::keyPressEvent(event);
}
