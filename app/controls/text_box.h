#pragma once

#include "wordlist/text_rule.h"

#include <QLineEdit>

class TextValidator;

/// A text box that takes from the user only what its rule admits, whether typed, composed, pasted or dropped.
/// Discarded text changes nothing, neither selection nor undo; but a composition deletes the selection when it
/// begins. A paste that is taken only in part clears the undo history. The rule applies neither to texts that the
/// program sets nor to undo.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    TextBox(const wordlist::TextRule& rule, QWidget* parent);

signals:
    void Clicked(); ///< with any mouse button, before the click takes effect

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    TextValidator* Validator;
};

/// The box for words. It discards control-key combinations, like any other character that a word cannot
/// contain. Users paste with the
/// context menu.
class WordBox : public TextBox {
    Q_OBJECT

public:
    explicit WordBox(QWidget* parent);

signals:
    /// The user pasted, dropped or composed a list. Its first word is in the box, `rest` are those after it.
    void ListInserted(const QStringList& rest);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};
