#include "tests/support/window_script.h"

class PuzzleWindowTest : public WindowScript {
    Q_OBJECT

private slots:
    void ShowsThePuzzle()
    {
        for (const char* word : {"word:Oak", "word:Wild_Rose", "no", "create"})
            Step(word);
        QVERIFY(!Window->isVisible());
        QWidget& puzzle = *ShownWindow("frmPuzzle");
        QCOMPARE(puzzle.windowTitle(), "Glyphgrove-New Puzzle");
        QCOMPARE(Find<QLabel>(puzzle, "lblBigTitle").text(), "New Puzzle");
        QCOMPARE(Find<QLabel>(puzzle, "lblWords0").text(), "Oak");
        QCOMPARE(Find<QLabel>(puzzle, "lblWords1").text(), "Wild Rose");
        for (int i = 2; i < 40; ++i)
            QCOMPARE(Find<QLabel>(puzzle, QString("lblWords%1").arg(i)).text(), QString());
        auto rows = Find<PuzzleSurface>(puzzle, "pctPuzzle").Rows().remove(' ').split('\n');
        SolvedPuzzle solved{{}, {"Oak", "Wild Rose"}};
        for (const QString& row : rows)
            solved.rows.push_back(row.toStdString());
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
        QVERIFY(inked(first) && !inked(picture.copy(0, 0, 40, 521)) && !inked(picture.copy(430, 0, 91, 521)));
        puzzle.showMinimized();
        puzzle.showNormal();
        QCOMPARE(Find<QWidget>(puzzle, "pctPuzzle").grab().toImage(), picture);
        Step("back");
        QVERIFY(Window->isVisible() && ShownWindow("frmPuzzle") == nullptr);
        Answering->Shown();
    }

    void AsksWhenTheSessionEnds()
    {
        Step("word:CAT"), Step("no"), Step("create"), Step("clicktitle");
        Step("cancel");
        QVERIFY(
            !Window->EndSession()); // the puzzle window has closed, the main window stays with its document
        QVERIFY(Window->isVisible() && ShownWindow("frmPuzzle") == nullptr);
        Step("no");
        QVERIFY(Window->EndSession());
        QCOMPARE(Boxes(), "save? save? save?");
    }
};

QTEST_MAIN(PuzzleWindowTest)
#include "puzzle_window_test.moc"
