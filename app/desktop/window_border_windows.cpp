#include "app/desktop/window_border.h"

#include <windows.h>

void FixBorder(QWidget& window)
{
    const auto handle = reinterpret_cast<HWND>(window.winId());
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(handle, GWL_STYLE)) & ~WS_THICKFRAME;
    RECT area{}; // stays as large as it is; the frame gets thinner
    GetClientRect(handle, &area);
    AdjustWindowRectExForDpi(&area, style, FALSE, 0, GetDpiForWindow(handle));
    SetWindowLongPtrW(handle, GWL_STYLE, static_cast<LONG_PTR>(style));
    SetWindowPos(handle, nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
