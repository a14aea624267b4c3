#include "tests/support/window_script.h"

#include "app/controls/focus_ring.h"

#include <QDesktopServices>

class PuzzleWindowTest : public WindowScript {
    Q_OBJECT

public slots:
    void TakeAddress(const QUrl& address) { Addresses += address.toString(); }

private:
    /// The part of a control that is drawn upon in a dark colour.
    static QRect Ink(QWidget& control)
    {
        const QImage picture = control.grab().toImage();
        QRect ink;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (qGray(picture.pixel(x, y)) < 100)
                    ink |= QRect(x, y, 1, 1);
        return ink;
    }

    QStringList Addresses;

private slots:
    void ShowsThePuzzle()
    {
        Run("word:Oak word:Wild_Rose no create");
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        SolvedPuzzle solved{{}, {"Oak", "Wild Rose"}};
        for (QString row : Find<PuzzleSurface>(puzzle, "pctPuzzle").Rows())
            solved.rows.push_back(row.remove(' ').toStdString());
        QCOMPARE(solved.rows.size(), 10U);
        QCOMPARE(FaultOf(solved), std::string());
        // The letters are ink on the surface where they should be, and stay after it was covered.
        auto& surface = Find<QWidget>(puzzle, "pctPuzzle");
        const QImage picture = surface.grab().toImage();
        const QRect ink = Ink(surface); // to the pixel that fonts are drawn otherwise elsewhere
        QVERIFY(QRect(41, 43, 383, 384).contains(ink) && ink.contains(QRect(43, 45, 379, 380)));
        puzzle.showMinimized();
        puzzle.showNormal();
        QCOMPARE(surface.grab().toImage(), picture);
    }

    /// The maker's link goes to the desktop; whether anybody answers changes nothing.
    void OpensTheMakersPage()
    {
        auto& link = Control<QLabel>("lblTallowick");
        QDesktopServices::setUrlHandler("https", this, "TakeAddress");
        QTest::mouseClick(&link, Qt::LeftButton);
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Space);
        auto* spoken = QAccessible::queryAccessibleInterface(&link)->actionInterface();
        spoken->doAction(spoken->actionNames().first());
        QDesktopServices::unsetUrlHandler("https");
        QCOMPARE(Addresses, QStringList(QList<QString>(3, "https://www.tallowick.example/")));
    }

    void LooksAsItShould()
    {
        QStringList looks = Looks(*Window);
        Answering.Expect([&looks](QDialog& about) {
            looks += Looks(about);
            Find<QPushButton>(about, "cmdOK").click();
            if (about.isVisible())
                about.reject(), looks.clear(); // the button closes it
        });
        Run("menu:ha clicktitle title:Pets word:CAT word:Wild_Rose no create");
        Activate();
        looks += Looks(*ShownWindow("frmPuzzle"));
        QStringList expected = QString(Data("looks.txt")).split('\n');
#ifdef Q_OS_WIN // where hinting changes the widths of texts, and of labels with them
        for (QStringList* list : {&looks, &expected})
            list->replaceInStrings(QRegularExpression("^(lbl\\S+) \\S+ \\S+"), "\\1");
#endif
        QCOMPARE(looks, expected);
        const QPoint middle = Window->screen()->availableGeometry().center();
        QVERIFY((ShownWindow("frmPuzzle")->frameGeometry().center() - middle).manhattanLength() <= 2);
    }

    /// In a larger font everything has the room that it has at the usual size, and stays where it is.
    void GrowsWithTheInterfacesFont()
    {
        QApplication::setFont(QFont("Liberation Sans", 14));
        Start();
        const double scale = Control<QWidget>("client").height() / 428.0;
        QVERIFY(scale > 1.4 && scale < 1.6);
        QCOMPARE(Control<QWidget>("cmdEnter").height(), qRound(26 * scale));
        for (const QAbstractButton* button : Window->findChildren<QAbstractButton*>())
            QVERIFY(button->sizeHint().width() <= button->width());
    }

    /// The window manager may give a window what it likes: its client area stays, centred, and its border is fixed.
    void KeepsItsClientArea()
    {
        Run("word:CAT no create");
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        auto& client = Find<QWidget>(puzzle, "client");
        const QSize normal = puzzle.size();
        QCOMPARE(normal, QSize(796, 567)); // this screen is narrow: a bar, and room for the frame
        puzzle.resize(normal + QSize(50, 60));
        QTRY_COMPARE(puzzle.size(), normal);
        puzzle.setWindowState(Qt::WindowMaximized);
        QTest::qWait(50);
        QVERIFY(puzzle.height() > normal.height());
        QCOMPARE(QRect(client.mapTo(&puzzle, QPoint()), client.size()), QRect(0, 115, 860, 553));
        puzzle.setWindowState(Qt::WindowNoState);
        QTRY_COMPARE(puzzle.size(), normal);
        QCOMPARE(Window->minimumSize(), Window->maximumSize());
    }

    /// Titles that are too wide are drawn smaller, those that are too long for that end in dots.
    void ShowsLongTitles()
    {
        auto& title = Control<QLineEdit>("txtTitle");
        auto& label = Control<QLabel>("lblBigTitle");
        title.setText("WW");
        const int two = Ink(label).width();
        title.setText(QString(30, 'W'));
        QVERIFY(Ink(label).width() > 8 * two && Ink(label).width() < 670 && label.toolTip().isEmpty());
        Run("word:CAT no create");
        QCOMPARE(Find<QWidget>(*ShownWindow("frmPuzzle"), "lblBigTitle").height(), 50); // two lines
        title.setText(QString(3000, 'W'));
        QVERIFY(Ink(label).width() > 600 && Ink(label).width() < 670 && label.toolTip().contains(title.text()));
    }

    /// Around what Space or Return press, above it.
    void RingsTheFocus()
    {
        QVERIFY(Find<FocusRing>(frmMain(), "").isHidden() && frmMain().size() == QSize(686, 447));
        for (const char* name : {"cmdEnter", "txtNewWords", "lblTallowick"}) {
            auto& control = Control<QWidget>(name);
            control.setFocus();
            const QPoint corner = control.mapTo(Window.get(), QPoint());
            const QImage picture = Window->grab(QRect(corner, control.size())).toImage();
            QCOMPARE(Window->childAt(corner), &control); // what the mouse meets there
            QVERIFY(picture.pixelColor(5, 2) != QColor(0, 60, 140));
            for (const QPoint& edge : {QPoint(0, 5), QPoint(5, 1), QPoint(5, control.height() - 1)})
                QCOMPARE(picture.pixelColor(edge) == QColor(0, 60, 140), QString(name) != "txtNewWords");
        }
        Run("word:CAT no create");
        Activate();
        QVERIFY(Find<FocusRing>(*ShownWindow("frmPuzzle"), "").isVisible());
        Control<QWidget>("lstWordlist").setFocus(); // as hiding passes it on
        Step("back");
        QCOMPARE(Activate()->objectName(), "cmdCreatePuzzle");
    }

    /// Of what can be seen; the grid is a list of rows of letters.
    void SpeaksToAssistiveTechnology()
    {
        Run("word:CAT pick:0 no create");
        auto* client = QAccessible::queryAccessibleInterface(&Find<QWidget>(*ShownWindow("frmPuzzle"), "client"));
        QCOMPARE(client->childCount(), 4); // toolbar, title, grid and the only word
        for (int i = 0; i < 4; ++i)
            QCOMPARE(client->indexOfChild(client->child(i)), i);
        auto& surface = Find<PuzzleSurface>(*ShownWindow("frmPuzzle"), "pctPuzzle");
        auto* grid = QAccessible::queryAccessibleInterface(&surface);
        QCOMPARE(grid->childCount(), 10);
        for (int row = 0; row < 10; ++row) {
            QCOMPARE(grid->child(row)->text(QAccessible::Name), surface.Rows().at(row));
            QCOMPARE(grid->indexOfChild(grid->child(row)), row);
            QVERIFY(grid->rect().contains(grid->child(row)->rect()) && grid->child(row)->state().readOnly);
        }
        QCOMPARE(grid->child(0)->rect(), QRect(grid->rect().topLeft() + QPoint(0, 42), QSize(521, 42)));
        QVERIFY(grid->child(10) == nullptr);
    }
};

QTEST_MAIN(PuzzleWindowTest)
#include "puzzle_window_test.moc"
