#pragma once

#include "wordlist/entry.h"

#include <QLineEdit>

#include <optional>

/// A text box that takes only what its rule admits from the user, however it comes: typed, composed, pasted
/// or dropped. What is discarded changes nothing, selection and undo included. What the program sets stands as it
/// is, and so does what undo brings back.
class EntryBox : public QLineEdit {
    Q_OBJECT

public:
    EntryBox(const wordlist::EntryRule& rule, QWidget* parent);

signals:
    void Clicked(); ///< by any mouse button, before the click does what it does

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    friend class EntryValidator;
    bool Admits(const QString& wanted);
    void MakePendingChange();

    wordlist::EntryRule Rule;
    QString Before;                          ///< the text as the last edit left it
    bool Typing = false;                     ///< a character is on its way from the keyboard
    std::optional<wordlist::Change> Pending; ///< what is left of an edit that was not admitted as it was
};

/// The box for words. It discards control-key combinations, the clipboard's among them, as it discards any
/// character that no word has; text is pasted with its context menu.
class WordBox : public EntryBox {
    Q_OBJECT

public:
    explicit WordBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};
