#include "windows/gdiplus_chart.h"

// Before the platform's header, which needs them.
#include <algorithm>
using std::max;
using std::min;

#include <objidl.h>

#include <gdiplus.h>

#include "win32/base/text.h"
#include "windows/message_loop.h"

namespace tavrin::bench {

namespace {

constexpr const wchar_t* ChartClass = L"Bench.GdiplusChart";
constexpr int TwipsPerPixel = 15;

Gdiplus::REAL ToPixels(double twips) {
    return static_cast<Gdiplus::REAL>(twips / TwipsPerPixel);
}

Gdiplus::Color ToColor(forms::Color color) {
    return {static_cast<BYTE>(color & 0xFF), static_cast<BYTE>(color >> 8 & 0xFF),
            static_cast<BYTE>(color >> 16 & 0xFF)};
}

struct Area {
    Gdiplus::RectF place;
    Gdiplus::Color color;
};
struct Stroke {
    std::vector<Gdiplus::PointF> points;
    Gdiplus::REAL width;
    Gdiplus::Color color;
};
struct Text {
    std::wstring text;
    Gdiplus::RectF place;
    Gdiplus::Color color;
    Gdiplus::StringAlignment align;
};

Gdiplus::RectF ToPixels(const forms::Rect& area) {
    return {ToPixels(area.left), ToPixels(area.top), ToPixels(area.width), ToPixels(area.height)};
}

/// Notes down what a chart draws.
class Notebook : public forms::Surface {
  public:
    double PixelSize() const override { return TwipsPerPixel; }
    void FillRectangle(const forms::Rect& area, forms::Color color) override {
        areas.push_back({ToPixels(area), ToColor(color)});
    }
    void DrawFrame(const forms::Rect&, forms::Color, int) override {}
    void FillPolygon(std::span<const forms::PointF>, forms::Color) override {}
    void DrawPolyline(std::span<const forms::PointF> points, double width, forms::Color color) override {
        Stroke stroke{{}, ToPixels(width), ToColor(color)};
        for (const forms::PointF& point : points)
            stroke.points.emplace_back(ToPixels(point.x), ToPixels(point.y));
        strokes.push_back(std::move(stroke));
    }
    void DrawText(std::string_view text, const forms::Rect& area, const forms::TextStyle& style) override {
        const auto align = style.align == forms::Align::Center  ? Gdiplus::StringAlignmentCenter
                           : style.align == forms::Align::Right ? Gdiplus::StringAlignmentFar
                                                                : Gdiplus::StringAlignmentNear;
        texts.push_back({win32::ToWide(text), ToPixels(area), ToColor(style.color), align});
    }
    forms::Size MeasureText(std::string_view text, const forms::Font&) override {
        constexpr int CharacterWidth = 6 * TwipsPerPixel;
        constexpr int LineHeight = 14 * TwipsPerPixel;
        return {static_cast<int>(text.size()) * CharacterWidth, LineHeight};
    }
    void PushClip(const forms::Rect&) override {}
    void PopClip() override {}

    std::vector<Area> areas;
    std::vector<Stroke> strokes;
    std::vector<Text> texts;
};

/// GDI+ for as long as it lives.
class Library {
  public:
    Library() {
        const Gdiplus::GdiplusStartupInput settings;
        GdiplusStartup(&token_, &settings, nullptr);
    }
    ~Library() { Gdiplus::GdiplusShutdown(token_); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

  private:
    ULONG_PTR token_ = 0;
};

}  // namespace

/// The buffer and everything that need not be made anew each time.
struct GdiplusChart::Drawing {
    Drawing(Notebook noted, int width, int height)
        : content(std::move(noted)), buffer(width, height, PixelFormat32bppRGB), canvas(&buffer) {
        canvas.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        canvas.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
        format.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    }

    void PaintTo(HDC target) {
        for (const Area& area : content.areas) {
            const Gdiplus::SolidBrush brush(area.color);
            canvas.FillRectangle(&brush, area.place);
        }
        for (const Text& text : content.texts) {
            const Gdiplus::SolidBrush brush(text.color);
            format.SetAlignment(text.align);
            canvas.DrawString(text.text.c_str(), static_cast<INT>(text.text.size()), &font, text.place,
                              &format, &brush);
        }
        for (const Stroke& stroke : content.strokes) {
            const Gdiplus::Pen pen(stroke.color, stroke.width);
            canvas.DrawLines(&pen, stroke.points.data(), static_cast<INT>(stroke.points.size()));
        }
        Gdiplus::Graphics(target).DrawImage(&buffer, 0, 0);
    }

    Library library;
    Notebook content;
    Gdiplus::Bitmap buffer;
    Gdiplus::Graphics canvas;
    Gdiplus::Font font{L"Arial", 8};
    Gdiplus::StringFormat format;
};

GdiplusChart::GdiplusChart(const forms::Chart& chart) {
    Notebook content;
    chart.Draw(content);
    const int width = chart.Bounds().width / TwipsPerPixel;
    const int height = chart.Bounds().height / TwipsPerPixel;
    drawing_ = std::make_unique<Drawing>(std::move(content), width, height);
    WNDCLASSW description{};
    description.lpfnWndProc = Answer;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = ChartClass;
    RegisterClassW(&description);
    window_ = CreateWindowExW(WS_EX_TOPMOST, ChartClass, L"", WS_POPUP, 0, 0, width, height, nullptr, nullptr,
                              description.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(drawing_.get()));
    ShowWindow(window_, SW_SHOWNA);
    RunUntilPainted();
}

GdiplusChart::~GdiplusChart() {
    DestroyWindow(window_);
    UnregisterClassW(ChartClass, GetModuleHandleW(nullptr));
}

LRESULT CALLBACK GdiplusChart::Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* drawing = reinterpret_cast<Drawing*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_ERASEBKGND) return 1;
    if (message != WM_PAINT || drawing == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    PAINTSTRUCT paint{};
    BeginPaint(window, &paint);
    drawing->PaintTo(paint.hdc);
    EndPaint(window, &paint);
    return 0;
}

}  // namespace tavrin::bench
