#include "win32/desktop/platform_dialogs.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "data/error.h"
#include "forms/model/form.h"
#include "win32/base/handles.h"
#include "win32/base/library.h"
#include "win32/base/text.h"
#include "win32/system/dpi.h"
#include "win32/window/window.h"

namespace tavrin::win32 {

namespace {

constexpr std::size_t LongestPath = 32768;
constexpr std::size_t LongestPrinterName = 512;
constexpr int TenthsPerPoint = 10;

/// The dialogs' library, and what it says after a dialog.
class CommonDialogs {
  public:
    template <class Function, class Settings>
    bool Show(const char* name, Settings& settings) const {
        if (library_.Find<Function>(name)(&settings)) return true;
        const DWORD failure = library_.Find<decltype(CommDlgExtendedError)>("CommDlgExtendedError")();
        if (failure == 0) return false;  // cancelled
        throw data::RuntimeError(data::error_number::InternalError, name + (" 0x" + HexText(failure)));
    }

  private:
    Library library_{L"comdlg32.dll"};
};

/// "Note|*.rtf" as the platform wants it: each piece ends with a null, and a further one ends them all.
std::wstring PlatformFilter(const std::string& filter) {
    std::wstring pieces = ToWide(filter);
    std::ranges::replace(pieces, L'|', L'\0');
    pieces += L'\0';
    return pieces;
}

/// "rtf" out of "Note|*.rtf": what is added to a name that is typed without.
std::wstring DefaultExtension(const std::string& filter) {
    const std::size_t point = filter.rfind('.');
    return point != std::string::npos ? ToWide(filter.substr(point + 1)) : std::wstring();
}

/// The default printer, for the fonts that it has; nothing where there is no printer.
class PrinterContext {
  public:
    PrinterContext() {
        const Library spooler(L"winspool.drv");
        std::array<wchar_t, LongestPrinterName> name{};
        auto size = static_cast<DWORD>(name.size());
        if (spooler.Find<BOOL WINAPI(wchar_t*, DWORD*)>("GetDefaultPrinterW")(name.data(), &size))
            context_.reset(CreateICW(L"WINSPOOL", name.data(), nullptr, nullptr));
    }

    HDC Get() const { return context_.get(); }

  private:
    OwnedMemoryDc context_;
};

/// Two choices of style have one list: it shows none where either differs inside the selection.
bool HasStyle(const forms::CharacterFormat& font) {
    return font.bold.has_value() && font.italic.has_value();
}

DWORD FlagsOf(const forms::FontDialogSettings& settings) {
    const forms::CharacterFormat& font = settings.font;
    DWORD flags = settings.flags | CF_INITTOLOGFONTSTRUCT | CF_NOSCRIPTSEL;
    if (!font.face) flags |= CF_NOFACESEL;
    if (!font.points) flags |= CF_NOSIZESEL;
    if (!HasStyle(font)) flags |= CF_NOSTYLESEL;
    return flags;
}

LOGFONTW LogFontOf(const forms::CharacterFormat& font, int dpi) {
    LOGFONTW log{};
    log.lfHeight = -static_cast<LONG>(std::lround(font.points.value_or(0) * dpi / PointsPerInch));
    log.lfWeight = font.bold.value_or(false) ? FW_BOLD : FW_NORMAL;
    log.lfItalic = font.italic.value_or(false) ? TRUE : FALSE;
    log.lfUnderline = font.underline.value_or(false) ? TRUE : FALSE;
    log.lfStrikeOut = font.strikeThru.value_or(false) ? TRUE : FALSE;
    log.lfCharSet = DEFAULT_CHARSET;
    const std::wstring face = ToWide(font.face.value_or(std::string()));
    face.copy(log.lfFaceName, LF_FACESIZE - 1);
    return log;
}

/// A property that differed inside the selection and was not touched in the dialog still differs.
template <class Value>
void TakeTouched(std::optional<Value>& property, const Value& shown, const Value& chosen) {
    if (property || chosen != shown) property = chosen;
}

void TakeChosen(forms::CharacterFormat& font, const CHOOSEFONTW& dialog) {
    const LOGFONTW& log = *dialog.lpLogFont;
    if (font.face || log.lfFaceName[0] != L'\0') font.face = ToUtf8(log.lfFaceName);
    if (font.points || dialog.iPointSize > 0)
        font.points = static_cast<double>(dialog.iPointSize) / TenthsPerPoint;
    if (HasStyle(font) || (dialog.Flags & CF_NOSTYLESEL) == 0) {
        font.bold = log.lfWeight >= FW_SEMIBOLD;
        font.italic = log.lfItalic != 0;
    }
    TakeTouched(font.underline, false, log.lfUnderline != 0);
    TakeTouched(font.strikeThru, false, log.lfStrikeOut != 0);
    TakeTouched(font.color, forms::Black, static_cast<forms::Color>(dialog.rgbColors));
}

}  // namespace

bool PlatformDialogs::ShowFileDialog(const forms::Form& owner, forms::FileDialogSettings& settings,
                                     const char* name) {
    const std::wstring title = ToWide(settings.title);
    const std::wstring filter = PlatformFilter(settings.filter);
    const std::wstring extension = DefaultExtension(settings.filter);
    std::wstring file = ToWide(settings.fileName);
    file.resize(LongestPath);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = heldWindows_.OwnerOfDialog(owner);
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = static_cast<DWORD>(file.size());
    dialog.lpstrTitle = title.c_str();
    dialog.Flags = settings.flags;
    dialog.lpstrDefExt = extension.c_str();
    if (!CommonDialogs().Show<decltype(GetOpenFileNameW)>(name, dialog)) return false;
    settings.fileName = ToUtf8(file.c_str());
    return true;
}

bool PlatformDialogs::ShowOpen(const forms::Form& owner, forms::FileDialogSettings& settings) {
    return ShowFileDialog(owner, settings, "GetOpenFileNameW");
}

bool PlatformDialogs::ShowSave(const forms::Form& owner, forms::FileDialogSettings& settings) {
    return ShowFileDialog(owner, settings, "GetSaveFileNameW");
}

bool PlatformDialogs::ShowFont(const forms::Form& owner, forms::FontDialogSettings& settings) {
    const PrinterContext printer;
    LOGFONTW log = LogFontOf(settings.font, DpiOf(WindowOf(owner)));
    CHOOSEFONTW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = heldWindows_.OwnerOfDialog(owner);
    dialog.lpLogFont = &log;
    dialog.hDC = printer.Get();
    dialog.Flags = FlagsOf(settings);
    if (dialog.hDC == nullptr) dialog.Flags &= ~static_cast<DWORD>(CF_PRINTERFONTS);
    dialog.rgbColors = settings.font.color.value_or(forms::Black);
    if (!CommonDialogs().Show<decltype(ChooseFontW)>("ChooseFontW", dialog)) return false;
    TakeChosen(settings.font, dialog);
    return true;
}

bool PlatformDialogs::ShowColor(const forms::Form& owner, forms::Color& color) {
    std::array<COLORREF, 16> ownColors{};
    ownColors.fill(RGB(255, 255, 255));
    CHOOSECOLORW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = heldWindows_.OwnerOfDialog(owner);
    dialog.rgbResult = color;
    dialog.lpCustColors = ownColors.data();
    dialog.Flags = CC_RGBINIT;
    if (!CommonDialogs().Show<decltype(ChooseColorW)>("ChooseColorW", dialog)) return false;
    color = dialog.rgbResult;
    return true;
}

}  // namespace tavrin::win32
