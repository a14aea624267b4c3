#include "tests/support/pdf.h"
#include "tests/support/window_script.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QMetaEnum>
#include <QScrollBar>

using namespace driving;

class PuzzleWindowTest : public WindowScript {
    Q_OBJECT

public slots:
    void TakeAddress(const QUrl& address) { Addresses += address.toString() + ' '; }

private:
    /// The rows of the grid, as screen readers get them.
    static QStringList Grid()
    {
        QStringList rows;
        for (const QWidget* row : Find<QWidget>(*ShownWindow("frmPuzzle"), "pctPuzzle").findChildren<QWidget*>())
            rows += row->accessibleName();
        return rows;
    }

    static QAccessibleInterface* Spoken(const QWidget& control)
    {
        return QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control));
    }

    /// The part of a control that has dark pixels.
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

    /// Each visible control, in the order of the data's legend.
    static QStringList Controls(const QWidget& window)
    {
        QStringList controls{window.objectName() + " \"" + window.windowTitle() + "\" on " +
                             window.palette().color(QPalette::Window).name() + ", focus " +
                             window.focusWidget()->objectName()};
        for (const QWidget* control :
             window.findChildren<QWidget*>(QRegularExpression("^(lbl|txt|cmd|lst|pct|.*Toolbar)"))) {
            if (control->isHidden())
                continue;
            QString line = control->objectName() + ": " + control->property("text").toString();
            line += control->toolTip().isEmpty() ? "" : " (" + control->toolTip() + ')';
            if (const QFont font = control->font(); font != QApplication::font())
                line += ", " + font.family() + ' ' + QString::number(font.pointSizeF()) +
                        (font.bold() && font.italic() ? " bold italic" : "");
            if (const QColor color = control->palette().color(control->foregroundRole()); color != Qt::black)
                line += ", " + color.name();
            if (control->autoFillBackground())
                line += " on " + control->palette().color(control->backgroundRole()).name();
            line += control->palette().color(QPalette::Window) == QColor(176, 176, 140) ? ", outlined" : "";
            auto* spoken = Spoken(*control);
            line += QString(", ") + QMetaEnum::fromType<QAccessible::Role>().valueToKey(spoken->role());
            if (const QString name = spoken->text(QAccessible::Name); name != control->property("text").toString())
                line += " \"" + name + '"';
            for (int i = 0; spoken->role() == QAccessible::ToolBar && i < spoken->childCount(); ++i) {
                const auto* button = qobject_cast<QToolButton*>(spoken->child(i)->object());
                const QString name = spoken->child(i)->text(QAccessible::Name);
                line += (button->icon().isNull() ? " | no icon " : " | ") + name +
                        (button->toolTip() == name ? "" : " (" + button->toolTip() + ')');
            }
            controls += line;
        }
        return controls;
    }

    QString Addresses;

private slots:
    void ShowsThePuzzle()
    {
        Run("word:Oak word:Wild_Rose no create");
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        SolvedPuzzle solved{{}, {"OAK", "WILD ROSE"}};
        for (QString row : Grid())
            solved.rows.push_back(row.remove(' ').toStdString());
        QCOMPARE(FaultOf(solved), std::string());
        const QRect ink = Ink(Find<QWidget>(puzzle, "pctPuzzle")); // platforms draw fonts a pixel differently
        QVERIFY(QRect(41, 43, 383, 384).contains(ink) && ink.contains(QRect(43, 45, 379, 380)));
    }

    void OpensTheMakersPage()
    {
        auto& link = Control<QLabel>("lblTallowick");
        QDesktopServices::setUrlHandler("https", this, "TakeAddress");
        QTest::mouseClick(&link, Qt::LeftButton);
        link.setFocus();
        QTest::keyClick(&link, Qt::Key_Space);
        auto* spoken = Spoken(link)->actionInterface();
        spoken->doAction(spoken->actionNames().first());
        QDesktopServices::unsetUrlHandler("https");
        QCOMPARE(Addresses, QString("https://www.tallowick.example/ ").repeated(3));
    }

    void ShowsItsControls()
    {
        QStringList controls = Controls(*Window);
        const auto note = [&](QDialog& about) {
            controls += Controls(about);
            Find<QWidget>(about, "lblbytallowick").setFocus();
            auto& ok = Find<QPushButton>(about, "cmdOK");
            controls += ok.isDefault() ? "OK is the default beside the link" : "";
            ok.setFocus();
            QTest::keyClick(&ok, Qt::Key_Return);
            controls += about.isVisible() ? "OK does not close" : "";
        };
        Answering.Expect(note);
        Run("menu:ha clicktitle title:Pets word:CAT word:Wild_Rose no create");
        Activate();
        controls += Controls(*ShownWindow("frmPuzzle"));
        controls.removeAll(QString());
        QCOMPARE(controls, Data("controls.txt").split('\n').mid(2)); // below the legend
    }

    void PrintsThePuzzle()
    {
        Run("word:CAT word:DOG no create pdf:new.pdf print");
        QStringList printed;
        for (const Pdf::Word& word : Pdf(QFileInfo(Folder, "new.pdf")).words)
            printed += word.text;
        QCOMPARE(printed.join(' '), "New Puzzle CAT DOG " + Grid().join(' ').simplified());
    }

    /// Places in pixels. A pixel is 15 twips.
    void LaysOutThePuzzleWindow()
    {
        Run("file:full.pux menu:fo create");
        const QWidget& puzzle = *ShownWindow("frmPuzzle");
        for (const auto& [name, place] :
             {std::pair("pctPuzzle", QRect(320, 16, 521, 521)), {"lblBigTitle", {8, 48, 289, 25}}})
            QCOMPARE(Find<QWidget>(puzzle, name).geometry(), place);
        for (const auto& [name, corner] : {std::pair("lblWords19", QPoint(8, 408)), {"lblWords20", {168, 104}}})
            QCOMPARE(Find<QWidget>(puzzle, name).pos(), corner);
        QCOMPARE(Control<QWidget>("client").size(), QSize(686, 428));
        Answering.Expect(Dismiss());
        Find<QPushButton>(puzzle, "cmdPrint").click(); // hidden, but it works
        QCOMPARE(Boxes(), "file PrinterDialog");
    }

    /// The main window scrolls on a screen of 600 by 400, and the puzzle window opens on the same screen.
    void StaysOnItsScreen()
    {
        QList<QScreen*> screens = QGuiApplication::screens();
        QScreen* small = *std::ranges::find_if(screens, [](auto* screen) { return screen->name() == "small"; });
        const QSize whole = Window->size();
        Window->move(small->geometry().topLeft() + QPoint(10, 10));
        QTRY_VERIFY(Window->width() <= 600 && Window->height() <= 400);
        Run("word:CAT no create");
        QCOMPARE(ShownWindow("frmPuzzle")->screen(), small);
        Step("back");
        Window->move(10, 10);
        QTRY_COMPARE(Window->size(), whole);
    }

    /// A command over the bus while a dialog is open does nothing, nor does a key that repeats, nor a second request
    /// to close a window. While the user is asked whether to save, the end of the session does not ask again.
    void TakesOneThingAfterTheOther()
    {
        Answering.Expect([this](QDialog& about) { Control<QAction>("mnuOpen").trigger(), about.reject(); });
        Answering.Expect([this](QDialog& box) {
            for (const char* button : {"cmdCreatePuzzle", "cmdEnter"})
                Control<QPushButton>(button).click();
            Control<QListWidget>("lstWordlist").item(0)->setSelected(true);
            Window->Form_QueryUnload();
            box.reject();
        });
        Run("menu:ha word:CAT type:DOG menu:fn");
        QCOMPARE(State().Line(), "G - NP | NP | CAT | AC | 1 @0 >0 | DOG");
        Run("no create");
        QCOMPARE(Boxes(), "frmAbout save? save?");
        QWidget* puzzle = ShownWindow("frmPuzzle");
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(Activate(), &held);
        QCOMPARE(Boxes(), "");
        puzzle->close();
        QCloseEvent again;
        QApplication::sendEvent(puzzle, &again);
        QVERIFY(Window->isVisible());
    }

    /// The answers to a desktop's session that may ask the user, or not.
    void AnswersTheSession()
    {
        struct Session {
            enum Hint { RestartNever } hint;
            bool mayAsk;
            QString told;
            void setRestartHint(Hint given) { hint = given; }
            bool allowsInteraction() const { return mayAsk; }
            void cancel() { told += "cancel "; }
            void release() { told += "release"; }
        };
        for (const auto& [given, mayAsk, told] : {std::tuple("no clicktitle", true, "release save?"),
                                                  {"cancel clicktitle", true, "cancel release save?"},
                                                  {"clicktitle", false, " "}}) {
            Session session{{}, mayAsk, {}};
            Run(given);
            AnswerSession(session, [this] { return Window->Form_QueryUnload(); });
            QCOMPARE(session.told + ' ' + Boxes(), told);
        }
    }

    /// The window is larger with a larger font, so that all texts fit, and shows all of itself: some styles leave
    /// room below the menu bar.
    void GrowsWithTheInterfacesFont()
    {
        QApplication::setFont(QFont("Liberation Sans", 14));
        for (const char* style : {"Windows", "Fusion"}) {
            QApplication::setStyle(style);
            Start();
            QCOMPARE(Control<QWidget>("client").visibleRegion().boundingRect(), Control<QWidget>("client").rect());
        }
        QVERIFY(Control<QWidget>("client").height() > 428);
        Control<QPushButton>("cmdEnter").setText("Enter (EditMode)");
        Run("word:CAT pick:0");
        QCoreApplication::processEvents(); // layouts that wait
        for (const QWidget* control : Window->findChildren<QWidget*>(QRegularExpression("^(lbl|txt|cmd|lst)")))
            QVERIFY2(control->size() == control->size().expandedTo(control->minimumSizeHint()),
                     qPrintable(control->objectName()));
    }

    /// Whatever size the window manager gives the window, it keeps it; the client area keeps its own, in the middle
    /// or with scroll bars that the arrow keys move.
    void KeepsItsClientArea()
    {
        Run("word:CAT no create");
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        auto& client = Find<QWidget>(puzzle, "client");
        const QPoint centre = puzzle.screen()->availableGeometry().center();
        QVERIFY((puzzle.frameGeometry().center() - centre).manhattanLength() <= 20); // an unknown frame is around it
        for (const QSize& size : {QSize(860, 553), {910, 613}, {680, 740}, {1360, 360}, {400, 300}}) {
            puzzle.resize(size);
            QTest::qWait(250);
            QCOMPARE(puzzle.size(), size);
            QCOMPARE(client.size(), QSize(860, 553));
            const auto* area = puzzle.findChild<QAbstractScrollArea*>();
            const QRect view = area->viewport()->geometry();
            const QPoint middle = client.mapTo(&puzzle, client.rect().center()) - view.center();
            for (const auto& [bar, off, scrolls, key] :
                 {std::tuple(area->horizontalScrollBar(), middle.x(), view.width() < 860, Qt::Key_Right),
                  {area->verticalScrollBar(), middle.y(), view.height() < 553, Qt::Key_Down}}) {
                QVERIFY(bar->isVisible() == scrolls && (scrolls || std::abs(off) <= 1));
                const int before = bar->value();
                QTest::keyClick(&puzzle, key);
                QCOMPARE(bar->value() > before, scrolls);
            }
        }
        puzzle.setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(puzzle.width() > 1300);
        QCOMPARE(client.size(), QSize(860, 553));
        puzzle.setWindowState(Qt::WindowNoState);
        QTRY_COMPARE(puzzle.size(), QSize(400, 300));
        QCOMPARE(Window->minimumSize(), Window->maximumSize());
    }

    /// The window draws wide titles in a smaller font, and ends those that still do not fit in dots.
    void ShowsLongTitles()
    {
        auto& label = Control<QLabel>("lblBigTitle");
        Run("over:t,0,99,WW");
        const int two = Ink(label).width();
        Run("over:t,0,99," + QString(30, 'W'));
        QVERIFY(Ink(label).width() > 8 * two && Ink(label).width() < 670 && label.toolTip().isEmpty());
        Run("word:CAT no create");
        auto& twoLines = Find<QLabel>(*ShownWindow("frmPuzzle"), "lblBigTitle");
        QCOMPARE(twoLines.height(), 50);
        for (auto* centred : {&label, &twoLines}) {
            centred->setText("H");
            QVERIFY(std::abs(Ink(*centred).center().x() - centred->rect().center().x()) <= 3);
        }
        QImage pictures[2];
        for (const char* text : {"GEOGRAPHY OF SOUTH AMERICA", "GEOGRAPHY OF SOUTH\nAMERICA"}) {
            twoLines.setText(text);
            std::swap(pictures[0], pictures[1] = twoLines.grab().toImage());
        }
        QCOMPARE(pictures[0], pictures[1]); // lines break between words
        const QString title(3000, 'W');
        Control<QLineEdit>("txtTitle").setText(title);
        QVERIFY(Ink(label).width() > 600 && Ink(label).width() < 670);
        QLabel tip(label.toolTip());
        tip.setWordWrap(true); // as tooltips do with rich text
        QVERIFY(tip.text().count('W') == 600 && tip.sizeHint().width() < 1000 && tip.sizeHint().height() < 600);
    }

    /// Draws a ring around a control that Space or Return presses. The mouse still reaches the control.
    void RingsTheFocus()
    {
        const QColor ring(0, 60, 140);
        for (const char* name : {"cmdEnter", "txtNewWords", "lblTallowick"}) {
            auto& control = Control<QWidget>(name);
            control.setFocus();
            const QPoint corner = control.mapTo(Window.get(), QPoint());
            const QImage picture = Window->grab(QRect(corner, control.size())).toImage();
            QCOMPARE(Window->childAt(corner), &control);
            QVERIFY(picture.pixelColor(5, 2) != ring);
            for (const QPoint& edge : {QPoint(0, 5), QPoint(5, 1), QPoint(5, control.height() - 1)})
                QCOMPARE(picture.pixelColor(edge) == ring, QString(name) != "txtNewWords");
        }
    }

    /// A screen reader gets the visible controls only. The grid is a list with one entry for each row.
    void SpeaksToAssistiveTechnology()
    {
        Run("word:CAT look:Ctrl+Home leave");
        auto* word = Spoken(Control<QWidget>("lstWordlist"))->child(0);
        QVERIFY(word->text(QAccessible::Name) == "CAT" && !word->state().focused);
        Run("look:Ctrl+Home");
        QVERIFY(word->state().focused);
        Run("no create");
        const QWidget& puzzle = *ShownWindow("frmPuzzle");
        auto* client = Spoken(Find<QWidget>(puzzle, "client"));
        QCOMPARE(client->childCount(), 4); // toolbar, title, grid and one word
        QCOMPARE(client->indexOfChild(client->child(3)), 3);
        auto* grid = Spoken(Find<QWidget>(puzzle, "pctPuzzle"));
        QVERIFY(grid->childCount() == 10 && grid->child(9)->role() == QAccessible::ListItem);
        QCOMPARE(grid->child(9)->text(QAccessible::Name), Grid().at(9));
        QCOMPARE(grid->child(1)->rect(), QRect(grid->rect().topLeft() + QPoint(0, 83), QSize(521, 42)));
        Activate();
        Control<QWidget>("lstWordlist").setFocus(); // hiding a window moves the focus
        Step("back");
        QCOMPARE(Activate()->objectName(), "cmdCreatePuzzle");
    }
};

QTEST_MAIN(PuzzleWindowTest)
#include "puzzle_window_test.moc"
