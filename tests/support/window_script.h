#pragma once

#include "driving/script.h"
#include "tests/support/puzzles.h"

#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

#include <memory>

/// The contents of a file in tests/data.
inline QString Data(const QString& name)
{
    QFile file(QFINDTESTDATA("../data/" + name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(name));
    return QString(file.readAll()).trimmed();
}

/// The state of the program that a user can see.
struct Seen {
    QString Caption, Title;
    QStringList Words = {};
    int Selected = -1, LookedAt = -1;
    QString Word = {};
    bool Save = false, SaveAs = false, Create = false, EditButtons = false, EditMode = false;
    QString Count = "0";               ///< with "!" when it is red
    QMap<QString, QString> Files = {}; ///< the files that scripts write, with "/" for line ends and no quotes
    QString Shown = "frmMain";         ///< the visible windows

    bool operator==(const Seen& other) const = default;

    /// One line, as tests/data/scripts.txt explains.
    QString Line() const
    {
        QStringList line{Caption, Title, Words.size() <= 5 ? Words.join(',') : QString("%1 words").arg(Words.size())};
        line += QString(Save ? "S" : "") + (SaveAs ? "A" : "") + (Create ? "C" : "") + (EditButtons ? "E" : "") +
                (EditMode ? "M" : "");
        line += Count + (Selected < 0 ? "" : " @" + QString::number(Selected)) +
                (LookedAt < 0 ? "" : " >" + QString::number(LookedAt));
        if (!Word.isEmpty())
            line += Word;
        for (auto file = Files.begin(); file != Files.end(); ++file)
            line += file.key() + '=' + file.value();
        if (Shown != "frmMain")
            line += Shown.isEmpty() ? "closed" : Shown;
        return line.join(" | ").replace("Glyphgrove", "G").replace("New Puzzle", "NP");
    }
};

/// The base of the window tests. Each test gets a new window and a folder of files.
class WindowScript : public QObject, protected driving::Script {
    Q_OBJECT

protected:
    /// The files in the folder, in the form that Seen uses.
    QMap<QString, QString> Files(const QString& names) const
    {
        QMap<QString, QString> files;
        for (const QString& name : Folder.entryList({names})) {
            QFile file(Folder.filePath(name));
            const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
            files[name] = bytes.size() > 1000 ? "long" : QString(bytes).remove('"').replace("\r\n", "/");
        }
        return files;
    }

    Seen State()
    {
        Seen seen{Window->windowHandle()->title(), Control<QLabel>("lblBigTitle").text()};
        const auto& list = Control<WordList>("lstWordlist");
        for (const auto& word : list.Words())
            seen.Words += QString::fromStdU16String(word);
        seen.Selected = list.SelectedPosition();
        seen.LookedAt = list.CurrentPosition();
        seen.Word = Control<QLineEdit>("txtNewWords").text();
        seen.Save = Control<QAction>("mnuSave").isEnabled();
        seen.SaveAs = Control<QAction>("mnuSaveAs").isEnabled();
        seen.Create = Control<QPushButton>("cmdCreatePuzzle").isEnabled();
        seen.EditButtons = Control<QPushButton>("cmdEditWord").isVisibleTo(Window.get());
        seen.EditMode = Control<QPushButton>("cmdEnter").text() == "Enter (EditMode)";
        const auto& count = Control<QLabel>("lblWordCount");
        seen.Count = count.text() + (count.palette().color(QPalette::WindowText) == Qt::red ? "!" : "");
        seen.Files = Files("new*");
        seen.Shown = Window->isVisible() ? "frmMain" : "";
        seen.Shown += driving::ShownWindow("frmPuzzle") != nullptr ? "frmPuzzle" : "";
        return seen;
    }

    /// The boxes and dialogs since the last call, by short names. A box with another text keeps its text.
    QString Boxes()
    {
        static const QList<std::pair<QString, QString>> names{
            {"save?", "Important: Do you want to save the changes you made to your Glyphgrove?"},
            {"again?", "Duplicate warning: Word already exists in your list! Do you want to put it into your list "
                       "again?"},
            {"limit", "Word Limit!: 40 word limit reached!"},
            {"older",
             "Important!: This is a Glyphgrove 2.1 file. For maximum performance, saving this file will update "
             "it to 2.1.1 format."},
            {"bad", "WARNING!: Not a valid Glyphgrove 2.2 File or file corrupted"},
            {"nothing to save", "Glyphgrove: You must have at least one word to save the puzzle."},
            {"file", "dlgFileName"},
            {"replace?", "*already exists."},
            {"no folder", "*no such folder"},
            {"no folder", "*is not writable."},
            {"obstacle", "*cannot become a puzzle yet."}};
        QStringList shown = Answering.Shown();
        for (QString& text : shown)
            for (const auto& [name, stated] : names)
                if (text == stated || (stated.startsWith('*') && text.contains(stated.mid(1))))
                    text = name;
        return shown.join(' ');
    }

    std::unique_ptr<QTemporaryDir> Disk;

private slots:
    void initTestCase()
    {
        driving::PrepareDriving();
        QApplication::setStyle("Fusion"); // the same layout on every desktop
        QFont::insertSubstitution("Times New Roman", "Liberation Serif");
        QFont::insertSubstitution("Courier New", "Liberation Mono");
        QApplication::setQuitOnLastWindowClosed(false); // another window follows
    }

    void init()
    {
        Disk = std::make_unique<QTemporaryDir>();
        Folder = QDir(Disk->path());
        Folder.mkdir("home");
        qputenv("HOME", Folder.filePath("home").toLocal8Bit());
        const QString many = QString("/WORD").repeated(40);
        for (const QString& text :
             {QString("good/2.2/Pets/DOG/CAT"), QString("older/Glyphgrove2.1/Old/DOG"), QString("bad/Glyph/Pets/DOG"),
              "full/2.2/F" + many, "many/2.2/M/DOG" + many,
              QString("long/2.2/A title of over thirty characters/AWORDOFOVERTWENTYLETTERSX")}) {
            QFile file(Folder.filePath(text.section('/', 0, 0) + ".pux"));
            const QString bytes = '"' + text.section('/', 1).replace("/", "\"\r\n\"") + "\"\r\n";
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes.toLatin1()) > 0);
        }
        QApplication::setFont(QFont("Liberation Sans", 9));
        Answering.Shown();
        Start(FixedRandom(1));
    }

    void cleanup()
    {
        Window.reset();
        QVERIFY2(Answering.Done(), "an expected dialog did not come");
        const QStringList left = QDir(Folder.filePath("home")).entryList(QDir::Files | QDir::Hidden);
        QVERIFY2(left.isEmpty(), qPrintable("left behind: " + left.join(' ')));
    }
};
