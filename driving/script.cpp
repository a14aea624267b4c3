#include "driving/script.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

namespace driving {

namespace {

void Paste(QLineEdit& box, const QString& text)
{
    QApplication::clipboard()->setText(text);
    box.paste();
}

void Drop(QLineEdit& box, const QString& text)
{
    QMimeData data;
    data.setText(text);
    const QPoint place = box.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &drop);
}

void ClickWithMiddleButton(QLineEdit& box, const QString& text)
{
    QApplication::clipboard()->setText(text, QClipboard::Selection);
    QTest::mouseClick(&box, Qt::MiddleButton, {}, box.inputMethodQuery(Qt::ImCursorRectangle).toRect().center());
}

void Compose(QLineEdit& box, const QString& text)
{
    QInputMethodEvent composed;
    composed.setCommitString(text);
    QApplication::sendEvent(&box, &composed);
}

} // namespace

void Script::Start(generator::RandomSource random)
{
    Window = std::make_unique<frmMain>(std::move(random));
    Window->show();
    Activate();
}

QWidget* Script::Activate()
{
    QWidget* puzzle = ShownWindow("frmPuzzle");
    QWidget* window = puzzle != nullptr ? puzzle : Window.get();
    window->activateWindow();
    const auto focusArrived = [window] { return QApplication::focusWidget() == window->focusWidget(); };
    if (!QTest::qWaitForWindowActive(window) || !QTest::qWaitFor(focusArrived))
        qFatal("%s does not become active", qPrintable(window->objectName()));
    return window->focusWidget();
}

void Script::Run(const QString& steps)
{
    for (const QString& step : steps.split(' '))
        Step(step);
}

void Script::Step(const QString& step)
{
    const QString name = step.section(':', 0, 0);
    QString about = step.section(':', 1).replace('_', ' ');
    about.replace("\\n", "\n").replace("\\r", "\r").replace("\\t", "\t");
    for (const Steps& steps : {ActionSteps(about), AnswerSteps(about)})
        if (const auto known = steps.find(name); known != steps.end())
            return known->second();
    qFatal("there is no step %s", qPrintable(step));
}

Script::Steps Script::ActionSteps(const QString& about)
{
    const auto press = [this](const char* box, Qt::Key key) { QTest::keyClick(&Control<QLineEdit>(box), key); };
    return {
        {"type", [=, this] { Type("txtNewWords", about); }},
        {"enter", [=] { press("txtNewWords", Qt::Key_Return); }},
        {"wipe", [=, this] { Control<QLineEdit>("txtNewWords").selectAll(), press("txtNewWords", Qt::Key_Delete); }},
        {"home", [=] { press("txtNewWords", Qt::Key_Home); }},
        {"del", [=] { press("txtNewWords", Qt::Key_Delete); }},
        {"word", [=, this] { Type("txtNewWords", about), press("txtNewWords", Qt::Key_Return); }},
        {"fill", [=, this] { Fill(about.toInt()); }},
        {"over",
         [=, this] { Enter(about, [](QLineEdit& box, const QString& text) { QTest::keyClicks(&box, text); }); }},
        {"paste", [=, this] { Enter(about, Paste); }},
        {"list", [=, this] { Enter("w,99,0," + about, Paste); }},
        {"drop", [=, this] { Enter(about, Drop); }},
        {"middle", [=, this] { Enter(about, ClickWithMiddleButton); }},
        {"compose", [=, this] { Enter(about, Compose); }},
        {"waiting", [=, this] { PressWithoutWaiting(about); }},
        {"title", [=, this] { Type("txtTitle", about); }},
        {"titleenter", [=] { press("txtTitle", Qt::Key_Enter); }},
        {"clicktitle", [=, this] { Click("txtTitle"); }},
        {"pick", [=, this] { Pick(about.toInt()); }},
        {"double", [=, this] { Pick(about.toInt(), true); }},
        {"edit", [=, this] { Click("cmdEditWord"); }},
        {"delete", [=, this] { Click("cmdDelete"); }},
        {"leave", [=, this] { Control<QLineEdit>("txtNewWords").setFocus(); }},
        {"tabs", [=, this] { TabRound(); }},
        {"key", [=, this] { QTest::keySequence(Activate(), QKeySequence(about)); }},
        {"look", [=, this] { Control<QWidget>("lstWordlist").setFocus(), Step("key:" + about); }},
        {"create", [=, this] { Click("cmdCreatePuzzle"); }},
        {"tool", [=, this] { ToolButton(*Window, "Toolbar1", about).click(); }},
        {"openmenu", [=, this] { OpenMenu(about.at(0).toLatin1()); }},
        {"menu", [=, this] { QTest::keyClick(OpenMenu(about.at(0).toLatin1()), about.at(1).toLatin1()); }},
        {"print", [=] { ToolButton(*ShownWindow("frmPuzzle"), "PuzzleToolbar", "Print").click(); }},
        {"back", [=] { ToolButton(*ShownWindow("frmPuzzle"), "PuzzleToolbar", "Back").click(); }},
        {"closepuzzle", [=] { ShownWindow("frmPuzzle")->close(); }},
        {"closemain", [=, this] { Window->close(); }},
        {"taskbar", [=, this] { Window->showMinimized(), Window->showNormal(); }},
    };
}

Script::Steps Script::AnswerSteps(const QString& about)
{
    const auto answer = [this](const Answers::Answer& given) { Answering.Expect(given); };
    return {
        {"yes", [=] { answer(Press(QMessageBox::Yes)); }},
        {"no", [=] { answer(Press(QMessageBox::No)); }},
        {"cancel", [=] { answer(Press(QMessageBox::Cancel)); }},
        {"ok", [=] { answer(Press(QMessageBox::Ok)); }},
        {"end", [=] { answer([](QDialog& /*dialog*/) { QApplication::closeAllWindows(); }); }},
        {"escape", [=] { answer(Dismiss()); }},
        {"file", [=, this] { answer(ChooseFile(Folder.absoluteFilePath(about))); }},
        {"pdf", [=, this] { answer(PrintTo(Folder.absoluteFilePath(about))); }},
    };
}

void Script::Click(const char* control) { QTest::mouseClick(&Control<QWidget>(control), Qt::LeftButton); }

void Script::Type(const char* box, const QString& text)
{
    auto& edit = Control<QLineEdit>(box);
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_End);
    QTest::keyClicks(&edit, text);
}

void Script::Fill(int words)
{
    for (int i = 0; i < words; ++i)
        Step(QString("word:W%1%2").arg(QChar('a' + i % 26)).arg(QChar('a' + i / 26)));
}

void Script::Pick(int position, bool doubleClick)
{
    auto& list = Control<QListWidget>("lstWordlist");
    const QPoint place = list.visualItemRect(list.item(position)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    if (doubleClick)
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

void Script::Enter(const QString& about, const Way& way)
{
    auto& box = Control<QLineEdit>(about.startsWith('t') ? "txtTitle" : "txtNewWords");
    box.setFocus();
    box.end(false);
    const auto start = std::min<qsizetype>(about.section(',', 1, 1).toInt(), box.text().size());
    box.setSelection(static_cast<int>(start), about.section(',', 2, 2).toInt());
    way(box, about.section(',', 3));
}

/// Queues all keys before the program handles the first one, as when it is busy. They reach the window that has the
/// focus now, even below a dialog.
void Script::PressWithoutWaiting(const QString& keys)
{
    Type("txtNewWords", {});
    QWindow* window = Activate()->window()->windowHandle();
    int taken = 0;
    const QStringList waiting = keys.split(' ');
    for (const QString& key : waiting)
        QTimer::singleShot(0, window, [&taken, window, key] {
            ++taken;
            const QKeyCombination pressed = QKeySequence(key)[0];
            const QString text = key.size() == 1 ? key : QString();
            for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
                qt_handleKeyEvent(window, type, pressed.key(), pressed.keyboardModifiers(), text);
        });
    if (!QTest::qWaitFor([&] { return taken == waiting.size(); }))
        qFatal("keys were left over: %s", qPrintable(keys));
}

/// From the list past the end of the tab order to the word box.
void Script::TabRound()
{
    Activate(); // an inactive window sends no focus events
    Control<QWidget>("lstWordlist").setFocus(Qt::TabFocusReason);
    while (Window->focusWidget() != &Control<QWidget>("txtNewWords"))
        QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
}

QWidget* Script::OpenMenu(char key)
{
    Activate();
    QTest::keyClick(Window.get(), key, Qt::AltModifier);
    QWidget* menu = QApplication::activePopupWidget();
    if (menu == nullptr)
        qFatal("no menu opens with Alt and %c", key);
    return menu;
}

} // namespace driving
