#include "windows/bare_windows.h"

#include <commctrl.h>

#include "windows/message_loop.h"

namespace tavrin::bench {

namespace {

constexpr const wchar_t* ListParentClass = L"Bench.ListParent";

LRESULT CALLBACK PaintPlain(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
    PAINTSTRUCT paint{};
    BeginPaint(window, &paint);
    FillRect(paint.hdc, &paint.rcPaint, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    EndPaint(window, &paint);
    return 0;
}

void Register(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSW description{};
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    RegisterClassW(&description);
}

HWND CreatePopup(const wchar_t* className, SIZE size) {
    return CreateWindowExW(WS_EX_TOPMOST, className, L"", WS_POPUP | WS_CLIPCHILDREN, 0, 0, size.cx, size.cy,
                           nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

}  // namespace

HWND CreatePlainPopup(SIZE size) {
    Register(PlainClass, PaintPlain);
    return CreatePopup(PlainClass, size);
}

void ShowInFront(HWND window) {
    ShowWindow(window, SW_SHOW);
    SetForegroundWindow(window);
    RunUntilPainted();
}

BareWindow::BareWindow(SIZE size) : window_(CreatePlainPopup(size)) {
    ShowInFront(window_);
}

BareWindow::~BareWindow() {
    DestroyWindow(window_);
    UnregisterClassW(PlainClass, GetModuleHandleW(nullptr));
}

BareList::BareList(const Layout& layout, const Texts& texts) : texts_(texts) {
    Register(ListParentClass, Answer);
    parent_ = CreatePopup(ListParentClass, layout.size);
    SetWindowLongPtrW(parent_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    list_ = CreateWindowExW(0, WC_LISTVIEWW, L"",
                            WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS, 0, 0,
                            layout.size.cx, layout.size.cy, parent_, nullptr, nullptr, nullptr);
    font_ = CreateFontW(-layout.fontHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                        CLEARTYPE_QUALITY, 0, layout.face);
    SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    // Its rows are as high as its small pictures are.
    ListView_SetImageList(list_, ImageList_Create(1, layout.rowHeight - 1, ILC_COLOR, 1, 1), LVSIL_SMALL);
    AddColumns(layout);
    ListView_SetItemCountEx(list_, static_cast<int>(texts.size()) - 1, LVSICF_NOINVALIDATEALL);
    ListView_SetItemState(list_, 0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    ShowInFront(parent_);
    SetFocus(list_);
    RunUntilPainted();
}

BareList::~BareList() {
    DestroyWindow(parent_);
    DeleteObject(font_);
    UnregisterClassW(ListParentClass, GetModuleHandleW(nullptr));
}

void BareList::AddColumns(const Layout& layout) {
    for (std::size_t i = 0; i < layout.columnWidths.size(); ++i) {
        std::wstring title = texts_.front()[i];
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = layout.columnWidths[i];
        column.pszText = title.data();
        SendMessageW(list_, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
}

LRESULT CALLBACK BareList::Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* notification = reinterpret_cast<const NMHDR*>(lParam);
    if (message != WM_NOTIFY || notification->code != LVN_GETDISPINFOW)
        return DefWindowProcW(window, message, wParam, lParam);
    const auto* list = reinterpret_cast<const BareList*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(lParam)->item;
    if (list == nullptr || (item.mask & LVIF_TEXT) == 0) return 0;
    const auto& row = list->texts_[static_cast<std::size_t>(item.iItem) + 1];
    item.pszText = const_cast<wchar_t*>(row[static_cast<std::size_t>(item.iSubItem)].c_str());
    return 0;
}

}  // namespace tavrin::bench
