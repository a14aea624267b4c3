#include "tests/support/window_script.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QMetaEnum>
#include <QPrintDialog>
#include <QRegularExpression>

class MainWindowTest : public WindowScript {
    Q_OBJECT

private slots:
    void ShowsWhatEachCommandLeaves_data()
    {
        QTest::addColumn<QStringList>("lines");
        for (const QString& block : Data("scripts.txt").split("\n\n")) {
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

    /// A name that no disk takes: the save fails, and Save still writes to the file before.
    void KeepsTheFileNameWhenSavingAsFails()
    {
        Run("word:CAT file:new.pux menu:fe word:DOG file:" + QString(300, 'x') + " menu:fe");
        Run("word:EEL menu:fv");
        QCOMPARE(Files("new*").value("new.pux"), "2.2/New Puzzle/CAT/DOG/EEL/");
    }

    /// What boxes offer, the usual answer last; the names with which dialogs open, and what one can choose there.
    void AsksForWhatItNeeds()
    {
        const auto keys = [](auto value) {
            return QMetaEnum::fromType<decltype(value)>().valueToKeys(static_cast<int>(value));
        };
        QStringList asked;
        const auto note = [&](QDialog& dialog) {
            if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
                asked += keys(box->standardButtons()) + ' ' + box->defaultButton()->text().remove('&');
            else if (const auto* files = qobject_cast<const QFileDialog*>(&dialog)) {
                QStringList kinds;
                const auto& shown = Find<QComboBox>(dialog, "fileTypeCombo");
                for (int i = 0; i < shown.count(); ++i)
                    kinds += shown.itemText(i);
                asked += files->windowTitle() + ' ' + kinds.join('|') + ' ' +
                         (files->directory() == Folder ? "beside it: " : "") +
                         Find<QLineEdit>(dialog, "fileNameEdit").text();
            } else if (const auto* print = qobject_cast<const QPrintDialog*>(&dialog))
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

    /// A click chooses and a key, without Ctrl, too: the entry where it ends, be it the selected one. Steps from ant:
    /// the selected entry, the one looked at, the number of choices, after each key or click.
    void ChoosesEntries()
    {
        Run("word:ant word:cat word:dog");
        auto& list = Control<WordList>("lstWordlist");
        int chosen = 0;
        connect(&list, &WordList::Chosen, &list, [&chosen] { ++chosen; });
        const auto state = [&] {
            return QString::asprintf("%d %d %d", list.SelectedPosition(), list.currentRow(), chosen);
        };
        list.setCurrentRow(0, QItemSelectionModel::Clear);
        using Row = std::pair<QKeyCombination, QString>;
        for (const auto& [key, after] : {
                 Row{Qt::CTRL | Qt::Key_Down, "-1 1 0"},
                 {Qt::CTRL | Qt::Key_End, "-1 2 0"},
                 {Qt::Key_End, "2 2 1"},
                 {Qt::CTRL | Qt::Key_Up, "2 1 1"},
                 {Qt::Key_Down, "2 2 2"},
                 {Qt::Key_Home, "0 0 3"},
                 {Qt::Key_Up, "0 0 4"},
                 {Qt::Key_D, "2 2 5"},
                 {Qt::Key_D, "2 2 6"},
                 {Qt::Key_Z, "2 2 6"},
                 {Qt::CTRL | Qt::Key_Home, "2 0 6"},
                 {Qt::Key_Space, "0 0 7"},
                 {Qt::CTRL | Qt::Key_Down, "0 1 7"},
                 {Qt::CTRL | Qt::Key_Space, "1 1 8"},
             }) {
            QTest::keyClick(&list, key.key(), key.keyboardModifiers());
            QCOMPARE(state(), after);
        }
        const QPoint last = list.visualItemRect(list.item(2)).center();
        for (const auto& [button, after] : {std::pair(Qt::RightButton, "1 1 8"), {Qt::LeftButton, "2 2 9"}}) {
            QTest::mouseClick(list.viewport(), button, Qt::ControlModifier, last);
            QCOMPARE(state(), after);
        }
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, last); // the second of two clicks
        QCOMPARE(state(), "2 2 10");
        QCOMPARE(Activate()->objectName(), "txtNewWords");
        Run("delete"); // the next entry, or the last, is looked at
        QCOMPARE(state(), "-1 1 10");
        list.setCurrentRow(0);
        Step("edit");
        list.setCurrentRow(1);
        Run("wipe word:owl"); // confirming an edit leaves another entry selected
        QCOMPARE(state(), "1 1 12");
        Run("word:_x"); // a space is no letter to look for
        QCOMPARE(list.item(0)->text(), "owl");
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

    /// What is typed, composed or pasted into the boxes; what undo brings back.
    void FiltersWhatIsEntered()
    {
        auto& word = Control<QLineEdit>("txtNewWords");
        auto& title = Control<QLineEdit>("txtTitle");
        const auto paste = [](QLineEdit& box, const QString& text) {
            QApplication::clipboard()->setText(text);
            box.paste();
            return box.text();
        };
        QTest::keyClicks(&word, " a1b-c' d");
        QCOMPARE(word.text(), "abc d");
        QInputMethodEvent composed;
        composed.setCommitString("\u00E9e\u0301\u4E2Df7");
        QApplication::sendEvent(&word, &composed);
        QCOMPARE(word.text(), "abc def");
        composed.setCommitString("x1", -2, 1); // in the place of a letter
        QApplication::sendEvent(&word, &composed);
        QCOMPARE(word.text(), "abc dxf");
        QTest::keyClick(&word, Qt::Key_V, Qt::ControlModifier); // no character for a word
        word.end(false);
        QCOMPARE(paste(word, " pig"), "abc dxf pig");
        word.undo(); // the paste alone
        QCOMPARE(word.text(), "abc dxf");
        word.setSelection(4, 3);
        QTest::keyClicks(&word, "1-");
        QVERIFY(word.isRedoAvailable());
        QCOMPARE(paste(word, "123") + word.selectedText(), "abc dxfdxf");
        word.setText("cat");
        word.selectAll();
        QCOMPARE(paste(word, " t"), " t"); // the box is not empty when the space comes
        word.setText("at");
        word.home(false);
        QCOMPARE(paste(word, "abcdefghijklmnopqrstuvwxyz"), "abcdefghijklmnopqrat");
        word.clear();
        QTest::keyClicks(&word, "a CAT");
        word.home(false);
        QTest::keyClick(&word, Qt::Key_Delete);
        word.undo();
        word.redo();
        word.end(false);
        QCOMPARE(paste(word, "1x2"), " CATx");
        QTest::keyClick(&title, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(paste(title, "Caf\u00E9 \u20AC\u4E2D \u201CA\u201D\nB, far longer than thirty"),
                 "Caf\u00E9 \u20AC \u201CA\u201D B, far longer than ");
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
