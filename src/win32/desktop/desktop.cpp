#include "win32/desktop/desktop.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "win32/base/text.h"
#include "win32/desktop/clipboard.h"
#include "win32/peers/form_peer.h"
#include "win32/peers/form_style.h"
#include "win32/system/dpi.h"
#include "win32/system/number_format.h"
#include "win32/window/window_resources.h"

namespace tavrin::win32 {

namespace {

/// Reports that wait while one is up; more are not worth the user's patience.
constexpr std::size_t MaximumReports = 8;

std::wstring TextOf(const forms::ErrorReport& report) {
    std::string text = "Eroare " + std::to_string(report.number);
    if (report.number < 0) text += " (" + HexText(static_cast<std::uint32_t>(report.number)) + ")";
    text += "\n\n" + report.description;
    if (!report.window.empty()) text += "\n\nFereastra: " + report.window + "\nActiunea: " + report.action;
    return ToWide(text);
}

}  // namespace

Desktop::Desktop(HINSTANCE module) : module_(module), inUse_(std::make_shared<int>()) {}

Desktop::~Desktop() = default;

std::unique_ptr<forms::FormPeer> Desktop::CreatePeer(forms::Form& form) {
    auto peer = std::make_unique<FormPeer>(*this, form, SharedResources());
    peer->CreateControls();
    return peer;
}

std::shared_ptr<WindowResources> Desktop::SharedResources() {
    auto resources = resources_.lock();
    if (!resources) resources_ = resources = std::make_shared<WindowResources>(module_, inUse_);
    return resources;
}

forms::Size Desktop::ScreenSize() const {
    const Scale scale = SystemScale();
    return {scale.ToTwips(GetSystemMetrics(SM_CXSCREEN)), scale.ToTwips(GetSystemMetrics(SM_CYSCREEN))};
}

forms::Rect Desktop::WorkArea() const {
    RECT area{};
    if (SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0) == FALSE) return forms::Desktop::WorkArea();
    const Scale scale = SystemScale();
    return {scale.ToTwips(area.left), scale.ToTwips(area.top), scale.ToTwips(Width(area)),
            scale.ToTwips(Height(area))};
}

int Desktop::TwipsPerPixelX() const {
    return SystemScale().ToTwips(1);
}

int Desktop::TwipsPerPixelY() const {
    return SystemScale().ToTwips(1);
}

forms::Size Desktop::FrameSize(forms::BorderStyle border) const {
    const Scale scale = SystemScale();
    const FormStyle form = FormStyle::Of(border);
    const RECT frame = WindowAround({}, form.style, form.extendedStyle, scale.ScreenDpi());
    return {scale.ToTwips(Width(frame)), scale.ToTwips(Height(frame))};
}

forms::PixelPoint Desktop::CursorPosition() const {
    POINT position{};
    GetCursorPos(&position);
    return {position.x, position.y};
}

void Desktop::SetCursorPosition(forms::PixelPoint position) {
    SetCursorPos(position.x, position.y);
}

std::string Desktop::FormatNumber(std::string_view number, const data::NumberFormat& format) const {
    return FormatPlatformNumber(number, format);
}

void Desktop::Beep() {
    MessageBeep(MB_OK);
}

void Desktop::CopyToClipboard(const forms::Copied& copied) {
    const Clipboard clipboard(GetActiveWindow());
    clipboard.Put(CF_UNICODETEXT, TextMemory(copied.text));
    if (!copied.drawPicture) return;
    const auto resources = SharedResources();
    clipboard.Put(CF_DIB, PictureMemory(copied, resources->Canvas(), resources->Fonts(), SystemScale()));
}

bool Desktop::ActivateHost() {
    const HWND host = FindHostWindow(*this);
    return host != nullptr && SetForegroundWindow(host) != FALSE;
}

void Desktop::ReportError(const forms::ErrorReport& report) noexcept {
    try {
        if (reports_.size() < MaximumReports) reports_.push_back(report);
        // A report's own message loop may bring further errors: they wait for their turn.
        if (!isReporting_) ShowReports();
    } catch (...) {
        isReporting_ = false;
        MessageBeep(MB_ICONERROR);  // not even memory for a message
    }
}

void Desktop::ShowReports() {
    isReporting_ = true;
    while (!reports_.empty()) {
        const forms::ErrorReport report = std::move(reports_.front());
        reports_.pop_front();
        Show(report);
    }
    isReporting_ = false;
}

void Desktop::Show(const forms::ErrorReport& report) {
    const MessageScope scope(*this);
    const std::wstring text = TextOf(report);
    MessageBoxW(OwnerOfMessage(*this, GetActiveWindow()), text.c_str(), L"Eroare",
                MB_OK | MB_ICONERROR | MB_TOPMOST | MB_SETFOREGROUND);
}

void Desktop::HoldWindows() {
    heldWindows_.Hold();
}

void Desktop::ReleaseWindows() noexcept {
    heldWindows_.Release();
}

void Desktop::BeginWait() {
    std::vector<HWND> windows;
    std::ranges::transform(Forms(), std::back_inserter(windows), [](auto* form) { return WindowOf(*form); });
    for (const HWND window : windows) {
        if (window != nullptr) RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    waitPointer_.Begin();
}

}  // namespace tavrin::win32
