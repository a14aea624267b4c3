#include "tests/support/window_script.h"

#include <QClipboard>
#include <QFileDialog>
#include <QInputMethodEvent>

class MainWindowTest : public WindowScript {
    Q_OBJECT

private slots:
    void ShowsWhatEachCommandLeaves_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("boxes");
        const auto row = [](const char* script, const char* state, const char* boxes = "") {
            QTest::newRow(script) << QString(script) << QString(state) << QString(boxes);
        };
        row("leave", "G - NP | NP |  |  | 0");
        // Words.
        row("enter", "G - NP | NP |  |  | 0");
        row("word:dog word:Cat word:ICE_CREAM", "G - NP | NP | Cat,dog,ICE CREAM | AC | 3");
        row("word:CAT word:cat word:CAT_", "G - NP | NP | CAT,cat,CAT  | AC | 3");
        row("type:CAT titleenter", "G - NP | NP | CAT | AC | 1");
        row("word:CAT no word:CAT", "G - NP | NP | CAT | AC | 1", "again?");
        row("word:CAT yes word:CAT yes yes word:CAT", "G - NP | NP | CAT,CAT,CAT | AC | 3", "again? again? again?");
        row("fill:40 ok word:Z yes ok word:Waa", "G - NP | NP | 40 words | AC | 40!", "limit again? limit");
        row("fill:40 pick:0 delete", "G - NP | NP | 39 words | AC | 39");
        // Editing.
        row("word:CAT word:DOG pick:1", "G - NP | NP | CAT,DOG | ACE | 2 @1");
        row("word:CAT pick:0 type:X pick:0", "G - NP | NP | CAT | ACE | 1 @0");
        row("word:CAT word:DOG pick:1 edit pick:0 word:EEL", "G - NP | NP | CAT,EEL | AC | 2 @0");
        row("word:CAT pick:0 edit wipe enter", "G - NP | NP | CAT | AM | 1 @0");
        row("word:CAT word:DOG pick:0 edit wipe word:DOG", "G - NP | NP | DOG,DOG | AC | 2");
        row("word:CAT word:DOG pick:0 edit tool:Delete", "G - NP | NP | DOG | A | 1");
        row("word:CAT word:DOG pick:0 tool:Delete edit word:X", "G - NP | NP | CATX,DOG | AC | 2");
        row("word:CAT pick:0 edit no menu:fn word:X", "G-NP | NP | X | AC | 1", "save?");
        row("word:CAT pick:0 edit no file:good.pux menu:fo tabs word:X", "G-Pets | Pets | DOG,CAT,X | SAC | 3",
            "save? file");
        row("word:CAT pick:0 edit no menu:fn word:B word:A pick:0 edit no menu:fn file:good.pux menu:fo no word:CAT",
            "G-Pets | Pets | DOG,CAT | SAC | 2", "save? save? file again?");
        row("word:CAT pick:0 no file:full.pux menu:fo edit ok enter", "G-F | F | 40 words | SAC | 40!",
            "save? file limit");
        row("word:CAT word:DOG pick:0 tool:Delete edit wipe no word:DOG", "G - NP | NP | DOG | AC | 1", "again?");
        row("type:a_ home del enter no create back", "G - NP | NP |   | AC | 1", "save?");
        // The title.
        row("clicktitle title:A[*]B[*][*] leave word:X file:new.pux menu:fe",
            "G-A[*]B[*][*] | A[*]B[*][*] | X | AC | 1 | new.pux=2.2/A[*]B[*][*]/X/", "file");
        row("title:_s leave menu:fn", "G-NP | NP |  |  | 0");
        row("clicktitle title:Pets leave no menu:fn", "G-NP | NP |  |  | 0", "save?");
        row("clicktitle leave clicktitle", "G - NP |  |  |  | 0");
        row("clicktitle leave", "G - NP | NP |  |  | 0");
        row("clicktitle title:Pets clicktitle", "G - NP | Pets |  |  | 0");
        // Files.
        row("word:CAT cancel menu:fn", "G - NP | NP | CAT | AC | 1", "save?");
        row("word:CAT no tool:New", "G-NP | NP |  | C | 0", "save?");
        row("word:CAT file:new.pux tool:Save word:DOG", "G-NP | NP | CAT,DOG | SAC | 2 | new.pux=2.2/NP/CAT/",
            "file");
        row("word:CAT file:new.pux menu:fe word:DOG menu:fv",
            "G-NP | NP | CAT,DOG | SAC | 2 | new.pux=2.2/NP/CAT/DOG/", "file");
        row("word:CAT file:new.pux menu:fe word:DOG file:new.pux yes menu:fe",
            "G-NP | NP | CAT,DOG | SAC | 2 | new.pux=2.2/NP/CAT/DOG/", "file file replace?");
        row("word:CAT file:missing/new.pux ok menu:fe", "G - NP | NP | CAT | AC | 1", "file no folder");
        row("file:good.pux menu:fo", "G-Pets | Pets | DOG,CAT | SAC | 2", "file");
        row("file:good.pux tool:Open file:new.pux menu:fe word:EEL tool:Save",
            "G-Pets | Pets | DOG,CAT,EEL | SAC | 3 | new.pux=2.2/Pets/DOG/CAT/EEL/", "file file");
        row("file:good.pux menu:fo clicktitle cancel closemain", "G-Pets | Pets | DOG,CAT | SAC | 2", "file save?");
        row("file:older.pux ok menu:fo", "G-Old | Old | DOG | SAC | 1", "file older");
        row("file:bad.pux ok menu:fo word:DOG", "G-NP | NP | DOG | AC | 1", "file bad");
        row("file:new.pux menu:fo word:CAT tool:Save", "G-NP | NP | CAT | SAC | 1 | new.pux=2.2/NP/CAT/", "file");
        row("file:long.pux menu:fo pick:0 edit type:X enter file:new.pux menu:fe",
            "G-A title of over thirty characters | A title of over thirty characters | "
            "AWORDOFOVERTWENTYLETTERS | "
            "SAC | 1 | new.pux=2.2/A title of over thirty characters/AWORDOFOVERTWENTYLETTERS/",
            "file file");
        row("word:CAT yes escape menu:fn", "G-NP | NP |  | C | 0", "save? file");
        row("word:CAT no escape menu:fo closemain", "G - NP | NP | CAT | AC | 1", "save? file");
        row("word:CAT no menu:fq", "G - NP | NP | CAT | AC | 1", "save?");
        row("ok tool:Save", "G - NP | NP |  |  | 0", "nothing to save");
        row("word:CAT pick:0 delete escape tool:Save", "G - NP | NP |  | AC | 0", "file");
        row("type:CAT escape menu:ha", "G - NP | NP |  |  | 0", "frmAbout");
        // The puzzle.
        row("word:CAT cancel create back", "G - NP | NP | CAT | AC | 1", "save?");
        row("word:CAT yes file:new.pux create closepuzzle", "G-NP | NP | CAT | AC | 1 | new.pux=2.2/NP/CAT/",
            "save? file");
        row("file:many.pux menu:fo ok create", "G-M | M | 41 words | SAC | 41!", "file obstacle");
    }

    void ShowsWhatEachCommandLeaves()
    {
        QFETCH(QString, script);
        QFETCH(QString, state);
        QFETCH(QString, boxes);
        Run(script);
        QCOMPARE(State(), state);
        QCOMPARE(Boxes(), boxes);
        for (const char* name : {"mnuOpen", "mnuNewPuzzle", "mnuExit", "mnuAbout", "New", "Open", "Save", "Delete"})
            QVERIFY2(Control<QAction>(name).isEnabled(), name); // always
        QVERIFY(Control<QPushButton>("cmdEnter").isEnabled());
    }

    /// The dialogs open with the name that they remember.
    void ProposesNames()
    {
        QStringList proposed, filters;
        const auto note = [&](QDialog& dialog) {
            proposed += Find<QLineEdit>(dialog, "fileNameEdit").text();
            filters += qobject_cast<QFileDialog*>(&dialog)->nameFilters().join('|') + ' ' + dialog.windowTitle();
            dialog.reject();
        };
        const auto ask = [&](const char* steps) { Answering.Expect(note), Run(steps); };
        ask("menu:fo");
        Run("file:good.pux menu:fo");
        ask("menu:fo");
        ask("menu:fe");
        ask("menu:fo");
        Run("menu:fn");
        ask("menu:fo");
        QCOMPARE(proposed, QStringList({"", "good.pux", "Pets", "Pets", ""}));
        QCOMPARE(filters.at(0), "Glyphgrove Files (*.pux) Open");
        QCOMPARE(filters.at(2), "Glyphgrove Files (*.pux)|All File (*.*) Save As");
    }

    void ListsInFourColumnsOfTen()
    {
        Run("fill:40");
        auto& list = Control<WordList>("lstWordlist");
        for (int i = 0; i < 40; ++i)
            QCOMPARE(list.visualItemRect(list.item(i)), QRect(i / 10 * 158, i % 10 * 19, 158, 19));
        QCOMPARE(list.item(3)->toolTip(), "<span>" + list.item(3)->text() + "</span>");
    }

    /// The left button and the keyboard choose, an entry that is selected already too; other buttons do nothing.
    void ChoosesEntries()
    {
        Run("word:ant word:cat word:dog pick:0");
        auto& list = Control<WordList>("lstWordlist");
        int chosen = 0;
        connect(&list, &WordList::Chosen, &list, [&chosen] { ++chosen; });
        for (const auto button : {Qt::RightButton, Qt::MiddleButton})
            QTest::mouseClick(list.viewport(), button, {}, list.visualItemRect(list.item(1)).center());
        QCOMPARE(list.SelectedPosition(), 0);
        QCOMPARE(chosen, 0);
        const std::vector<std::array<int, 3>> keys{{Qt::Key_Space, 0, 1}, {Qt::Key_A, 0, 2},   {Qt::Key_Z, 0, 2},
                                                   {Qt::Key_Down, 1, 3},  {Qt::Key_End, 2, 4}, {Qt::Key_Home, 0, 5},
                                                   {Qt::Key_D, 2, 6}};
        for (const auto& [key, selected, total] : keys) {
            QTest::keyClick(&list, static_cast<Qt::Key>(key));
            QCOMPARE(list.SelectedPosition(), selected);
            QCOMPARE(chosen, total);
            QTest::qWait(QApplication::keyboardInputInterval() + 10); // a new search
        }
    }

    /// A click of any button counts in the title box, before it pastes.
    void TakesEveryClickInTheTitle()
    {
        auto& title = Control<QLineEdit>("txtTitle");
        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), title.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&title, &menu);
        QCOMPARE(title.text(), QString());
        delete QApplication::activePopupWidget();
        title.setText("Pets");
        QTest::mouseClick(&title, Qt::MiddleButton);
        Run("no menu:fn");
        QCOMPARE(Boxes(), "save?");
    }

    /// What is typed, composed, dropped or pasted into the boxes; what undo brings back.
    void FiltersWhatIsEntered()
    {
        auto& word = Control<QLineEdit>("txtNewWords");
        auto& title = Control<QLineEdit>("txtTitle");
        QTest::keyClicks(&word, " a1b-c' d");
        QCOMPARE(word.text(), "abc d");
        QInputMethodEvent composed;
        composed.setCommitString("\u00E9e\u0301\u4E2Df7");
        QApplication::sendEvent(&word, &composed);
        QCOMPARE(word.text(), "abc def");
        QApplication::clipboard()->setText(" 3 pigs, abcdefghijklmnopqrstuv");
        QTest::keyClick(&word, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(word.text(), "abc def");
        word.paste();
        QTRY_COMPARE(word.text(), "abc def  pigs abcdef");
        QTest::keyClicks(&word, "x");
        QCOMPARE(word.text(), "abc def  pigs abcdef");
        word.undo(); // the paste alone
        QCOMPARE(word.text(), "abc def");
        word.setSelection(4, 3);
        QTest::keyClicks(&word, "1-");
        QVERIFY(word.isRedoAvailable());
        QApplication::clipboard()->setText("123");
        word.paste();
        QCoreApplication::processEvents();
        QCOMPARE(word.text() + word.selectedText(), "abc defdef");
        title.setFocus();
        title.selectAll();
        QApplication::clipboard()->setText("Caf\u00E9 \u20AC\u4E2D \u201CA\u201D\nB, far longer than thirty");
        QTest::keyClick(&title, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(title.text(), "Caf\u00E9 \u20AC \u201CA\u201D B, far longer than ");
        title.setText("A title of over thirty characters"); // as a file brings it
        QTest::keyClick(&title, Qt::Key_Backspace);
        QTest::keyClicks(&title, "x");
        QCOMPARE(title.text(), "A title of over thirty character");
        title.undo();
        QCOMPARE(title.text(), "A title of over thirty characters");
        title.setText(QString(60'000, 'x'));
        QTest::keyClick(&title, Qt::Key_Backspace);
        QCOMPARE(title.text().size(), 59'999);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
