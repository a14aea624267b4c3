#pragma once

/// Describes our own widgets to assistive technology: the maker link is a link that can be pressed, the grid a list
/// of rows of letters. Call it before building a window; calling it again is harmless.
void InstallAccessibility();
