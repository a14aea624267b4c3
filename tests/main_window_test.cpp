#include "tests/support/window_script.h"

#include <QClipboard>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QPrintDialog>

class MainWindowTest : public WindowScript {
    Q_OBJECT

private slots:
    void ShowsWhatEachCommandLeaves_data()
    {
        QTest::addColumn<QStringList>("lines");
        for (const QString& block : QString(Data("scripts.txt")).split("\n\n")) {
            const QStringList lines = block.split('\n').filter(QRegularExpression("^[^#]"));
            QTest::newRow(qPrintable(lines[0])) << lines;
        }
    }

    void ShowsWhatEachCommandLeaves()
    {
        QFETCH(QStringList, lines);
        Run(lines[0]);
        QCOMPARE("= " + State().Line(), lines[1]);
        QCOMPARE("? " + Boxes(), lines.value(2, "? "));
    }

    /// What boxes offer, the usual answer last; the names with which dialogs open, and what one can choose there.
    void AsksForWhatItNeeds()
    {
        const auto keys = [](auto value) { return QMetaEnum::fromType<decltype(value)>().valueToKeys(value); };
        QStringList asked;
        const auto note = [&](QDialog& dialog) {
            if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
                asked += keys(box->standardButtons()) + ' ' + box->defaultButton()->text().remove('&');
            else if (const auto* files = qobject_cast<const QFileDialog*>(&dialog))
                asked += files->windowTitle() + ' ' + files->nameFilters().join('|') + ' ' +
                         (files->directory() == Folder ? "beside it: " : "") +
                         Find<QLineEdit>(dialog, "fileNameEdit").text();
            else if (const auto* print = qobject_cast<const QPrintDialog*>(&dialog))
                asked +=
                    keys(print->options()) + ' ' + QFileInfo(Find<QLineEdit>(dialog, "filename").text()).fileName();
            dialog.reject();
        };
        for (const QString steps :
             {"?menu:fo", "?tool:Save", "file:good.pux menu:fo", "?menu:fo", "?menu:fe", "?menu:fo", "menu:fn",
              "?menu:fo", "word:CAT", "?word:CAT", "?menu:fn", "no create", "?print"}) {
            if (steps.startsWith('?'))
                Answering.Expect(note);
            Run(QString(steps).remove('?'));
        }
        const QString print = asked.takeLast(); // a desktop may have no dialog that prints to files
        QVERIFY(print == "PrintToFile|PrintShowPageSize New Puzzle.pdf" ||
                print == "Save As PDF Files (*.pdf) New Puzzle.pdf");
        QCOMPARE(asked, QStringList({"Open Glyphgrove Files (*.pux) ", "Ok|FirstButton OK",
                                     "Open Glyphgrove Files (*.pux) beside it: good.pux",
                                     "Save As Glyphgrove Files (*.pux)|All File (*.*) beside it: Pets",
                                     "Open Glyphgrove Files (*.pux) beside it: Pets",
                                     "Open Glyphgrove Files (*.pux) ", "Yes|No Yes", "Yes|No|Cancel Yes"}));
    }

    void ListsInFourColumnsOfTen()
    {
        Run("fill:40");
        auto& list = Control<WordList>("lstWordlist");
        for (int i = 0; i < 40; ++i)
            QCOMPARE(list.visualItemRect(list.item(i)), QRect(i / 10 * 158, i % 10 * 19, 158, 19));
        QCOMPARE(list.viewport()->geometry(), QRect(2, 2, 634, 191));
        QCOMPARE(list.item(3)->toolTip(), "<span>" + list.item(3)->text() + "</span>");
    }

    /// The left button and the keyboard choose, an entry that is selected already too; other buttons do nothing.
    void ChoosesEntries()
    {
        Run("word:ant word:cat word:dog");
        auto& list = Control<WordList>("lstWordlist");
        int chosen = 0;
        connect(&list, &WordList::Chosen, &list, [&chosen] { ++chosen; });
        for (const auto& [key, row] :
             {std::pair(Qt::Key_Home, 0), {Qt::Key_End, 2}, {Qt::Key_Down, 1}, {Qt::Key_Up, 1}}) {
            list.setCurrentRow(row, QItemSelectionModel::Clear); // only looked at
            QTest::keyClick(&list, key);
            QCOMPARE(list.SelectedPosition(), row);
        }
        QCOMPARE(std::exchange(chosen, 0), 4);
        list.setCurrentRow(0, QItemSelectionModel::Clear);
        QApplication::setKeyboardInputInterval(10);
        const std::vector<std::pair<QKeyCombination, std::pair<int, int>>> keys{
            {Qt::Key_Space, {0, 1}}, {Qt::Key_A, {0, 2}},
            {Qt::Key_Z, {0, 2}},     {Qt::Key_Down, {1, 3}},
            {Qt::Key_End, {2, 4}},   {Qt::Key_Home, {0, 5}},
            {Qt::Key_D, {2, 6}},     {Qt::CTRL | Qt::Key_Up, {2, 6}}, // only looks around
            {Qt::Key_Space, {1, 7}},
        };
        for (const auto& [key, expected] : keys) {
            QTest::keyClick(&list, key.key(), key.keyboardModifiers());
            QCOMPARE(std::pair(list.SelectedPosition(), chosen), expected);
            QTest::qWait(20); // a new search
        }
        for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
            QCOMPARE(std::pair(list.SelectedPosition(), chosen), std::pair(1, 7));
            QTest::mouseClick(list.viewport(), button, Qt::ControlModifier,
                              list.visualItemRect(list.item(2)).center());
        }
        QCOMPARE(std::pair(list.SelectedPosition(), chosen), std::pair(2, 8));
    }

    /// A click of any button counts in the title box, before it pastes.
    void TakesEveryClickInTheTitle()
    {
        auto& title = Control<QLineEdit>("txtTitle");
        QTest::mousePress(&title, Qt::LeftButton);
        QTest::mouseRelease(&title, Qt::LeftButton, {}, QPoint(5, -5)); // beside it: no click
        QCOMPARE(title.text(), "New Puzzle");
        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), title.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&title, &menu);
        QCOMPARE(title.text(), QString());
        delete QApplication::activePopupWidget();
        auto& word = Control<QLineEdit>("txtNewWords");
        QApplication::sendEvent(&word, &menu); // where the keys of copying and pasting do nothing
        for (const QAction* action : QApplication::activePopupWidget()->actions())
            QVERIFY(!action->text().contains('\t') && action->text().isEmpty() == action->isSeparator());
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
