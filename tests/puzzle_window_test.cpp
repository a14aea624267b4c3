#include "tests/support/window_script.h"

#include "app/widgets/focus_ring.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QScrollBar>

class PuzzleWindowTest : public WindowScript {
    Q_OBJECT

public slots:
    void TakeAddress(const QUrl& address) { Addresses += address.toString(); }

private:
    QStringList Addresses;

private slots:
    void ShowsThePuzzle()
    {
        Run("word:Oak word:Wild_Rose no create");
        QVERIFY(!Window->isVisible());
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        QCOMPARE(puzzle.windowTitle(), "Glyphgrove-New Puzzle");
        QCOMPARE(Find<QLabel>(puzzle, "lblBigTitle").text(), "New Puzzle");
        QCOMPARE(Find<QLabel>(puzzle, "lblWords0").text(), "Oak");
        QCOMPARE(Find<QLabel>(puzzle, "lblWords1").text(), "Wild Rose");
        for (int i = 2; i < 40; ++i)
            QCOMPARE(Find<QLabel>(puzzle, QString("lblWords%1").arg(i)).text(), QString());
        SolvedPuzzle solved{{}, {"Oak", "Wild Rose"}};
        for (QString row : Find<PuzzleSurface>(puzzle, "pctPuzzle").Rows())
            solved.rows.push_back(row.remove(' ').toStdString());
        QCOMPARE(solved.rows.size(), 10U);
        QCOMPARE(FaultOf(solved), std::string());
        // The letters are ink on the surface where they should be, and stay after it was covered.
        const QImage picture = Find<QWidget>(puzzle, "pctPuzzle").grab().toImage();
        const QImage first = picture.copy(41, 43, 9, 11); // (625.2, 625) twips: 41.7 and 41.7 pixels
        const auto inked = [](const QImage& image) {
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (qGray(image.pixel(x, y)) < 100)
                        return true;
            return false;
        };
        QVERIFY(inked(picture.copy(416, 417, 9, 11)) && !inked(picture.copy(403, 417, 12, 11))); // the last one
        QVERIFY(inked(first) && !inked(picture.copy(0, 0, 40, 521)) && !inked(picture.copy(430, 0, 91, 521)));
        puzzle.showMinimized();
        puzzle.showNormal();
        QCOMPARE(Find<QWidget>(puzzle, "pctPuzzle").grab().toImage(), picture);
        Step("back");
        QVERIFY(Window->isVisible() && ShownWindow("frmPuzzle") == nullptr);
    }

    void PrintsAgainAfterCancelAndFailure()
    {
        Run("word:CAT no create");
        const QString page = Folder.filePath("page.pdf");
        for (const char* answer : {"escape", "pdf:missing/page.pdf", "pdf:page.pdf", "pdf:page.pdf"}) {
            QFile::remove(page);
            Step(answer), Step("print");
            QVERIFY(ShownWindow("frmPuzzle") != nullptr);
        }
        QVERIFY(QFile(page).size() > 1000);
    }

    /// The maker's link goes to the desktop; whether anybody answers changes nothing.
    void OpensTheMakersPage()
    {
        auto& link = Control<QLabel>("lblTallowick");
        QDesktopServices::setUrlHandler("https", this, "TakeAddress");
        QTest::mouseClick(&link, Qt::LeftButton);
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Space);
        QDesktopServices::unsetUrlHandler("https");
        QCOMPARE(Addresses, QStringList(QList<QString>(2, "https://www.tallowick.example/")));
        QCOMPARE(State(), "G - NP | NP |  |  | 0");
    }

    /// Becoming active empties the word box; coming back from the task bar does not.
    void BecomesActiveOnlyWhenShown()
    {
        Step("type:CAT");
        Window->showMinimized();
        Window->showNormal();
        QCOMPARE(State(), "G - NP | NP |  |  | 0 | CAT");
        Window->hide();
        Window->show();
        QCOMPARE(State(), "G - NP | NP |  |  | 0");
    }

    void LooksAsItShould()
    {
        QStringList looks = Looks(*Window);
        Answering.Expect([&looks](QDialog& about) {
            looks += about.windowTitle() + QString(" %1x%2").arg(about.width()).arg(about.height());
            looks += Looks(about);
            about.reject();
        });
        Run("menu:ha word:CAT word:Wild_Rose no create");
        looks += Looks(*ShownWindow("frmPuzzle"));
        const QString expected = QString(R"(
client 0,19 686x428 #000000 on #ffffc0
Toolbar1 0,19 686x24 #000000
lblBigTitle 8,47 670x49 Times New Roman 26.25 bold italic #000000 "New Puzzle"
txtTitle 72,103 264x26 #000000 "New Puzzle"
lblTitle 24,103 48x26 #000000 "Title:"
txtNewWords 72,137 264x26 #000000
lblWord 24,137 48x26 #000000 "Word:"
cmdEnter 346,137 130x26 #000000 "Enter"
cmdCreatePuzzle 512,103 150x60 #808080 "Create Puzzle"
lstWordlist 24,208 638x195 #000000 on #ffffff
lblMyWordlist 240,178 206x26 Times New Roman 14.25 bold italic #000000 "My Word List"
lblWordCount 616,412 46x26 Times New Roman 14.25 bold italic #000000 "0"
lblWordCountLabel 460,412 150x26 Times New Roman 14.25 bold italic #000000 "Word Count:"
lblTallowick 24,416 54x15 Times New Roman 9.75 bold italic #800000 on #ffffff "Tallowick" "Click to go to the Tallowick website."
lblTM 78,416 14x15 Courier New 8.25 bold italic #800000 on #ffffff "TM"
About Glyphgrove 383x147
lblbytallowick 10,6 78x22 Times New Roman 14.25 bold italic #800000 on #ffffff "Tallowick"
lblTM 88,6 20x22 Times New Roman 9.75 bold italic #800000 on #ffffff "TM"
lblDescription 10,33 363x67 #000000 "Glyphgrove is a glyphgrove creator program, with a 40 word per puzzle capability, automatic puzzle sizing from 10 X 10 to 30 X 30, automatic aphabetizing and word list save and edit features."
lblVersion 10,104 363x17 #000000 "Version 2.2"
lblNotice 10,122 363x17 #000000 "Glyphgrove is made by Tallowick."
cmdOK 293,111 80x26 #000000 "OK"
client 0,0 860x553 #000000 on #ffffc0
pctPuzzle 320,16 521x521 Courier New 8.25 #000000
lblBigTitle 8,48 289x25 Times New Roman 15.75 bold italic #000000 "New Puzzle"
lblWords0 8,104 20x16 Courier New 8.25 #000000 "CAT"
lblWords1 8,120 60x16 Courier New 8.25 #000000 "Wild Rose"
PuzzleToolbar 0,0 860x24 #000000)")
                                     .trimmed();
        QCOMPARE(looks.join('\n'), expected);
        QCOMPARE(ToolButton(*Window, "Toolbar1", "Save").geometry(), QRect(50, 0, 24, 23));
        QCOMPARE(ToolButton(*Window, "Toolbar1", "Save").toolTip(), "Save Puzzle (Ctrl+S)");
    }

    /// The window manager may give a window what it likes: its client area stays, centred, and its border is fixed.
    void KeepsItsClientArea()
    {
        Run("word:CAT no create");
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        auto& client = Find<QWidget>(puzzle, "client");
        const QSize normal = puzzle.size();
        QVERIFY(normal.width() < 860); // this screen is narrow
        QVERIFY(Find<QScrollBar>(puzzle, "").parentWidget() != nullptr);
        puzzle.resize(normal + QSize(50, 60));
        QTRY_COMPARE(puzzle.size(), normal);
        puzzle.setWindowState(Qt::WindowMaximized);
        QTest::qWait(50);
        QVERIFY(puzzle.height() > normal.height());
        QCOMPARE(QRect(client.mapTo(&puzzle, QPoint()), client.size()), QRect(0, 0, 860, 553));
        puzzle.setWindowState(Qt::WindowNoState);
        QTRY_COMPARE(puzzle.size(), normal);
        QCOMPARE(Window->minimumSize(), Window->maximumSize());
    }

    /// Titles that are too wide are drawn smaller, those that are too long for that end in dots.
    void ShowsLongTitles()
    {
        auto& title = Control<QLineEdit>("txtTitle");
        auto& label = Control<QLabel>("lblBigTitle");
        const auto inkedColumns = [&label] {
            const QImage image = label.grab().toImage();
            int columns = 0;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    if (qGray(image.pixel(x, y)) < 100) {
                        ++columns;
                        break;
                    }
            return columns;
        };
        title.setText("WW");
        const int two = inkedColumns();
        title.setText(QString(30, 'W'));
        QVERIFY(inkedColumns() > 8 * two && inkedColumns() < 670 && label.toolTip().isEmpty());
        title.setText(QString(3000, 'W'));
        inkedColumns();
        QVERIFY(label.toolTip().contains(title.text()));
    }

    /// Keys of the window's, from wherever the focus is.
    void TakesTheUsualKeys()
    {
        auto& word = Control<QLineEdit>("txtNewWords");
        const auto press = [this](QWidget* on, QKeySequence keys) {
            Activate();
            QTest::keySequence(on, keys);
            QCoreApplication::processEvents();
        };
        Step("word:CAT");
        for (const QKeySequence& keys : {QKeySequence("Ctrl+O"), QKeySequence("Ctrl+N"), QKeySequence("Ctrl+Q")}) {
            Step("cancel");
            press(&word, keys);
        }
        QCOMPARE(Boxes(), "save? save? save?");
        for (const QKeySequence& keys : {QKeySequence("Ctrl+S"), QKeySequence("Ctrl+Shift+S"), QKeySequence("F1")}) {
            Step("escape");
            press(&word, keys);
        }
        QCOMPARE(Boxes(), "file file frmAbout");
        Step("no");
        Control<QPushButton>("cmdCreatePuzzle").setFocus();
        press(Window->focusWidget(), QKeySequence("Return"));
        QWidget* puzzle = ShownWindow("frmPuzzle");
        for (const char* keys : {"Ctrl+P", "Return", "Escape"}) {
            puzzle->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(puzzle) && Find<FocusRing>(*puzzle, "").isVisible());
            if (keys != QLatin1String("Escape"))
                Step("escape");
            QTest::keySequence(puzzle->focusWidget(), QKeySequence(keys));
            QCoreApplication::processEvents();
        }
        QCOMPARE(Boxes(), "save? PrinterDialog PrinterDialog");
        Activate();
        QCOMPARE(Window->focusWidget(), &Control<QPushButton>("cmdCreatePuzzle"));
        const auto& ring = Find<FocusRing>(*Window, "");
        QCOMPARE(ring.geometry(), Control<QPushButton>("cmdCreatePuzzle").geometry());
        word.setFocus();
        QVERIFY(ring.isHidden());
        Control<QLabel>("lblTallowick").setFocus();
        QVERIFY(ring.isVisible());
    }

    /// Every control that can be seen has a role and a name; the grid is a list of rows of letters.
    void SpeaksToAssistiveTechnology()
    {
        Run("word:CAT pick:0 no create");
        auto* client = QAccessible::queryAccessibleInterface(&Find<QWidget>(*ShownWindow("frmPuzzle"), "client"));
        QCOMPARE(client->childCount(), 4); // toolbar, title, grid and the only word
        for (int i = 0; i < 4; ++i)
            QCOMPARE(client->indexOfChild(client->child(i)), i);
        Window->show();
        for (const QWidget* window : {static_cast<QWidget*>(Window.get()), ShownWindow("frmPuzzle")})
            for (QWidget* control : window->findChildren<QWidget*>(QRegularExpression("^(lbl|txt|cmd|lst|pct)")))
                if (auto* spoken = QAccessible::queryAccessibleInterface(control); control->isVisible()) {
                    const bool blank =
                        control->objectName().startsWith("lblWords") && spoken->text(QAccessible::Name).isEmpty();
                    QVERIFY2(blank || !spoken->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
                    QVERIFY(spoken->role() != QAccessible::NoRole && spoken->role() != QAccessible::Client);
                    qInfo("%s: %s \"%s\"", qPrintable(control->objectName()),
                          qPrintable(qAccessibleRoleString(spoken->role())),
                          qPrintable(spoken->text(QAccessible::Name)));
                }
        auto& surface = Find<PuzzleSurface>(*ShownWindow("frmPuzzle"), "pctPuzzle");
        auto* grid = QAccessible::queryAccessibleInterface(&surface);
        QCOMPARE(grid->childCount(), 10);
        for (int row = 0; row < 10; ++row) {
            QCOMPARE(grid->child(row)->text(QAccessible::Name), surface.Rows().at(row));
            QCOMPARE(grid->indexOfChild(grid->child(row)), row);
            QVERIFY(grid->rect().contains(grid->child(row)->rect()));
        }
        QVERIFY(grid->child(10) == nullptr);
    }

    /// The desktop's session ends while a box or a dialog is open, with nothing or something unsaved.
    void SurvivesTheEndOfTheSession_data()
    {
        QTest::addColumn<QString>("script"); // "end" is the answer to the dialog that comes then
        QTest::addColumn<QString>("boxes");
        QTest::addColumn<bool>("ended");
        const auto row = [](const char* script, const char* boxes, bool ended) {
            QTest::newRow(script) << script << boxes << ended;
        };
        row("word:CAT no create end print", "save? PrinterDialog", true);
        row("word:CAT no create pdf:page.pdf print pdf:page.pdf end print",
            "save? PrinterDialog PrinterDialog replace?", true);
        row("word:CAT cancel create end cancel print", "save? PrinterDialog save?", false);
        row("word:CAT cancel create end no print", "save? PrinterDialog save?", true);
        row("word:CAT end no create", "save? save?", true);
        row("word:CAT end cancel create back", "save? save?", false);
        row("word:CAT end no menu:fe", "file save?", true);
        row("word:CAT end no word:CAT", "again? save?", true);
        row("end menu:ha", "frmAbout", true);
    }

    void SurvivesTheEndOfTheSession()
    {
        QFETCH(QString, script);
        QFETCH(QString, boxes);
        QFETCH(bool, ended);
        QApplication::setQuitOnLastWindowClosed(false);
        for (const QString& step : script.split(' '))
            if (step == "end")
                Answering.Expect([](QDialog& /*dialog*/) { QApplication::closeAllWindows(); });
            else
                Step(step);
        QCOMPARE(Boxes(), boxes);
        QVERIFY(Window->isVisible() == !ended && ShownWindow("frmPuzzle") == nullptr);
    }
};

QTEST_MAIN(PuzzleWindowTest)
#include "puzzle_window_test.moc"
