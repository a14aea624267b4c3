#pragma once

#include "app/frmMain.h"
#include "tests/support/puzzles.h"
#include "tools/driving.h"

#include <QTemporaryDir>
#include <QtTest>

#include <map>
#include <memory>

using namespace driving;

/// Works the main window through its controls, menus, boxes and dialogs. Most tests are tables of short
/// scripts: what the user does, and what is to be seen then.
class WindowScript : public QObject {
    Q_OBJECT

protected:
    template <class T>
    T& Control(const char* name)
    {
        return Find<T>(*Window, name);
    }

    void Click(const char* button) { QTest::mouseClick(&Control<QPushButton>(button), Qt::LeftButton); }

    void Start()
    {
        Window = std::make_unique<frmMain>(FixedRandom(1));
        Window->show();
        Activate();
    }

    void Activate()
    {
        Window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Window.get()));
    }

    /// From the list by the Tab key past the end of the window and the title box to the word box.
    void TabRound()
    {
        for (Control<QWidget>("lstWordlist").setFocus(Qt::TabFocusReason);
             Window->focusWidget() != &Control<QLineEdit>("txtNewWords");)
            QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
    }

    void Type(const char* box, const QString& text)
    {
        Control<QLineEdit>(box).setFocus();
        QTest::keyClick(&Control<QLineEdit>(box), Qt::Key_End);
        QTest::keyClicks(&Control<QLineEdit>(box), text);
    }

    void Pick(int position)
    {
        auto& list = Control<QListWidget>("lstWordlist");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(position)).center());
    }

    /// By the access keys: Alt and `menu`, then `item`.
    void ChooseFromMenu(char menu, char item)
    {
        Activate();
        QTest::keyClick(Window.get(), menu, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), item);
    }

    void WriteFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(Folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    /// One step of a script: a word, or a word, a colon and what it is about.
    void Step(const QString& step)
    {
        const QString about = step.section(':', 1).replace('_', ' ');
        const std::map<QString, std::function<void()>> steps{
            {"type", [&] { Type("txtNewWords", about); }},
            {"enter", [&] { QTest::keyClick(&Control<QLineEdit>("txtNewWords"), Qt::Key_Return); }},
            {"word", [&] { Step("type:" + about), Step("enter"); }},
            {"fill",
             [&] {
                 for (int i = 0; i < about.toInt(); ++i)
                     Step(QString("word:W%1").arg(QChar('a' + i % 26)) + QChar('a' + i / 26));
             }},
            {"wipe",
             [&] {
                 Control<QLineEdit>("txtNewWords").selectAll(),
                     QTest::keyClick(&Control<QLineEdit>("txtNewWords"), Qt::Key_Delete);
             }},
            {"pick", [&] { Pick(about.toInt()); }},
            {"edit", [&] { Click("cmdEditWord"); }},
            {"delete", [&] { Click("cmdDelete"); }},
            {"tool", [&] { ToolButton(*Window, "Toolbar1", about).click(); }},
            {"menu", [&] { ChooseFromMenu(about.at(0).toLatin1(), about.at(1).toLatin1()); }},
            {"title", [&] { Type("txtTitle", about); }},
            {"clicktitle", [&] { QTest::mouseClick(&Control<QLineEdit>("txtTitle"), Qt::LeftButton); }},
            {"leave", [&] { Control<QLineEdit>("txtNewWords").setFocus(); }},
            {"tabs", [&] { TabRound(); }},
            {"titleenter", [&] { QTest::keyClick(&Control<QLineEdit>("txtTitle"), Qt::Key_Enter); }},
            {"create", [&] { Click("cmdCreatePuzzle"); }},
            {"back", [&] { ToolButton(*ShownWindow("frmPuzzle"), "PuzzleToolbar", "Back").click(); }},
            {"closepuzzle", [&] { ShownWindow("frmPuzzle")->close(); }},
            {"closemain", [&] { Window->close(); }},
            {"yes", [&] { Answering->Expect(Press(QMessageBox::Yes)); }},
            {"no", [&] { Answering->Expect(Press(QMessageBox::No)); }},
            {"cancel", [&] { Answering->Expect(Press(QMessageBox::Cancel)); }},
            {"ok", [&] { Answering->Expect(Press(QMessageBox::Ok)); }},
            {"escape", [&] { Answering->Expect(Dismiss()); }},
            {"file", [&] { Answering->Expect(ChooseFile(Folder->filePath(about))); }},
        };
        steps.at(step.section(':', 0, 0))();
    }

    /// All that the window shows, in a line: caption, big title, words, then S, A, C, E and M for what is
    /// available: Save, Save As, Create Puzzle, the edit buttons, edit mode; the count, "!" when red; the
    /// text of the word box; last the files of the folder that scripts write to.
    QString State()
    {
        QStringList words;
        for (int i = 0; i < Control<QListWidget>("lstWordlist").count(); ++i)
            words += Control<QListWidget>("lstWordlist").item(i)->text();
        const auto flag = [](bool on, const char* name) { return on ? QString(name) : QString(); };
        if (words.size() > MostWords)
            words = {QString("%1 words").arg(words.size())};
        const bool edit = Control<QPushButton>("cmdEditWord").isVisibleTo(Window.get());
        const auto& count = Control<QLabel>("lblWordCount");
        QString state =
            QStringList{Window->windowTitle(), Control<QLabel>("lblBigTitle").text(), words.join(','),
                        flag(Control<QAction>("mnuSave").isEnabled(), "S") +
                            flag(Control<QAction>("mnuSaveAs").isEnabled(), "A") +
                            flag(Control<QPushButton>("cmdCreatePuzzle").isEnabled(), "C") + flag(edit, "E") +
                            flag(Control<QPushButton>("cmdEnter").text() == "Enter (EditMode)", "M"),
                        count.text() + flag(count.palette().color(QPalette::WindowText) == Qt::red, "!")}
                .join(" | ");
        if (!Control<QLineEdit>("txtNewWords").text().isEmpty())
            state += " | " + Control<QLineEdit>("txtNewWords").text();
        for (const QString& name : QDir(Folder->path()).entryList({"new*"})) {
            QFile file(Folder->filePath(name));
            state += file.open(QIODevice::ReadOnly)
                         ? " | " + name + "=" + QString(file.readAll()).remove('"').replace("\r\n", "/")
                         : "unreadable";
        }
        return state.replace("Glyphgrove", "G").replace("New Puzzle", "NP");
    }

    /// The boxes and dialogs that came since the last call, by short names; a text that differs stays as it
    /// is.
    QString Boxes()
    {
        static const std::map<QString, QString> names{
            {"Important: Do you want to save the changes you made to your Glyphgrove?", "save?"},
            {"Duplicate warning: Word already exists in your list! Do you want to put it into your list "
             "again?",
             "again?"},
            {"Word Limit!: 40 word limit reached!", "limit"},
            {"Important!: This is a Glyphgrove 2.1 file. For maximum performance, saving this file will "
             "update it "
             "to 2.1.1 format.",
             "older"},
            {"WARNING!: Not a valid Glyphgrove 2.2 File or file corrupted", "bad"},
            {"Glyphgrove: You must have at least one word to save the puzzle.", "nothing to save"},
            {"dlgFileName", "file"},
        };
        QStringList shown;
        for (const QString& text : Answering->Shown()) {
            const auto name = names.find(text);
            shown += name != names.end()                            ? name->second
                     : text.contains("already exists.")             ? "replace?"
                     : text.contains("no such folder")              ? "no folder"
                     : text.contains("cannot become a puzzle yet.") ? "obstacle"
                                                                    : text;
        }
        return shown.join(' ');
    }

    int MostWords = 5; ///< a state names; longer lists it counts
    std::unique_ptr<QTemporaryDir> Folder;
    std::unique_ptr<frmMain> Window;
    std::unique_ptr<Answers> Answering;

private slots:
    void initTestCase() { PrepareApplication(); }

    void init()
    {
        Folder = std::make_unique<QTemporaryDir>();
        WriteFile("good.pux", "\"2.2\"\r\n\"Pets\"\r\n\"DOG\"\r\n\"CAT\"\r\n");
        WriteFile("older.pux", "\"Glyphgrove2.1\"\r\n\"Old\"\r\n\"DOG\"\r\n");
        WriteFile("bad.pux", "\"Glyph\"\r\n\"T\"\r\n\"DOG\"\r\n");
        WriteFile("long.pux",
                  "\"2.2\"\r\n\"A title of over thirty characters\"\r\n\"AWORDOFOVERTWENTYLETTERS\"\r\n");
        WriteFile("many.pux", "\"2.2\"\r\n\"M\"\r\n" + QByteArray("W\r\n").repeated(41));
        Answering = std::make_unique<Answers>();
        Start();
    }

    void cleanup()
    {
        delete ShownWindow("frmPuzzle");
        Window.reset();
        QVERIFY2(Answering->Done(), "an expected dialog did not come");
        Answering.reset();
    }
};
