#pragma once

#include "wordlist/entry.h"

#include <QLineEdit>

/// A text box that takes only what its rule admits from the user, however it comes: typed, composed, pasted
/// or dropped. What the program sets stands as it is, and so does what undo brings back.
class EntryBox : public QLineEdit {
    Q_OBJECT

public:
    EntryBox(const wordlist::EntryRule& rule, QWidget* parent);

signals:
    void Clicked(); ///< by the left mouse button

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

/// The box for words. It discards control-key combinations, the clipboard's among them, as it discards any
/// character that no word has; text is pasted with its context menu.
class WordBox : public EntryBox {
    Q_OBJECT

public:
    explicit WordBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
