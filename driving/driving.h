#pragma once

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QToolButton>

#include <deque>
#include <functional>

/// Drives the program's real windows: finds controls by name and answers modal boxes and dialogs.
namespace driving {

/// Makes the run independent of the settings file and of native dialogs. Call it once the application exists.
void PrepareDriving();

/// Returns the descendant of `root` with this name. If there is none, lists the existing names and aborts.
template <class T>
T& Find(const QObject& root, const QString& name)
{
    if (T* found = root.findChild<T*>(name))
        return *found;
    QStringList names;
    for (const QObject* object : root.findChildren<QObject*>())
        names += object->objectName();
    names.removeAll(QString());
    qFatal("%s has no %s, but: %s", qPrintable(root.objectName()), qPrintable(name), qPrintable(names.join(' ')));
}

/// Returns the visible window with this name, or null.
QWidget* ShownWindow(const QString& name);

/// Returns the button of the action `key` in a toolbar.
QToolButton& ToolButton(const QWidget& window, const QString& toolbar, const QString& key);

/// Answers modal boxes and dialogs as they appear, in the order of the Expect calls. Closes and records an unexpected
/// one, so that a run never hangs.
class Answers : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog&)>;

    Answers();
    void Expect(Answer answer) { Expected.push_back(std::move(answer)); }
    /// Returns what appeared since the last call: "title: text" for a box, the name of a dialog, with "unexpected "
    /// in front if it was not expected.
    QStringList Shown() { return std::exchange(Seen, {}); }
    /// Whether every expected dialog has appeared.
    bool Done() const { return Expected.empty(); }

private:
    void Look();

    QTimer Timer;
    std::deque<Answer> Expected;
    QList<QPointer<QDialog>> Answered;
    QStringList Seen;
};

/// Clicks a button of a message box; cancels any other dialog.
Answers::Answer Press(QMessageBox::StandardButton button);
/// Types a path into a file dialog and confirms it; cancels the dialog if it does not accept the path.
Answers::Answer ChooseFile(const QString& path);
/// Presses Escape.
Answers::Answer Dismiss();
/// Prints to a PDF file through the print dialog; cancels the dialog if it does not accept the path.
Answers::Answer PrintTo(const QString& path);

} // namespace driving
