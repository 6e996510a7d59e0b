#include "win32/window/window_painter.h"

#include "win32/system/contrast.h"

namespace tavrin::win32 {

WindowPainter::Target::Target(HWND target, const Message& message)
    : window(target), begun(message.id == WM_PAINT && message.wParam == 0) {
    if (begun) {
        BeginPaint(window, &paint);
        return;
    }
    paint.hdc = reinterpret_cast<HDC>(message.wParam);
    GetClientRect(window, &paint.rcPaint);
}

WindowPainter::Target::~Target() {
    if (begun) EndPaint(window, &paint);
}

WindowPainter::WindowPainter(HWND window, const Message& message, WindowResources& resources, Scale scale,
                             forms::Point origin)
    : target_(window, message),
      canvas_(Reserved(resources)),
      surface_(canvas_, resources.Fonts(), scale, origin, target_.paint.rcPaint) {
    if (const auto colors = HighContrast()) contrast_.emplace(surface_, *colors);
}

WindowPainter::~WindowPainter() {
    SelectClipRgn(canvas_.Dc(), nullptr);
    const RECT& dirty = target_.paint.rcPaint;
    BitBlt(target_.paint.hdc, dirty.left, dirty.top, Width(dirty), Height(dirty), canvas_.Dc(), dirty.left,
           dirty.top, SRCCOPY);
    GdiFlush();
}

DibCanvas& WindowPainter::Reserved(WindowResources& resources) const {
    resources.Canvas().Reserve(target_.paint.rcPaint.right, target_.paint.rcPaint.bottom);
    return resources.Canvas();
}

}  // namespace tavrin::win32
