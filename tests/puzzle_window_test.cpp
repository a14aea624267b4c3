#include "tests/support/window_script.h"

#include "app/widgets/focus_ring.h"

#include <QAccessible>
#include <QBitmap>
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
        QCOMPARE(State().Line(), "G - NP | NP |  |  | 0");
    }

    /// Becoming active empties the word box; coming back from the task bar does not.
    void BecomesActiveOnlyWhenShown()
    {
        Step("type:CAT");
        Window->showMinimized();
        Window->showNormal();
        QCOMPARE(State().Line(), "G - NP | NP |  |  | 0 | CAT");
        Window->hide();
        Window->show();
        QCOMPARE(State().Line(), "G - NP | NP |  |  | 0");
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
        QCOMPARE(looks, Data("looks.txt").split('\n'));
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
        QCOMPARE(normal, QSize(796, 567)); // this screen is narrow: a bar, and room for the frame
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
        const auto width = [&label] { // of what is drawn
            return QRegion(QBitmap::fromImage(label.grab().toImage().createMaskFromColor(qRgb(255, 255, 192))))
                .boundingRect()
                .width();
        };
        title.setText("WW");
        const int two = width();
        title.setText(QString(30, 'W'));
        QVERIFY(width() > 8 * two && width() < 670 && label.toolTip().isEmpty());
        title.setText(QString(3000, 'W'));
        QVERIFY(width() < 670 && label.toolTip().contains(title.text()));
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
};

QTEST_MAIN(PuzzleWindowTest)
#include "puzzle_window_test.moc"
