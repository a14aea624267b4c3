#include "driving/script.h"

#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include <map>

namespace driving {

namespace {

void Paste(QLineEdit& box, const QString& text)
{
    QApplication::clipboard()->setText(text);
    box.paste();
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
    const QString about = step.section(':', 1).replace('_', ' ');
    const auto key = [this](const char* box, Qt::Key pressed) { QTest::keyClick(&Control<QLineEdit>(box), pressed); };
    const auto puzzle = [] {
        QWidget* shown = ShownWindow("frmPuzzle");
        if (shown == nullptr)
            qFatal("no puzzle is shown");
        return shown;
    };
    const auto puzzleTool = [&](const char* name) { ToolButton(*puzzle(), "PuzzleToolbar", name).click(); };
    const std::map<QString, std::function<void()>> steps{
        {"type", [&] { Type("txtNewWords", about); }},
        {"enter", [&] { key("txtNewWords", Qt::Key_Return); }},
        {"wipe", [&] { Control<QLineEdit>("txtNewWords").selectAll(), key("txtNewWords", Qt::Key_Delete); }},
        {"home", [&] { key("txtNewWords", Qt::Key_Home); }},
        {"del", [&] { key("txtNewWords", Qt::Key_Delete); }},
        {"word", [&] { Type("txtNewWords", about), key("txtNewWords", Qt::Key_Return); }},
        {"fill", [&] { Fill(about.toInt()); }},
        {"title", [&] { Type("txtTitle", about); }},
        {"titleenter", [&] { key("txtTitle", Qt::Key_Enter); }},
        {"clicktitle", [&] { QTest::mouseClick(&Control<QLineEdit>("txtTitle"), Qt::LeftButton); }},
        {"leave", [&] { Control<QLineEdit>("txtNewWords").setFocus(); }},
        {"tabs", [&] { TabRound(); }},
        {"key", [&] { QTest::keySequence(Activate(), QKeySequence(about)); }},
        {"pick", [&] { Pick(about.toInt()); }},
        {"double", [&] { Pick(about.toInt()), Pick(about.toInt(), true); }},
        {"look",
         [&] { Control<QWidget>("lstWordlist").setFocus(), QTest::keySequence(Activate(), QKeySequence(about)); }},
        {"over", [&] { Enter(about, [](QLineEdit& box, const QString& text) { QTest::keyClicks(&box, text); }); }},
        {"paste", [&] { Enter(about, [](QLineEdit& box, const QString& text) { Paste(box, text); }); }},
        {"waiting", [&] { PressWithoutWaiting(about); }},
        {"edit", [&] { Click("cmdEditWord"); }},
        {"delete", [&] { Click("cmdDelete"); }},
        {"create", [&] { Click("cmdCreatePuzzle"); }},
        {"tool", [&] { ToolButton(*Window, "Toolbar1", about).click(); }},
        {"menu", [&] { QTest::keyClick(OpenMenu(about.at(0).toLatin1()), about.at(1).toLatin1()); }},
        {"print", [&] { puzzleTool("Print"); }},
        {"back", [&] { puzzleTool("Back"); }},
        {"closepuzzle", [&] { puzzle()->close(); }},
        {"closetwice", [&, window = QPointer(ShownWindow("frmPuzzle"))] { window->close(), window->close(); }},
        {"openmenu", [&] { OpenMenu(about.at(0).toLatin1()); }},
        {"taskbar", [&] { Window->showMinimized(), Window->showNormal(); }},
        {"closemain", [&] { Window->close(); }},
        {"yes", [&] { Answering.Expect(Press(QMessageBox::Yes)); }},
        {"no", [&] { Answering.Expect(Press(QMessageBox::No)); }},
        {"cancel", [&] { Answering.Expect(Press(QMessageBox::Cancel)); }},
        {"ok", [&] { Answering.Expect(Press(QMessageBox::Ok)); }},
        {"end", [&] { Answering.Expect([](QDialog& /*dialog*/) { QApplication::closeAllWindows(); }); }},
        {"escape", [&] { Answering.Expect(Dismiss()); }},
        {"file", [&] { Answering.Expect(ChooseFile(Folder.absoluteFilePath(about))); }},
        {"pdf", [&] { Answering.Expect(PrintTo(Folder.absoluteFilePath(about))); }},
    };
    const auto known = steps.find(step.section(':', 0, 0));
    if (known == steps.end())
        qFatal("there is no step %s", qPrintable(step));
    known->second();
}

void Script::Click(const char* button)
{
    QTest::mouseClick(&Control<QPushButton>(button), Qt::LeftButton);
}

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

void Script::Pick(int position, bool secondClick)
{
    auto& list = Control<QListWidget>("lstWordlist");
    const QPoint place = list.visualItemRect(list.item(position)).center();
    if (secondClick)
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    else
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
}

/// BOX,START,LENGTH,TEXT: the text in the place of a selection.
void Script::Enter(const QString& about, void (*enter)(QLineEdit& box, const QString& text))
{
    auto& box = Control<QLineEdit>(about.startsWith('t') ? "txtTitle" : "txtNewWords");
    box.setFocus();
    box.end(false);
    box.setSelection(about.section(',', 1, 1).toInt(), about.section(',', 2, 2).toInt());
    enter(box, about.section(',', 3));
}

/// As when the program was busy: they are all there before the first is taken, and reach the window that had the
/// focus then, also below a dialog.
void Script::PressWithoutWaiting(const QString& keys)
{
    auto& box = Control<QLineEdit>("txtNewWords");
    box.setFocus();
    box.end(false);
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

/// Past the end of the window and the title box.
void Script::TabRound()
{
    Activate(); // only the active window tells its controls of the focus
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
