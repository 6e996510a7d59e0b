#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tavrin::bench {

/// A window that fills itself with one colour; registered while a popup of it is there.
inline constexpr const wchar_t* PlainClass = L"Bench.Plain";
/// Hidden.
HWND CreatePlainPopup(SIZE size);
/// In front of all others, painted.
void ShowInFront(HWND window);

/// The least that a program can put on the screen: a popup that fills itself with one colour.
class BareWindow {
  public:
    /// Shows it in front of all others, painted.
    explicit BareWindow(SIZE size);
    ~BareWindow();
    BareWindow(const BareWindow&) = delete;
    BareWindow& operator=(const BareWindow&) = delete;

    HWND Handle() const { return window_; }

  private:
    HWND window_;
};

/// Texts row by row; the first row is the header.
using Texts = std::vector<std::vector<std::wstring>>;

/// The platform's virtual list view in a bare popup, with lines, full-row selection and rows of a given
/// height. It asks for the texts of the rows that it paints, and gets them ready made.
class BareList {
  public:
    struct Layout {
        SIZE size;
        std::vector<int> columnWidths;
        int rowHeight;
        const wchar_t* face;
        int fontHeight;
    };
    BareList(const Layout& layout, const Texts& texts);
    ~BareList();
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;

    HWND Handle() const { return list_; }

  private:
    static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void AddColumns(const Layout& layout);

    const Texts& texts_;
    HWND parent_;
    HWND list_ = nullptr;
    HFONT font_ = nullptr;
};

}  // namespace tavrin::bench
