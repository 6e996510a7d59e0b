#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "forms/model/desktop.h"
#include "forms/model/form.h"
#include "support/memory_files.h"
#include "support/recording_dialogs.h"

namespace tavrin::tests {

/// What the platform was asked to do with a form's window, counted.
struct WindowCalls {
    int keptOnTop = 0;
    int draggedByCaption = 0;
    int activated = 0;
};

/// A screen of 1280 by 1024 pixels at 96 DPI on which windows are only remembered: which are up, which is
/// active, what errors were reported. It activates windows as a window manager does: showing one activates
/// it, closing the active one activates the topmost of the others that is enabled. Messages disable the
/// windows beneath them as the platform's do, and enable the one that they stood before whatever it was
/// before.
class HeadlessDesktop : public forms::Desktop {
  public:
    HeadlessDesktop();
    ~HeadlessDesktop() override;

    std::unique_ptr<forms::FormPeer> CreatePeer(forms::Form& form) override;
    forms::Size ScreenSize() const override { return screen; }
    forms::Rect WorkArea() const override { return workArea.value_or(forms::Desktop::WorkArea()); }
    int TwipsPerPixelX() const override { return twipsPerPixel; }
    int TwipsPerPixelY() const override { return twipsPerPixel; }
    forms::Size FrameSize(forms::BorderStyle border) const override;
    forms::PixelPoint CursorPosition() const override { return cursor; }
    void SetCursorPosition(forms::PixelPoint position) override { cursor = position; }
    data::Locale UserLocale() const override { return locale; }
    void Beep() override { ++beeps; }
    void CopyToClipboard(const forms::Copied& content) override { copied = content; }
    bool ActivateHost() override;
    forms::Dialogs& PlatformDialogs() override { return dialogs; }
    forms::Files& PlatformFiles() override { return files; }
    void ReportError(const forms::ErrorReport& report) noexcept override;

    /// Whether the platform's window of a form takes input and is in sight, as the user finds it.
    bool IsWindowEnabled(const forms::Form& form) const;
    bool IsWindowVisible(const forms::Form& form) const;

    struct Report {
        std::int32_t number;
        std::string description;
        bool operator==(const Report&) const = default;
    };

    forms::PixelPoint cursor{500, 400};
    data::Locale locale;
    int twipsPerPixel = 15;
    forms::Size screen{1280 * 15, 1024 * 15};
    /// The whole screen unless set.
    std::optional<forms::Rect> workArea;
    RecordingDialogs dialogs;
    MemoryFiles files;
    std::vector<Report> reports;
    /// Of the last report: "Curs Valutar: Sterge Curs (clic)".
    std::string reportedPlace;
    int beeps = 0;
    /// How often a wait has begun, and whether one goes on.
    int waits = 0;
    bool isWaiting = false;
    /// What was copied last.
    std::optional<forms::Copied> copied;
    /// Whether a window of the host is in sight, to which the keyboard may go.
    bool hasHost = true;
    /// Before the window of a form is made. May throw, as a platform does that has no more windows to give.
    std::function<void(forms::Form& form)> whenCreating;
    /// What happens while a report is up, as a user or a timer may do things then.
    std::function<void()> whileReporting;
    /// Whether what shows messages keeps the user from the other windows by itself.
    bool messagesAreModal = true;

    /// What the window of a form was asked so far; all zero for a form without a window.
    WindowCalls CallsOf(const forms::Form& form) const;

    /// A user's click on another window, or on the host when `form` is null.
    void ActivateByUser(forms::Form* form);

  protected:
    void HoldWindows() override;
    void ReleaseWindows() noexcept override;
    void BeginWait() override {
        ++waits;
        isWaiting = true;
    }
    void EndWait() noexcept override { isWaiting = false; }

  private:
    class Window;
    void Close(Window& window);
    const Window* Find(const forms::Form& form) const;

    std::vector<Window*> windows_;  ///< topmost last
    std::vector<Window*> held_;
    Window* owner_ = nullptr;  ///< before which the message stands
};

}  // namespace tavrin::tests
