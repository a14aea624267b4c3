#pragma once

/// Tells assistive technology what the widgets of our own are: the maker's link a link that can be pressed,
/// the puzzle's grid a list of rows of letters. Call it once before a window is built; calling it again is
/// harmless.
void InstallAccessibility();
