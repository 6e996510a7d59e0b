#pragma once

#include <windows.h>

#include <deque>
#include <memory>
#include <string>

#include "forms/model/desktop.h"
#include "win32/desktop/platform_dialogs.h"
#include "win32/desktop/wait_pointer.h"
#include "win32/system/user_locale.h"
#include "win32/system/whole_files.h"
#include "win32/window/modality.h"

namespace tavrin::win32 {

class WindowResources;

/// The screen of the host's process. Lives on the host's user-interface thread.
class Desktop final : public forms::Desktop {
  public:
    /// `module` is the component's own module, not the host's.
    explicit Desktop(HINSTANCE module);
    ~Desktop() override;

    std::unique_ptr<forms::FormPeer> CreatePeer(forms::Form& form) override;
    forms::Size ScreenSize() const override;
    forms::Rect WorkArea() const override;
    int TwipsPerPixelX() const override;
    int TwipsPerPixelY() const override;
    forms::Size FrameSize(forms::BorderStyle border) const override;
    forms::PixelPoint CursorPosition() const override;
    void SetCursorPosition(forms::PixelPoint position) override;
    data::Locale UserLocale() const override { return ReadUserLocale(); }
    std::string FormatNumber(std::string_view number, const data::NumberFormat& format) const override;
    void Beep() override;
    void CopyToClipboard(const forms::Copied& copied) override;
    bool ActivateHost() override;
    forms::Dialogs& PlatformDialogs() override { return dialogs_; }
    forms::Files& PlatformFiles() override { return files_; }
    void ReportError(const forms::ErrorReport& report) noexcept override;

    /// Whether a window is there, or another process still looks at one: the module must not be unloaded
    /// then.
    bool IsInUse() const { return inUse_.use_count() > 1; }

  protected:
    void HoldWindows() override;
    void ReleaseWindows() noexcept override;
    void BeginWait() override;
    void EndWait() noexcept override { waitPointer_.End(); }

  private:
    std::shared_ptr<WindowResources> SharedResources();
    void ShowReports();
    void Show(const forms::ErrorReport& report);

    HINSTANCE module_;
    WholeFiles files_;
    std::shared_ptr<const void> inUse_;
    std::weak_ptr<WindowResources> resources_;
    HeldWindows heldWindows_;
    WaitPointer waitPointer_;
    win32::PlatformDialogs dialogs_{heldWindows_};
    std::deque<forms::ErrorReport> reports_;
    bool isReporting_ = false;
};

}  // namespace tavrin::win32
