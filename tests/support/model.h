#pragma once

#include "tests/support/window_script.h"

#include <QRandomGenerator>

/// The rules of the program, without a window. It answers its boxes at random and records boxes and answers, so that
/// the test can give the same answers to the real window.
struct Model : Seen {
    QRandomGenerator& Chance;
    QMap<QString, QString>& Disk; ///< in the form of Seen::Files
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
        if (std::exchange(InTitle, false) && Title.isEmpty())
            Title = "New Puzzle", TitleSet = false;
    }
    void ClearTextbox() { Word.clear(), LeaveTitle(); }
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
        if (EditIndex >= 0 && EditIndex < Words.size()) {
            Words[EditIndex] = Word;
            Selected = Selected == EditIndex ? -1 : Selected;
            return ShowChange();
        }
        Add();
        Create = Create || FitForPuzzle();
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
        LookedAt = std::max(LookedAt, 0);
        SaveAs = true;
        Save = Save || !DocFileName.isEmpty();
        ShowChange();
    }
    void Pick(int position)
    {
        SelectedWord = Words[Selected = LookedAt = position];
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
    void Keep() { Save ? Write(DocFileName) : RunSaveAs(); }
    bool CheckForSave()
    {
        const QString answer = Saved ? "" : Ask("save?", {"yes", "no", "cancel", "escape"});
        if (answer == "yes")
            Keep();
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
        LookedAt = Words.isEmpty() ? -1 : 0;
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
        return Words.size() <= 40 && std::ranges::all_of(Words, [](const QString& w) { return w.size() <= 20; });
    }
    void CreatePuzzle()
    {
        LeaveTitle();
        CheckForSave();
        if (!FitForPuzzle())
            Ask("obstacle", {"ok", "escape"});
        Shown = FitForPuzzle() ? "frmPuzzle" : Shown;
    }
    /// Types a text over a selection: BOX,START,LENGTH,TEXT.
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
            const bool taken = title || (c == ' ' ? !box.isEmpty() : c.isLetter());
            if (taken && box.size() - selected < (title ? 30 : 20))
                box.replace(at++, std::exchange(selected, 0), c);
        }
    }
    void PasteList(const QStringList& words)
    {
        for (const QString& word : words) {
            TypeOver("w,99,0," + word);
            if (&word != &words.last())
                Enter();
            if (!Boxes.isEmpty() && Boxes.last() == "limit")
                return;
        }
    }
    /// A key in the list moves the current entry, and chooses it if Ctrl is up.
    void PressInList(const QString& key)
    {
        LeaveTitle();
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
    /// The keys come while the program is busy. It drops those after a key that opens a dialog.
    void PressWaiting(const QStringList& keys)
    {
        LeaveTitle();
        for (const QString& key : keys)
            if (Boxes.isEmpty() && Shown == "frmMain")
                Do(SameAs.contains(key) ? key : "type:" + key);
    }
    void ClickTitle()
    {
        Title = Title == "New Puzzle" || !TitleSet ? "" : Title;
        InTitle = TitleSet = true;
        Saved = false;
    }

    inline static const QMap<QString, QString> SameAs{
        {"titleenter", "enter"}, {"Return", "enter"},     {"closepuzzle", "back"}, {"paste", "over"},
        {"double", "pick"},      {"F1", "menu:ha"},       {"Ctrl+S", "tool:Save"}, {"Ctrl+Shift+S", "menu:fe"},
        {"Ctrl+N", "tool:New"},  {"menu:fn", "tool:New"}, {"Ctrl+O", "tool:Open"}, {"menu:fo", "tool:Open"},
        {"Ctrl+Q", "closemain"}, {"menu:fq", "closemain"}};

    /// Does a step of a script. False if the user cannot do it now.
    bool Do(const QString& given)
    {
        const QString step = SameAs.value(given, given);
        if ((step == "back") != (Shown == "frmPuzzle"))
            return false;
        const QString verb = step.section(':', 0, 0);
        const QString about = step.section(':', 1).replace('_', ' ');
        const std::map<QString, std::pair<bool, std::function<void()>>> actions{
            {"type", {true, [&] { TypeOver("w,99,0," + about); }}},
            {"enter", {true, [&] { Enter(); }}},
            {"wipe", {!InTitle, [&] { Word.clear(); }}},
            {"over", {true, [&] { TypeOver(about); }}},
            {"look", {true, [&] { PressInList(about); }}},
            {"list", {true, [&] { PasteList(about.split(',')); }}},
            {"waiting", {!InTitle, [&] { PressWaiting(about.split(' ')); }}},
            {"clicktitle", {true, [&] { ClickTitle(); }}},
            {"leave", {true, [&] { LeaveTitle(); }}},
            {"tabs", {true, [&] { InTitle = true, LeaveTitle(); }}},
            {"pick", {about.toInt() < Words.size(), [&] { Pick(about.toInt()); }}},
            {"edit", {EditButtons, [&] { EditWord(); }}},
            {"delete", {EditButtons, [&] { LeaveTitle(), Delete(false); }}},
            {"tool:Delete", {true, [&] { Delete(true); }}},
            {"tool:New", {true, [&] { CheckForSave() ? void() : (Reset(), DocFileName.clear()); }}},
            {"tool:Open", {true, [&] { Open(); }}},
            {"tool:Save",
             {true,
              [&] {
                  SaveAs ? Keep() : void(Ask("nothing to save", {"ok", "escape"}));
              }}},
            {"menu:fv", {Save, [&] { Write(DocFileName); }}},
            {"menu:fe", {SaveAs, [&] { RunSaveAs(); }}},
            {"closemain", {true, [&] { Shown = CheckForSave() ? Shown : ""; }}},
            {"menu:ha", {true, [&] { Ask("frmAbout", {"escape"}), Word.clear(); }}},
            {"create", {Create, [&] { CreatePuzzle(); }}},
            {"back", {true, [&] { Shown = "frmMain", Word.clear(); }}},
        };
        const auto exact = actions.find(step);
        const auto& [possible, act] = exact != actions.end() ? exact->second : actions.at(SameAs.value(verb, verb));
        if (possible)
            act();
        Count = QString::number(Words.size()) + (Words.size() >= 40 ? "!" : "");
        for (const QString& name : Disk.keys().filter("new"))
            Files[name] = Disk[name];
        return possible;
    }
};
