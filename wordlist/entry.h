#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wordlist {

/// Which characters a text box takes from the user, and how many.
struct EntryRule {
    /// Turns what the user put in into what may stand in the box. `boxEmpty`: nothing else stands in it.
    std::u16string (*filter)(std::u16string_view inserted, bool boxEmpty);
    std::size_t limit; ///< characters the user can fill the box to; a longer text set by the program stays
};

/// The word box: A to Z, a to z and blanks, but no blank at the front of an empty box; everything else is
/// dropped without a word.
std::u16string FilterWord(std::u16string_view inserted, bool boxEmpty);

/// An edit of a text box's text.
struct Edit {
    std::u16string text;
    std::size_t cursor; ///< 0..text.size()
};

/// What becomes of a box that showed `before` when the user (typing, pasting, dropping or composing) has
/// turned its text into `wanted.text`: the part that is new passes the rule's filter and is cut to the room
/// that the limit leaves; the rest stays, even where it is longer than the limit.
Edit AdmitEdit(std::u16string_view before, const Edit& wanted, const EntryRule& rule);

} // namespace wordlist
