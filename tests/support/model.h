#pragma once

#include "tests/support/window_script.h"

#include <QRandomGenerator>

/// The program as its rules have it, without a window. It answers the boxes that it brings up by chance and
/// notes box and answer for the real window to be given the same.
struct Model : Seen {
    QRandomGenerator& Chance;
    QMap<QString, QString>& Disk; ///< files as Seen has them
    QStringList Boxes, Answers;
    QString DocFileName, SelectedWord;
    int EditIndex = -1;
    bool Saved = true, TitleSet = false, InTitle = false;

    Model(QRandomGenerator& chance, QMap<QString, QString>& disk)
        : Seen{"Glyphgrove - New Puzzle", "New Puzzle"}, Chance(chance), Disk(disk)
    {
    }

    QString Ask(const QString& box, const QStringList& answers)
    {
        Boxes += box;
        Answers += answers[Chance.bounded(static_cast<int>(answers.size()))];
        return Answers.last();
    }
    void LeaveTitle()
    {
        if (!std::exchange(InTitle, false) || !Title.isEmpty())
            return;
        Title = "New Puzzle";
        TitleSet = false;
    }
    void ClearTextbox()
    {
        Word.clear();
        LeaveTitle();
    }
    void ShowChange()
    {
        ClearTextbox();
        Create = true;
        Saved = EditButtons = false;
    }
    void Enter()
    {
        if (Word.isEmpty())
            return EditMode ? void() : LeaveTitle();
        if (!std::exchange(EditMode, false))
            return Add();
        if (EditIndex < 0 || EditIndex >= Words.size()) {
            Add();
            Create = Create || FitForPuzzle();
            return;
        }
        Words[EditIndex] = Word;
        Selected = Selected == EditIndex ? -1 : Selected;
        ShowChange();
    }
    void Add()
    {
        for (auto equal = Words.count(Word); equal > 0; --equal)
            if (Ask("again?", {"yes", "yes", "no", "escape"}) != "yes")
                return ClearTextbox();
        if (Words.size() >= 40) {
            Ask("limit", {"ok", "escape"});
            return ClearTextbox();
        }
        const auto before = [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; };
        const auto place = std::ranges::upper_bound(Words, Word, before);
        for (int* position : {&Selected, &LookedAt})
            *position += place - Words.begin() <= *position ? 1 : 0;
        Words.insert(place, Word);
        SaveAs = true;
        Save = Save || !DocFileName.isEmpty();
        ShowChange();
    }
    void Pick(int position)
    {
        Selected = LookedAt = position;
        SelectedWord = Words[position];
        EditButtons = true;
        ClearTextbox();
    }
    void EditWord()
    {
        LeaveTitle();
        Word = SelectedWord;
        EditMode = true;
        EditIndex = Selected;
        Create = EditButtons = false;
    }
    void Delete(bool byToolbar)
    {
        EditButtons = byToolbar ? EditButtons : Selected < 0;
        ClearTextbox();
        if (Selected < 0)
            return;
        LookedAt -= LookedAt > Selected || LookedAt == Words.size() - 1 ? 1 : 0;
        Words.removeAt(std::exchange(Selected, -1));
        EditMode = Saved = false;
    }
    bool CheckForSave()
    {
        const QString answer = Saved ? "" : Ask("save?", {"yes", "no", "cancel", "escape"});
        if (answer == "yes")
            Save ? Write(DocFileName) : RunSaveAs();
        Saved = Saved || answer == "no";
        return answer == "cancel" || answer == "escape";
    }
    void Reset()
    {
        ClearTextbox();
        Title = "New Puzzle";
        Caption = "Glyphgrove-New Puzzle";
        Words.clear();
        Selected = LookedAt = EditIndex = -1;
        Save = SaveAs = false;
        Saved = true;
    }
    void New()
    {
        if (CheckForSave())
            return;
        Reset();
        DocFileName.clear();
    }
    void Open()
    {
        const QString path = CheckForSave() ? "escape" : Ask("file", Disk.keys() + QStringList{"gone.pux", "escape"});
        if (path == "escape")
            return;
        Answers.last() = "file:" + path;
        Reset();
        Create = true;
        QStringList file = Disk.value(path).split('/');
        const QString marker = file.takeFirst();
        DocFileName = marker == "Glyph" ? "" : path;
        if (marker.startsWith("Glyph"))
            Ask(marker == "Glyph" ? "bad" : "older", {"ok", "escape"});
        if (marker == "Glyph")
            return;
        Save = SaveAs = TitleSet = true;
        Title = marker.isEmpty() ? Title : file.takeFirst();
        Words = file.first(std::max(file.size() - 1, qsizetype(0)));
        Caption = "Glyphgrove-" + Title;
    }
    void Write(const QString& path)
    {
        Disk[path] = (QStringList{"2.2", Title} + Words).join('/') + '/';
        Caption = "Glyphgrove-" + Title;
        Saved = true;
    }
    void RunSaveAs()
    {
        const QString path = Ask("file", {"new1.pux", "new2.pux", "escape"});
        if (path == "escape")
            return;
        Answers.last() = "file:" + path;
        if (Disk.contains(path) && Ask("replace?", {"yes", "no"}) == "no")
            return;
        Write(DocFileName = path);
    }
    bool FitForPuzzle() const
    {
        return Words.size() <= 40 &&
               std::ranges::all_of(Words, [](const QString& word) { return word.size() <= 20; });
    }
    void CreatePuzzle()
    {
        LeaveTitle();
        CheckForSave();
        if (FitForPuzzle())
            Shown = "frmPuzzle";
        else
            Ask("obstacle", {"ok", "escape"});
    }
    void ToolbarSave()
    {
        if (Save)
            Write(DocFileName);
        else if (SaveAs)
            RunSaveAs();
        else
            Ask("nothing to save", {"ok", "escape"});
    }
    void Type(const QString& text)
    {
        LeaveTitle();
        for (const QChar c : text)
            if (Word.size() < 20 && (c == ' ' ? !Word.isEmpty() : c.isLetter()))
                Word += c;
    }
    /// Types over a selection, key by key: BOX,START,LENGTH,TEXT.
    void TypeOver(const QString& about)
    {
        const bool title = about.startsWith('t');
        if (!title)
            LeaveTitle();
        InTitle = title;
        QString& box = title ? Title : Word;
        qsizetype at = std::min<qsizetype>(about.section(',', 1, 1).toInt(), box.size());
        qsizetype selected = std::min<qsizetype>(about.section(',', 2, 2).toInt(), box.size() - at);
        for (QChar c : about.section(',', 3)) {
            c = c == '\n' ? ' ' : c;
            const bool taken = title ? true : c == ' ' ? !box.isEmpty() : c.isLetter();
            if (!taken || box.size() - selected >= (title ? 30 : 20))
                continue;
            box.replace(at++, std::exchange(selected, 0), c);
        }
    }
    void FocusList()
    {
        LeaveTitle();
        if (LookedAt < 0 && !Words.isEmpty())
            LookedAt = 0;
    }
    /// Keys in the list: they move the entry that is looked at, and choose it unless Ctrl is held.
    void PressInList(const QString& key)
    {
        FocusList();
        const int last = static_cast<int>(Words.size()) - 1;
        const QString bare = key.section('+', -1);
        if (bare == "Up" || bare == "Down")
            LookedAt = std::clamp(LookedAt + (bare == "Up" ? -1 : 1), std::min(0, last), last);
        if (bare == "Home" || bare == "End")
            LookedAt = bare == "Home" ? std::min(0, last) : last;
        if (bare.size() == 1) {
            for (int i = 1; i <= last + 1; ++i)
                if (const int next = (LookedAt + i) % (last + 1); Words[next].startsWith(bare, Qt::CaseInsensitive))
                    return Pick(next);
            return;
        }
        if (LookedAt >= 0 && (bare == "Space" || !key.startsWith("Ctrl")))
            Pick(LookedAt);
    }
    /// Keys that are all there before the first is taken: those after one that brings up a dialog are lost.
    void PressWaiting(const QStringList& keys)
    {
        static const QMap<QString, QString> commands{
            {"Ctrl+N", "tool:New"}, {"Ctrl+S", "tool:Save"}, {"Ctrl+O", "tool:Open"},    {"F1", "menu:ha"},
            {"Return", "enter"},    {"Ctrl+Q", "closemain"}, {"Ctrl+Shift+S", "menu:fe"}};
        for (const QString& key : keys)
            if (Boxes.isEmpty() && Shown == "frmMain")
                Do(commands.value(key, "type:" + key));
    }
    void Close() { Shown = CheckForSave() ? Shown : ""; }
    void ClickTitle()
    {
        InTitle = true;
        if (Title == "New Puzzle" || !TitleSet) {
            Title.clear();
            TitleSet = true;
        }
        Saved = false;
    }

    /// Does what the step of a script says; false where the window would not let the user.
    bool Do(const QString& step)
    {
        const bool back = step == "back" || step == "closepuzzle";
        if (back != (Shown == "frmPuzzle"))
            return false;
        const QString about = step.section(':', 1).replace('_', ' ');
        const std::map<QString, std::pair<bool, std::function<void()>>> actions{
            {"type", {true, [&] { Type(about); }}},
            {"enter", {true, [&] { Enter(); }}},
            {"titleenter", {true, [&] { Enter(); }}},
            {"wipe", {!InTitle, [&] { Word.clear(); }}},
            {"over", {true, [&] { TypeOver(about); }}},
            {"paste", {true, [&] { TypeOver(about); }}},
            {"look", {true, [&] { PressInList(about); }}},
            {"waiting", {!InTitle, [&] { LeaveTitle(), PressWaiting(about.split(' ')); }}},
            {"double", {about.toInt() < std::min<qsizetype>(Words.size(), 20), [&] { Pick(about.toInt()); }}},
            {"clicktitle", {true, [&] { ClickTitle(); }}},
            {"leave", {true, [&] { LeaveTitle(); }}},
            {"tabs", {true, [&] { FocusList(), InTitle = true, LeaveTitle(); }}},
            {"pick", {about.toInt() < std::min<qsizetype>(Words.size(), 20), [&] { Pick(about.toInt()); }}},
            {"edit", {EditButtons, [&] { EditWord(); }}},
            {"delete", {EditButtons, [&] { LeaveTitle(), Delete(false); }}},
            {"tool:Delete", {true, [&] { Delete(true); }}},
            {"tool:New", {true, [&] { New(); }}},
            {"menu:fn", {true, [&] { New(); }}},
            {"tool:Open", {true, [&] { Open(); }}},
            {"menu:fo", {true, [&] { Open(); }}},
            {"tool:Save", {true, [&] { ToolbarSave(); }}},
            {"menu:fv", {Save, [&] { Write(DocFileName); }}},
            {"menu:fe", {SaveAs, [&] { RunSaveAs(); }}},
            {"menu:fq", {true, [&] { Close(); }}},
            {"closemain", {true, [&] { Close(); }}},
            {"menu:ha", {true, [&] { Ask("frmAbout", {"escape"}), Word.clear(); }}},
            {"create", {Create, [&] { CreatePuzzle(); }}},
            {"back", {true, [&] { Shown = "frmMain", Word.clear(); }}},
        };
        const auto exact = actions.find(back ? "back" : step);
        const auto& [possible, act] = exact != actions.end() ? exact->second : actions.at(step.section(':', 0, 0));
        if (possible)
            act();
        Count = QString::number(Words.size()) + (Words.size() >= 40 ? "!" : "");
        for (const QString& name : Disk.keys().filter("new"))
            Files[name] = Disk[name];
        return possible;
    }
};
