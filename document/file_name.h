#pragma once

#include <string>
#include <string_view>

namespace document {

/// A file name made of a title, for proposals: characters that file names of some desktop cannot hold become
/// hyphens, blanks and dots at the ends go, long titles are cut. Never empty.
std::u16string FileNameFor(std::u16string_view title);

} // namespace document
