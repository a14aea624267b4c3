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

/// Driving the program's real windows: finding controls by name and answering modal boxes and dialogs.
namespace driving {

/// Sets up a run that no desktop theme, settings file or native dialog can change.
void PrepareApplication();

/// The descendant of `root` with this name; ends the program, naming those that there are, when there is
/// none.
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

/// The window of this name that is shown, or null.
QWidget* ShownWindow(const QString& name);

/// The button that stands for a toolbar's action.
QToolButton& ToolButton(const QWidget& window, const QString& toolbar, const QString& key);

/// Answers modal boxes and dialogs as they appear, in the order in which the answers were given. One that
/// nobody expected is closed and remembered, so that nothing waits for ever.
class Answers : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog&)>;

    Answers();
    void Expect(Answer answer) { Expected.push_back(std::move(answer)); }
    /// Everything that was shown since the last call: "title: text" of boxes, names of dialogs, "unexpected"
    /// before those that nobody expected.
    QStringList Shown() { return std::exchange(Seen, {}); }
    /// Whether every expected dialog has come.
    bool Done() const { return Expected.empty(); }

private:
    void Look();

    QTimer Timer;
    std::deque<Answer> Expected;
    QList<QPointer<QDialog>> Answered;
    QStringList Seen;
};

Answers::Answer Press(QMessageBox::StandardButton button);
/// Types a path into a file dialog and confirms it; cancels a dialog that does not take it.
Answers::Answer ChooseFile(const QString& path);
/// Escape.
Answers::Answer Dismiss();
/// Prints to a PDF file with the print dialog; cancels a dialog that does not take the path.
Answers::Answer PrintTo(const QString& path);

} // namespace driving
