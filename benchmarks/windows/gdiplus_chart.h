#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/controls/chart.h"

namespace tavrin::bench {

/// A window that shows what a chart shows, drawn directly with GDI+: the same rectangles, lines and texts at
/// the same places, antialiased, in a bitmap that goes to the screen as a whole.
class GdiplusChart {
  public:
    explicit GdiplusChart(const forms::Chart& chart);
    ~GdiplusChart();
    GdiplusChart(const GdiplusChart&) = delete;
    GdiplusChart& operator=(const GdiplusChart&) = delete;

    HWND Handle() const { return window_; }

  private:
    struct Drawing;
    static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::unique_ptr<Drawing> drawing_;
    HWND window_ = nullptr;
};

}  // namespace tavrin::bench
