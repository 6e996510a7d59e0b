#include "win32/peers/edit_frame.h"

#include <algorithm>

#include "forms/controls/look.h"
#include "win32/base/handles.h"

namespace tavrin::win32 {

namespace {

/// The client area within the whole window.
RECT ClientWithin(HWND window, const RECT& outer) {
    RECT client{};
    GetClientRect(window, &client);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    OffsetRect(&client, -outer.left, -outer.top);
    return client;
}

void Fill(HDC dc, const RECT& area, forms::Color color) {
    SetDCBrushColor(dc, color);
    FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace

int FrameThickness(Scale scale) {
    return std::max(1, scale.ToPixels(forms::look::FocusWidth));
}

int SideMargin(Scale scale) {
    return scale.ToPixels(forms::look::Padding);
}

void PaintEditFrame(HWND edit, forms::Color background, EditFrame frame) {
    RECT outer{};
    GetWindowRect(edit, &outer);
    const RECT client = ClientWithin(edit, outer);
    RECT whole{0, 0, Width(outer), Height(outer)};
    const WindowDc frameDc(edit);
    const HDC dc = frameDc.Get();
    ExcludeClipRect(dc, client.left, client.top, client.right, client.bottom);
    Fill(dc, whole, frame.color);
    if (frame.isLine) {
        whole.bottom -= frame.thickness;
    } else {
        InflateRect(&whole, -frame.thickness, -frame.thickness);
    }
    Fill(dc, whole, background);
}

void RedrawFrame(HWND edit) {
    RedrawWindow(edit, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
}

}  // namespace tavrin::win32
