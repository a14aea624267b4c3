#pragma once

#include "tests/support/data.h"
#include "tests/support/puzzles.h"
#include "driving/script.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

#include <array>
#include <memory>

using namespace driving;

/// All that is to be seen of the program.
struct Seen {
    QString Caption, Title;
    QStringList Words = {};
    int Selected = -1, LookedAt = -1;
    QString Word = {};
    bool Save = false, SaveAs = false, Create = false, EditButtons = false, EditMode = false;
    QString Count = "0";               ///< "!" after it where it is red
    QMap<QString, QString> Files = {}; ///< those that scripts write to, a "/" for a line's end, without quotes
    QString Shown = "frmMain";         ///< the windows

    bool operator==(const Seen& other) const = default;

    /// In a line: caption, big title, words, then S, A, C, E and M for what is available: Save, Save As, Create
    /// Puzzle, the edit buttons, edit mode; the count, "@" and the position of the selected entry; the text of the
    /// word box, the files, the windows where they are not the main one. Of more than five words it gives the number.
    QString Line() const
    {
        QString line = Caption + " | " + Title + " | ";
        line += Words.size() <= 5 ? Words.join(',') : QString("%1 words").arg(Words.size());
        line += " | ";
        const std::array<bool, 5> flags{Save, SaveAs, Create, EditButtons, EditMode};
        for (std::size_t i = 0; i < flags.size(); ++i)
            line += flags.at(i) ? QString("SACEM").mid(static_cast<int>(i), 1) : "";
        line += " | " + Count + (Selected < 0 ? "" : " @" + QString::number(Selected));
        line += Word.isEmpty() ? "" : " | " + Word;
        for (auto file = Files.begin(); file != Files.end(); ++file)
            line += " | " + file.key() + '=' + file.value();
        line += Shown == "frmMain" ? "" : " | " + (Shown.isEmpty() ? "closed" : Shown);
        return line.replace("Glyphgrove", "G").replace("New Puzzle", "NP");
    }
};

/// The base of the window tests: a fresh window and a folder of files for each, and what is to be seen of
/// them, as texts. Most tests are tables of scripts and of what they leave.
class WindowScript : public QObject, protected Script {
    Q_OBJECT

protected:
    /// The files that are there, as Seen has them.
    QMap<QString, QString> Files(const QString& names) const
    {
        QMap<QString, QString> files;
        for (const QString& name : Folder.entryList({names})) {
            QFile file(Folder.filePath(name));
            files[name] = !file.open(QIODevice::ReadOnly) ? "unreadable"
                          : file.size() > 1000            ? "long"
                                                          : QString(file.readAll()).remove('"').replace("\r\n", "/");
        }
        return files;
    }

    Seen State()
    {
        Seen seen{Window->windowHandle()->title(), Control<QLabel>("lblBigTitle").text()};
        const auto& list = Control<WordList>("lstWordlist");
        for (int i = 0; i < list.count(); ++i)
            seen.Words += list.item(i)->text();
        seen.Selected = list.SelectedPosition();
        seen.LookedAt = list.currentRow();
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
        if (const QWidget* puzzle = ShownWindow("frmPuzzle"))
            seen.Shown += puzzle->objectName();
        return seen;
    }

    /// What is to be seen of a window and its named controls: name, place and size in pixels, font where it is not
    /// the interface's, text colour, ground where it has one of its own, alignment, text, tip; what assistive
    /// technology is told.
    static QStringList Looks(const QWidget& window)
    {
        QStringList looks{QString("\"%1\" %2x%3 flags %4 focus %5")
                              .arg(window.windowTitle())
                              .arg(window.width())
                              .arg(window.height())
                              .arg(window.windowFlags().toInt(), 0, 16)
                              .arg(window.focusWidget()->metaObject()->className())};
        for (QWidget* control : window.findChildren<QWidget*>()) {
            static const QRegularExpression ours("^(lbl|txt|cmd|lst|pct|.*Toolbar|client)");
            const auto* button = qobject_cast<const QToolButton*>(control);
            const QString name = button != nullptr ? button->text() : control->objectName();
            if ((button == nullptr && !ours.match(name).hasMatch()) || control->isHidden())
                continue;
            const QRect place(control->mapTo(control->window(), QPoint()), control->size());
            QString look =
                name + QString::asprintf(" %d,%d %dx%d", place.x(), place.y(), place.width(), place.height());
            if (const QFont font = control->font(); font != QApplication::font())
                look += ' ' + font.family() + ' ' + QString::number(font.pointSizeF()) +
                        (font.bold() && font.italic() ? " bold italic" : "");
            look += ' ' + control->palette().color(control->foregroundRole()).name();
            if (control->autoFillBackground() || control->inherits("QAbstractButton"))
                look += " on " + control->palette().color(control->backgroundRole()).name();
            static const QSet<QString> usual{"", "false", "NoFocus", "AlignLeading|AlignVCenter",
                                             "ScrollBarAsNeeded"};
            for (const char* property : {"alignment", "text", "toolTip", "default", "focusPolicy", "wordWrap",
                                         "verticalScrollBarPolicy", "horizontalScrollBarPolicy"})
                if (const QString value = control->property(property).toString(); !usual.contains(value))
                    look += QString(" %1 \"%2\"").arg(property, value);
            if (button != nullptr)
                look += QString(" pictures %1").arg(button->icon().availableSizes().size());
            const auto* spoken = QAccessible::queryAccessibleInterface(control);
            look += QString(", ") + QMetaEnum::fromType<QAccessible::Role>().valueToKey(spoken->role());
            if (const QString told = spoken->text(QAccessible::Name); told != control->property("text"))
                look += " \"" + told + '"';
            looks += look;
        }
        return looks;
    }

    /// The boxes and dialogs that came since the last call, by short names; a text that differs stays as it
    /// is.
    QString Boxes()
    {
        static const QList<QStringList> names = Rows("boxes.json");
        QStringList shown;
        for (const QString& text : Answering.Shown()) {
            shown += text;
            for (const QStringList& row : names)
                if (text == row[1] || (row[1].startsWith('*') && text.contains(row[1].mid(1))))
                    shown.last() = row[0];
        }
        return shown.join(' ');
    }

    std::unique_ptr<QTemporaryDir> Disk;

private slots:
    void initTestCase()
    {
        PrepareApplication();
        QApplication::setStyle("Fusion"); // the same places on every desktop, and fonts of the same measures
        QFont::insertSubstitution("Times New Roman", "Liberation Serif");
        QFont::insertSubstitution("Courier New", "Liberation Mono");
        QApplication::setQuitOnLastWindowClosed(false); // the next window follows
    }

    void init()
    {
        Disk = std::make_unique<QTemporaryDir>();
        Folder = QDir(Disk->path());
        for (const QFileInfo& file : QFileInfo(QFINDTESTDATA("../data/good.pux")).dir().entryInfoList({"*.pux"}))
            QFile::copy(file.filePath(), Folder.filePath(file.fileName()));
        QApplication::setFont(QFont("Liberation Sans", 9));
        Answering.Shown();
        Start(FixedRandom(1));
    }

    void cleanup()
    {
        Window.reset();
        QVERIFY2(Answering.Done(), "an expected dialog did not come");
    }
};
