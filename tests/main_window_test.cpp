#include "tests/support/window_script.h"

#include "app/desktop/folders.h"

#include <QClipboard>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QMetaEnum>
#include <QPrintDialog>
#include <QRegularExpression>

using namespace driving;

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
        QString shown = "= " + State().Line();
        const QString focus = Window->focusWidget()->objectName();
        shown += Window->isVisible() && focus != "txtNewWords" ? ", focus " + focus : "";
        const QString boxes = Boxes();
        QCOMPARE(shown + (boxes.isEmpty() ? "" : " ? " + boxes), lines[1]);
    }

#ifdef Q_OS_UNIX
    /// A device is no file. Save still writes to the earlier one.
    void KeepsTheFileNameWhenSavingAsFails()
    {
        Run("word:CAT file:new.pux menu:fe word:DOG file:/dev/full yes menu:fe word:EEL menu:fv");
        QCOMPARE(Files("new*").value("new.pux"), "2.2/New Puzzle/CAT/DOG/EEL/");
    }

    /// The toolkit's dialog takes quotes for the limits of several names.
    void TakesQuotesForPartOfAName()
    {
        const QString name = "file:The_\"Big\"_Zoo ";
        Run("word:CAT " + name + "menu:fe word:DOG " + name + "no menu:fe");
        QCOMPARE(Files("*").value("The \"Big\" Zoo"), "2.2/New Puzzle/CAT/");
        Run(name + "yes menu:fe " + name + "menu:fo");
        QCOMPARE(State().Words.size(), 2);
        QCOMPARE(Boxes(), "file file replace? file replace? file");
    }
#endif

    /// The buttons of the boxes, with the default one last, and the types, folder and name that dialogs open with.
    void AsksForWhatItNeeds()
    {
        const auto keys = [](auto value) {
            return QMetaEnum::fromType<decltype(value)>().valueToKeys(static_cast<int>(value));
        };
        QStringList asked;
        const auto note = [&](QDialog& dialog) {
            if (const auto* box = qobject_cast<const QMessageBox*>(&dialog))
                asked += keys(box->standardButtons()) + ' ' + box->defaultButton()->text().remove('&') +
                         (box->icon() == QMessageBox::NoIcon ? "" : " with an icon");
            else if (const auto* files = qobject_cast<const QFileDialog*>(&dialog))
                asked += files->windowTitle() + ' ' + files->nameFilters().join('|') + ' ' +
                         (files->testOption(QFileDialog::HideNameFilterDetails) ? "" : "shown ") +
                         (files->directory() == Folder ? "beside it: " : "") +
                         (files->directory() == UsersDocuments() ? "documents: " : "") +
                         Find<QLineEdit>(dialog, "fileNameEdit").text();
            else if (const auto* print = qobject_cast<const QPrintDialog*>(&dialog))
                asked += keys(print->options()) + ' ' + Find<QLineEdit>(dialog, "filename").text().section('/', -1);
            dialog.reject();
        };
        for (const QString steps :
             {"?menu:fo", "?tool:Save", "file:good.pux menu:fo", "?menu:fo", "?menu:fe", "?menu:fo", "menu:fn",
              "?menu:fo", "clicktitle title:A/B word:CAT", "?word:CAT", "?menu:fn", "no create", "?print"}) {
            if (steps.startsWith('?'))
                Answering.Expect(note);
            Run(QString(steps).remove('?'));
        }
        const QString print = asked.takeLast(); // not every desktop has a dialog that prints to files
        QVERIFY(print == "PrintToFile|PrintShowPageSize A-B.pdf" ||
                print == "Print to PDF PDF Files (*.pdf) (*.pdf) documents: A-B.pdf");
        const QString open = "Open Glyphgrove Files (*.pux) (*.pux) ";
        const QString saveAs = "Save As Glyphgrove Files (*.pux) (*.pux)|All File (*.*) (*) beside it: Pets";
        QCOMPARE(asked,
                 QStringList({open + "documents: ", "Ok|FirstButton OK", open + "beside it: good.pux", saveAs,
                              open + "beside it: Pets", open + "beside it: ", "Yes|No Yes", "Yes|No|Cancel Yes"}));
    }

    void NamesWhatKeepsTheListFromAPuzzle()
    {
        auto& list = Control<WordList>("lstWordlist");
        const auto told = [&](int count, const QString& word) {
            for (list.clear(); count > 0; --count)
                list.Insert(0, word);
            Run("ok create");
            return Answering.Shown().value(0);
        };
        Control<QWidget>("cmdCreatePuzzle").setEnabled(true);
        const QString start = "Glyphgrove: This word list cannot become a puzzle yet.\n\n";
        QCOMPARE(told(41, "CAT"), start + "It holds 41 words, and a puzzle has room for 40. Please remove 1; these "
                                          "stand after the last that fits:\n\"CAT\"");
        QVERIFY(told(55, "CAT").endsWith(QString("\"CAT\", ").repeated(14) + "\"CAT\""));
        QVERIFY(told(56, "CAT").endsWith("\"CAT\" and 1 more"));
        const QString longest(40, 'B');
        QCOMPARE(told(1, longest), start + "Please shorten to 20 characters:\n\"" + longest + '"');
        QVERIFY(told(1, longest + 'B').endsWith(longest + "\u2026\""));
        QCOMPARE(told(2, "1\n"), start + "Please remove, or give a letter to hide:\n\"1 \", \"1 \"");
    }

    void ListsInFourColumnsOfTen()
    {
        Run("fill:40");
        auto& list = Control<WordList>("lstWordlist");
        const QSize cell = list.visualItemRect(list.item(0)).size();
        for (int i = 0; i < 40; ++i)
            QCOMPARE(list.visualItemRect(list.item(i)),
                     QRect(QPoint(i / 10 * cell.width(), i % 10 * cell.height()), cell));
        QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(39))));
        QCOMPARE(list.viewport()->pos(), QPoint(2, 2)); // inside the border
        QCOMPARE(list.item(3)->toolTip(), "<span>" + list.item(3)->text() + "</span>");
    }

    /// Only the left button chooses, with Ctrl too. The focus goes to the word box.
    void ChoosesWithTheLeftButton()
    {
        Run("word:ant word:cat pick:0 type:x");
        auto& list = Control<QListWidget>("lstWordlist");
        const QPoint cat = list.visualItemRect(list.item(1)).center();
        for (const auto& [button, after] : {std::pair(Qt::RightButton, "2 @0 >0 | x"), {Qt::LeftButton, "2 @1 >1"}}) {
            QTest::mouseClick(list.viewport(), button, Qt::ControlModifier, cat);
            QCOMPARE(State().Line(), QString("G - NP | NP | ant,cat | ACE | ") + after);
        }
        QCOMPARE(Activate()->objectName(), "txtNewWords");
    }

    /// A click of any button counts, before the middle button pastes or the right one opens a menu.
    void TakesEveryClickInTheTitle()
    {
        auto& title = Control<QLineEdit>("txtTitle");
        QTest::mousePress(&title, Qt::LeftButton);
        QTest::mouseRelease(&title, Qt::LeftButton, {}, QPoint(5, -5)); // outside: not a click
        QCOMPARE(title.text(), "New Puzzle");
        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), title.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&title, &menu);
        QCOMPARE(title.text(), QString());
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        delete QApplication::activePopupWidget();
        title.setText("Pets");
        QTest::mouseClick(&title, Qt::MiddleButton);
        Run("no menu:fn");
        QCOMPARE(Boxes(), "save?");
    }

    /// The word box takes no Ctrl+V.
    void PastesFromAMenu()
    {
        auto& word = Control<QLineEdit>("txtNewWords");
        QApplication::clipboard()->setText("cat\ndog");
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(5, 5), word.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&word, &menu);
        for (QAction* action : QApplication::activePopupWidget()->actions())
            if (action->text() == "&Paste")
                action->trigger();
        QApplication::activePopupWidget()->close();
        QCOMPARE(State().Line(), "G - NP | NP | cat | AC | 1 >0 | dog");
    }

    /// What the middle button pastes, where the desktop has that.
    void PastesTheSelection()
    {
        if (!QApplication::clipboard()->supportsSelection())
            QSKIP("this desktop pastes with the clipboard only");
        Run("type:ant middle:w,3,0,s\\ndog");
        QCOMPARE(State().Line(), "G - NP | NP | ants | AC | 1 >0 | dog");
    }

    /// Text that the user types, composes or pastes, and what undo restores. "replace:START,LENGTH,TEXT" composes in
    /// place of text before the cursor.
    void FiltersWhatIsEntered()
    {
        auto& word = Control<QLineEdit>("txtNewWords");
        const auto take = [&](const QString& step) {
            if (step == "undo")
                return word.undo();
            if (step == "redo")
                return word.redo();
            if (!step.startsWith("replace:"))
                return Step(step);
            const QStringList parts = step.section(':', 1).split(',');
            QInputMethodEvent composed;
            composed.setCommitString(parts[2], parts[0].toInt(), parts[1].toInt());
            QApplication::sendEvent(&word, &composed);
        };
        for (const auto& [steps, text] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"type:_a1b-c'_d", "abc d"},
                 {"compose:w,99,0,\u00E9e\u0301\u4E2Df7", "abc def"},
                 {"replace:-2,1,x1 key:Ctrl+V paste:w,99,0,_pig", "abc dxf pig"},
                 {"replace:-3,3,12 key:a", "abc dxf piga"}, // nothing to take: keeps what it would replace
                 {"type:bcdefghijk", "abc dxf pigabcdefghi"},
                 {"undo undo", "abc dxf"},
                 {"over:w,4,3,1- redo", "abc dxf pigabcdefghi"},
                 {"undo undo paste:w,4,3,123", "abc dxf"},
                 {"paste:w,0,99,_t", " t"}, // the space replaces text, so it may come first
                 {"wipe type:at paste:w,0,0,abcdefghijklmnopqrstuvwxyz", "abcdefghijklmnopqrat"},
                 {"wipe type:a_CAT home del undo redo paste:w,99,0,1x2", " CATx"}}) {
            for (const QString& step : QString(steps).split(' '))
                take(step);
            QCOMPARE(word.text(), text);
        }
        auto& title = Control<QLineEdit>("txtTitle");
        Run("paste:t,0,99,Caf\u00E9_\u20AC\u4E2D_\u201CA\u201D\nB,_far_longer_than_thirty");
        QCOMPARE(title.text(), "Caf\u00E9 \u20AC \u201CA\u201D B, far longer than ");
        title.setText(QString(60'000, 'x')); // a file can have a longer title
        QTest::keyClick(&title, Qt::Key_Backspace);
        QTest::keyClicks(&title, "y");
        QCOMPARE(title.text(), QString(59'999, 'x'));
        title.undo();
        QCOMPARE(title.text().size(), 60'000);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
