#pragma once

class QStyle;

/// Returns the desktop's style with whole frames: at scales like 125 % a list may begin between two pixels, and one
/// of its outlines would be cut off.
QStyle* NewWholeOutlines();
