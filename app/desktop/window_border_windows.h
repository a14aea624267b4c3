#pragma once

class QWidget;

/// Keeps the mouse from dragging the border of `window`, which keeps its buttons to minimise and to maximise. Call it
/// when the window has its size and its screen.
void FixBorder(QWidget& window);
