#pragma once

#include "wordlist/text_rule.h"

#include <QLineEdit>

class TextValidator;

/// A text box that takes only what its rule admits from the user, typed, composed, pasted or dropped. What is
/// discarded changes nothing, selection and undo included; a paste of which a part is discarded leaves nothing to
/// undo. What the program sets stays as it is, and so does what undo brings back.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    TextBox(const wordlist::TextRule& rule, QWidget* parent);

signals:
    void Clicked(); ///< by any mouse button, before the click does what it does

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    TextValidator* Validator;
};

/// The box for words. It discards control-key combinations, the clipboard's among them, as it discards any
/// character that no word has; text is pasted with its context menu.
class WordBox : public TextBox {
    Q_OBJECT

public:
    explicit WordBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};
