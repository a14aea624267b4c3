#include "tests/support/window_script.h"

#include "app/controls/focus_ring.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QMetaEnum>
#include <QRegularExpression>

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

    /// What a person meets of a window's controls: name, text and tooltip, font where it is not the interface's,
    /// colours, what assistive technology says.
    static QStringList Controls(const QWidget& window)
    {
        QStringList controls{'"' + window.windowTitle() + "\" on " + window.palette().color(QPalette::Window).name() +
                             ", focus " + window.focusWidget()->objectName()};
        for (const QWidget* control :
             window.findChildren<QWidget*>(QRegularExpression("^(lbl|txt|cmd|lst|pct|.*Toolbar)"))) {
            if (control->isHidden())
                continue;
            QString line = control->objectName() + ' ' + control->property("text").toString();
            if (!control->toolTip().isEmpty())
                line += " (" + control->toolTip() + ')';
            if (const QFont font = control->font(); font != QApplication::font())
                line += ", " + font.family() + ' ' + QString::number(font.pointSizeF()) +
                        (font.bold() && font.italic() ? " bold italic" : "");
            if (const QColor color = control->palette().color(control->foregroundRole()); color != Qt::black)
                line += ", " + color.name();
            if (control->autoFillBackground())
                line += " on " + control->palette().color(control->backgroundRole()).name();
            auto* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
            line += QString(", ") + QMetaEnum::fromType<QAccessible::Role>().valueToKey(spoken->role());
            if (const QString name = spoken->text(QAccessible::Name); name != control->property("text").toString())
                line += " \"" + name + '"';
            for (int i = 0; spoken->role() == QAccessible::ToolBar && i < spoken->childCount(); ++i)
                line += " | " + spoken->child(i)->text(QAccessible::Name);
            controls += line;
        }
        return controls;
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

    void ShowsItsControls()
    {
        QStringList controls = Controls(*Window);
        const auto note = [&](QDialog& about) {
            controls += Controls(about);
            Find<QWidget>(about, "lblbytallowick").setFocus();
            controls += Find<QPushButton>(about, "cmdOK").isDefault() ? "OK is the default beside the link" : "";
            Find<QWidget>(about, "cmdOK").setFocus();
            QTest::keyClick(&Find<QPushButton>(about, "cmdOK"), Qt::Key_Return);
            controls += about.isVisible() ? "OK does not close" : "";
        };
        Answering.Expect(note);
        Run("menu:ha clicktitle title:Pets word:CAT word:Wild_Rose no create");
        Activate();
        controls += Controls(*ShownWindow("frmPuzzle"));
        controls.removeAll(QString());
        QCOMPARE(controls.join('\n'), Data("controls.txt"));
    }

    /// In pixels, 15 twips each: the places that are stated.
    void LaysOutThePuzzleWindow()
    {
        Run("file:full.pux menu:fo create");
        const QWidget& puzzle = *ShownWindow("frmPuzzle");
        for (const auto& [name, place] :
             std::initializer_list<std::pair<const char*, QRect>>{{"client", {0, 0, 860, 553}},
                                                                  {"PuzzleToolbar", {0, 0, 860, 24}},
                                                                  {"lblBigTitle", {8, 48, 289, 25}},
                                                                  {"pctPuzzle", {320, 16, 521, 521}},
                                                                  {"lblWords0", {8, 104, 0, 16}},
                                                                  {"lblWords19", {8, 408, 0, 16}},
                                                                  {"lblWords20", {168, 104, 0, 16}},
                                                                  {"lblWords39", {168, 408, 0, 16}}}) {
            const auto& control = Find<QWidget>(puzzle, name);
            QCOMPARE(QRect(control.pos(), QSize(place.width() > 0 ? control.width() : 0, control.height())), place);
        }
        QCOMPARE(Control<QWidget>("client").size(), QSize(686, 428));
        Answering.Expect(Dismiss());
        Find<QPushButton>(puzzle, "cmdPrint").click(); // hidden, but a button all the same
        QCOMPARE(Boxes(), "file PrinterDialog");
    }

    /// A second screen, of 600 by 400: there the main window scrolls, and there the puzzle window opens.
    void StaysOnItsScreen()
    {
        QScreen* small = nullptr;
        for (QScreen* screen : QGuiApplication::screens())
            small = screen->name() == "small" ? screen : small;
        QVERIFY(small != nullptr);
        const QSize whole = Window->size();
        Window->move(small->geometry().topLeft() + QPoint(10, 10));
        QTRY_VERIFY(Window->width() <= 600 && Window->height() <= 400);
        Run("word:CAT no create");
        QCOMPARE(ShownWindow("frmPuzzle")->screen(), small);
        Step("back");
        Window->move(10, 10);
        QTRY_COMPARE(Window->size(), whole);
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
        QCOMPARE(normal, QSize(860, 553));
        QVERIFY((puzzle.frameGeometry().center() - puzzle.screen()->availableGeometry().center()).manhattanLength() <=
                2);
        puzzle.resize(normal + QSize(50, 60));
        QTRY_COMPARE(puzzle.size(), normal);
        puzzle.setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(puzzle.width() > 1300);
        QTest::qWait(300); // it is not put back
        QCOMPARE(client.size(), normal);
        QVERIFY((client.mapTo(&puzzle, client.rect().center()) - puzzle.rect().center()).manhattanLength() <= 2);
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
