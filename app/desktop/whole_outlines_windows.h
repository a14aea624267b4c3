#pragma once

class QStyle;

/// Returns the desktop's style with whole outlines: at scales like 125 % a control may begin between two pixels, and
/// its outline would be cut off.
QStyle* NewWholeOutlines();
