#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tavrin::bench {

/// What a bare program needs to know of a window to make its twin: the platform's controls as they are, and
/// in the place of what the component draws itself a push button, a list view for a grid, a plain window for
/// a frame.
class TwinPlan {
  public:
    /// The visible window and all its controls, hidden ones too.
    static TwinPlan Of(HWND window);

    // Through a file, for a process of its own.
    void Save(const std::wstring& file) const;
    static TwinPlan Load(const std::wstring& file);

    struct Part {
        int parent = -1;  ///< place in the list, -1 for the window itself
        std::wstring className;
        DWORD style = 0;
        RECT place{};
    };
    SIZE size{};
    std::vector<Part> parts;
};

/// The twin on the screen: its controls made hidden in one go, then shown in front of all others and painted.
class TwinWindow {
  public:
    explicit TwinWindow(const TwinPlan& plan);
    ~TwinWindow();
    TwinWindow(const TwinWindow&) = delete;
    TwinWindow& operator=(const TwinWindow&) = delete;

  private:
    HWND window_;
    HFONT font_;
};

}  // namespace tavrin::bench
