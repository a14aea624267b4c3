#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace wordlist {

/// Which characters a text box takes from the user, and how many.
struct EntryRule {
    /// Turns what the user put in into what may stand in the box. `atFront`: blanks at its front would be the
    /// first of the text, where a word has none.
    std::u16string (*filter)(std::u16string_view inserted, bool atFront);
    std::size_t limit; ///< characters the user can fill the box to; a longer text set by the program stays
};

/// The word box: A to Z, a to z and blanks, but none at the front; everything else is dropped without a word.
std::u16string FilterWord(std::u16string_view inserted, bool atFront);

/// What the user made of a text box's text.
struct Edit {
    std::u16string text;
    bool typed; ///< a character by the keyboard; otherwise pasted, dropped or composed
};

/// A change of a text: `removed` characters at `position` make room for `inserted`.
struct Change {
    std::size_t position;
    std::size_t removed;
    std::u16string inserted;
};

/// What becomes of a box that showed `before` when the user has turned its text into `wanted`: the part that is new
/// passes the rule's filter, line ends and tabs as blanks, and is cut to the room that the limit leaves; the rest
/// stays, even where it is longer than the limit. Nothing when all that is new is discarded: then nothing at all is
/// to change, what it was to replace included.
std::optional<Change> AdmitEdit(std::u16string_view before, const Edit& wanted, const EntryRule& rule);

} // namespace wordlist
