#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/diagnosis.h"
#include "data/text/locale.h"
#include "data/text/number_format.h"
#include "forms/drawing/geometry.h"
#include "forms/model/common_dialog.h"
#include "forms/model/copied.h"
#include "forms/model/files.h"
#include "forms/model/origin.h"
#include "forms/model/peer.h"

namespace tavrin::forms {

class Form;
enum class BorderStyle;

/// What the user is told of an error that a handler did not expect.
struct ErrorReport {
    std::int32_t number = 0;
    std::string description;
    std::string window{};  ///< in which it happened, by its caption; empty where no handler ran
    std::string action{};  ///< upon what; empty where no handler ran
};

/// The screen that forms stand on, the list of open forms, and the one place where events are dispatched: an
/// error that leaves a handler is reported here, once, and goes no further.
class Desktop {
  public:
    Desktop() = default;
    virtual ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    // What the platform gives.
    /// Makes the window of a form and the peers of its controls (Control::SetPeer), not yet visible.
    virtual std::unique_ptr<FormPeer> CreatePeer(Form& form) = 0;
    virtual Size ScreenSize() const = 0;
    /// The part of the screen that the system leaves to windows.
    virtual Rect WorkArea() const { return {0, 0, ScreenSize().width, ScreenSize().height}; }
    virtual int TwipsPerPixelX() const = 0;
    virtual int TwipsPerPixelY() const = 0;
    /// How much wider and higher a window is than the area of its controls.
    virtual Size FrameSize(BorderStyle border) const = 0;
    virtual PixelPoint CursorPosition() const = 0;
    virtual void SetCursorPosition(PixelPoint position) = 0;
    /// As the user has set it at this moment. A form keeps the one that it is loaded with (Form::UserLocale).
    virtual data::Locale UserLocale() const = 0;
    /// Sets a number's text for reading. The platform's own service where there is one.
    virtual std::string FormatNumber(std::string_view number, const data::NumberFormat& format) const {
        return data::FormatNumber(number, format);
    }
    /// The sound of input that nothing takes.
    virtual void Beep() = 0;
    virtual Dialogs& PlatformDialogs() = 0;
    virtual Files& PlatformFiles() = 0;
    /// Puts what was copied on the clipboard, in the place of what is there. \throws data::Error where
    /// another program keeps it
    virtual void CopyToClipboard(const Copied& copied) = 0;
    /// The keyboard goes to the host's window that had it last. \return false where there is none in sight
    virtual bool ActivateHost() = 0;
    /// The platform's report of an error that a handler did not expect.
    virtual void ReportError(const ErrorReport& report) noexcept = 0;

    /// Who is told of windows and errors from now on, null for nobody.
    void SetListener(std::shared_ptr<data::Diagnosis> listener) { listener_ = std::move(listener); }

    /// The loaded forms, in the order in which they were loaded.
    const std::vector<Form*>& Forms() const { return forms_; }
    /// The form whose window is active, null when it is none of ours.
    Form* ActiveForm() const { return activeForm_; }

    /// The keyboard goes to the next window in the order in which they were opened (-1: the one before), and
    /// beyond them to the host.
    void ActivateNeighbour(const Form& form, int step);

    /// Runs a handler as part of a dispatch. Nothing that it throws comes out.
    template <class Handler>
    void Guard(const Origin& origin, Handler&& handler) noexcept {
        const DispatchScope scope(*this);
        try {
            std::forward<Handler>(handler)();
        } catch (...) {
            ReportCurrentException(origin);
        }
    }
    /// The same for what a platform's window does by itself.
    template <class Work>
    void Guard(Work&& work) noexcept {
        Guard(Origin{}, std::forward<Work>(work));
    }

    /// While a scope lasts, unloaded forms are kept alive: their code may still be on the stack. Peers open
    /// one around every message that they handle.
    class DispatchScope {
      public:
        explicit DispatchScope(Desktop& desktop) : desktop_(desktop) { ++desktop_.dispatchDepth_; }
        ~DispatchScope() {
            if (--desktop_.dispatchDepth_ == 0) desktop_.EndDispatch();
        }
        DispatchScope(const DispatchScope&) = delete;
        DispatchScope& operator=(const DispatchScope&) = delete;

      private:
        Desktop& desktop_;
    };
    bool IsDispatching() const { return dispatchDepth_ > 0; }

    /// What the running handler does next may take its time: a statement, a file. From a quarter of a second
    /// on the pointer says so, until the handler has ended or a message has come up.
    void ExpectWait();

    /// While a message, a report or a dialog is up, every window of the thread waits for it: ours take no
    /// input, whatever shows it, and count as neither left nor entered again. Afterwards the platform's
    /// windows are what the model says, whatever the platform has made of them meanwhile.
    class MessageScope {
      public:
        explicit MessageScope(Desktop& desktop) : desktop_(desktop) { desktop_.BeginMessage(); }
        ~MessageScope() { desktop_.EndMessage(); }
        MessageScope(const MessageScope&) = delete;
        MessageScope& operator=(const MessageScope&) = delete;

      private:
        Desktop& desktop_;
    };
    bool IsShowingMessage() const { return messageDepth_ > 0; }
    /// How many messages have come up so far. What was under way when one came is over.
    std::size_t MessageCount() const { return messageCount_; }

    /// While a pop-up of our own is up, the windows beneath it count as neither left nor entered again, but
    /// take input.
    class PopupScope {
      public:
        explicit PopupScope(Desktop& desktop) : desktop_(desktop) { ++desktop_.popupDepth_; }
        ~PopupScope() {
            --desktop_.popupDepth_;
            desktop_.ReconcileForms();
        }
        PopupScope(const PopupScope&) = delete;
        PopupScope& operator=(const PopupScope&) = delete;

      private:
        Desktop& desktop_;
    };
    /// Whether windows are left and entered only for something of our own that is above them.
    bool IsCovered() const { return messageDepth_ > 0 || popupDepth_ > 0; }

    /// Unloads every form, the last loaded first, and lets go of those whose code is not running. A desktop
    /// calls it at the start of its destructor, while the peers can still reach it.
    void UnloadAll();

  protected:
    /// Keeps input from all windows of the thread but the one that a message is about to be shown before.
    virtual void HoldWindows() {}
    /// Lets input in again where HoldWindows has kept it out.
    virtual void ReleaseWindows() noexcept {}
    /// Until EndWait the thread may look at no message: what is to be seen meanwhile is shown now.
    virtual void BeginWait() {}
    virtual void EndWait() noexcept {}

  private:
    friend class Form;
    void Add(Form& form);
    void Remove(Form& form);
    void ReportCurrentException(const Origin& origin) noexcept;
    void TellOf(const Form& form, std::string_view happening) const noexcept;
    void EndDispatch() noexcept;
    void StopWaiting() noexcept;
    void ReleaseUnloaded() noexcept;
    void BeginMessage();
    void EndMessage() noexcept;
    void ReconcileForms() noexcept;

    std::vector<Form*> forms_;
    std::vector<std::shared_ptr<Form>> unloaded_;
    Form* activeForm_ = nullptr;
    int dispatchDepth_ = 0;
    int messageDepth_ = 0;
    int popupDepth_ = 0;
    std::size_t messageCount_ = 0;
    bool waits_ = false;
    std::shared_ptr<data::Diagnosis> listener_;
};

}  // namespace tavrin::forms
