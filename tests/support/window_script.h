#pragma once

#include "tests/support/puzzles.h"
#include "tools/script.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

#include <map>
#include <memory>

using namespace driving;

/// The base of the window tests: a fresh window and a folder of files for each, and what is to be seen of
/// them, as texts. Most tests are tables of scripts and of what they leave.
class WindowScript : public QObject, protected Script {
    Q_OBJECT

protected:
    void WriteFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(Folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    /// All that the window shows, in a line: caption, big title, words, then S, A, C, E and M for what is
    /// available: Save, Save As, Create Puzzle, the edit buttons, edit mode; the count, "!" when red, "@" and the
    /// position of the selected entry; the text of the word box; last the files of the folder that scripts write to.
    QString State()
    {
        QStringList words;
        for (int i = 0; i < Control<QListWidget>("lstWordlist").count(); ++i)
            words += Control<QListWidget>("lstWordlist").item(i)->text();
        const auto flag = [](bool on, const char* name) { return on ? QString(name) : QString(); };
        if (words.size() > MostWords)
            words = {QString("%1 words").arg(words.size())};
        const bool edit = Control<QPushButton>("cmdEditWord").isVisibleTo(Window.get());
        const auto& count = Control<QLabel>("lblWordCount");
        const int selected = Control<WordList>("lstWordlist").SelectedPosition();
        QString state =
            QStringList{Window->windowHandle()->title(), Control<QLabel>("lblBigTitle").text(), words.join(','),
                        flag(Control<QAction>("mnuSave").isEnabled(), "S") +
                            flag(Control<QAction>("mnuSaveAs").isEnabled(), "A") +
                            flag(Control<QPushButton>("cmdCreatePuzzle").isEnabled(), "C") + flag(edit, "E") +
                            flag(Control<QPushButton>("cmdEnter").text() == "Enter (EditMode)", "M"),
                        count.text() + flag(count.palette().color(QPalette::WindowText) == Qt::red, "!") +
                            flag(selected >= 0, qPrintable(" @" + QString::number(selected)))}
                .join(" | ");
        if (!Control<QLineEdit>("txtNewWords").text().isEmpty())
            state += " | " + Control<QLineEdit>("txtNewWords").text();
        for (const QString& name : Folder.entryList({"new*"})) {
            QFile file(Folder.filePath(name));
            state += file.open(QIODevice::ReadOnly)
                         ? " | " + name + "=" + QString(file.readAll()).remove('"').replace("\r\n", "/")
                         : "unreadable";
        }
        return state.replace("Glyphgrove", "G").replace("New Puzzle", "NP");
    }

    /// What is to be seen of a window's named controls: name, place and size in pixels, font where it is not the
    /// interface's, text colour, ground where it has one of its own, text, tip.
    static QStringList Looks(const QWidget& window)
    {
        QStringList looks;
        for (const QWidget* control : window.findChildren<QWidget*>()) {
            static const QRegularExpression ours("^(lbl|txt|cmd|lst|pct|.*Toolbar|client)");
            if (!ours.match(control->objectName()).hasMatch() || control->isHidden())
                continue;
            const QRect place(control->mapTo(control->window(), QPoint()), control->size());
            QString look = control->objectName() +
                           QString::asprintf(" %d,%d %dx%d", place.x(), place.y(), place.width(), place.height());
            if (const QFont font = control->font(); font != QApplication::font())
                look += ' ' + font.family() + ' ' + QString::number(font.pointSizeF()) +
                        (font.bold() && font.italic() ? " bold italic" : "");
            look += ' ' + control->palette().color(control->foregroundRole()).name();
            if (control->autoFillBackground())
                look += " on " + control->palette().color(control->backgroundRole()).name();
            for (const char* property : {"text", "toolTip"})
                if (const QString text = control->property(property).toString(); !text.isEmpty())
                    look += " \"" + text + '"';
            looks += look;
        }
        return looks;
    }

    /// The boxes and dialogs that came since the last call, by short names; a text that differs stays as it
    /// is.
    QString Boxes()
    {
        static const std::map<QString, QString> names{
            {"Important: Do you want to save the changes you made to your Glyphgrove?", "save?"},
            {"Duplicate warning: Word already exists in your list! Do you want to put it into your list "
             "again?",
             "again?"},
            {"Word Limit!: 40 word limit reached!", "limit"},
            {"Important!: This is a Glyphgrove 2.1 file. For maximum performance, saving this file will "
             "update it "
             "to 2.1.1 format.",
             "older"},
            {"WARNING!: Not a valid Glyphgrove 2.2 File or file corrupted", "bad"},
            {"Glyphgrove: You must have at least one word to save the puzzle.", "nothing to save"},
            {"dlgFileName", "file"},
        };
        QStringList shown;
        for (const QString& text : Answering.Shown()) {
            const auto name = names.find(text);
            shown += name != names.end()                            ? name->second
                     : text.contains("already exists.")             ? "replace?"
                     : text.contains("no such folder")              ? "no folder"
                     : text.contains("cannot become a puzzle yet.") ? "obstacle"
                                                                    : text;
        }
        return shown.join(' ');
    }

    int MostWords = 5; ///< a state names; longer lists it counts
    std::unique_ptr<QTemporaryDir> Disk;

private slots:
    void initTestCase() { PrepareApplication(); }

    void init()
    {
        Disk = std::make_unique<QTemporaryDir>();
        Folder = QDir(Disk->path());
        WriteFile("good.pux", "\"2.2\"\r\n\"Pets\"\r\n\"DOG\"\r\n\"CAT\"\r\n");
        WriteFile("older.pux", "\"Glyphgrove2.1\"\r\n\"Old\"\r\n\"DOG\"\r\n");
        WriteFile("bad.pux", "\"Glyph\"\r\n\"T\"\r\n\"DOG\"\r\n");
        WriteFile("long.pux", "\"2.2\"\r\n\"A title of over thirty characters\"\r\n\"AWORDOFOVERTWENTYLETTERS\"\r\n");
        WriteFile("many.pux", "\"2.2\"\r\n\"M\"\r\n" + QByteArray("W\r\n").repeated(41));
        WriteFile("full.pux", "\"2.2\"\r\n\"F\"\r\n" + QByteArray("W\r\n").repeated(40));
        Answering.Shown();
        Start(FixedRandom(1));
    }

    void cleanup()
    {
        Window.reset();
        QVERIFY2(Answering.Done(), "an expected dialog did not come");
    }
};
