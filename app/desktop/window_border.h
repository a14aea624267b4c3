#pragma once

#include <QWidget>

/// Keeps the mouse from dragging the border of `window`, which keeps its buttons to minimise and to maximise. Call it
/// when the window has its size and its screen. On Windows only: elsewhere no way suits all window managers.
#ifdef Q_OS_WIN
void FixBorder(QWidget& window);
#else
inline void FixBorder(QWidget& /*window*/) {}
#endif
