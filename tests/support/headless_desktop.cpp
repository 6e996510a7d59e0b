#include "support/headless_desktop.h"

#include <algorithm>

namespace tavrin::tests {

class HeadlessDesktop::Window : public forms::FormPeer {
  public:
    Window(HeadlessDesktop& desktop, forms::Form& shown)
        : form(shown), enabled(shown.AcceptsInput()), desktop_(desktop) {
        desktop_.windows_.push_back(this);
    }
    ~Window() override {
        std::erase(desktop_.windows_, this);
        std::erase(desktop_.held_, this);
        if (desktop_.owner_ == this) desktop_.owner_ = nullptr;
    }

    void Changed(forms::FormAspect aspect) override {
        if (aspect == forms::FormAspect::Enabled) enabled = form.AcceptsInput();
        if (aspect == forms::FormAspect::Visible) visible = form.Visible();
    }
    void Reconcile() noexcept override {
        enabled = form.AcceptsInput();
        visible = form.Visible();
        const forms::Control* focused = form.ActiveControl();
        if (form.IsActive() && focused != nullptr && focused->Peer() != nullptr) focused->Peer()->TakeFocus();
    }
    void Activate() override {
        ++calls.activated;
        desktop_.ActivateByUser(&form);
    }
    void KeepOnTop() override { ++calls.keptOnTop; }
    void DragByCaption() override { ++calls.draggedByCaption; }
    void Close() override { desktop_.Close(*this); }

    forms::Form& form;
    WindowCalls calls;
    bool enabled;
    bool visible = false;

  private:
    HeadlessDesktop& desktop_;
};

HeadlessDesktop::HeadlessDesktop() = default;

HeadlessDesktop::~HeadlessDesktop() {
    // The windows look for this desktop when they go.
    const DispatchScope scope(*this);
    UnloadAll();
}

std::unique_ptr<forms::FormPeer> HeadlessDesktop::CreatePeer(forms::Form& form) {
    if (whenCreating) whenCreating(form);
    return std::make_unique<Window>(*this, form);
}

forms::Size HeadlessDesktop::FrameSize(forms::BorderStyle border) const {
    return border == forms::BorderStyle::Borderless ? forms::Size{} : forms::Size{90, 435};
}

void HeadlessDesktop::ReportError(const forms::ErrorReport& report) noexcept {
    const MessageScope scope(*this);
    reports.push_back({report.number, report.description});
    reportedPlace = report.window + ": " + report.action;
    if (whileReporting) whileReporting();
}

void HeadlessDesktop::HoldWindows() {
    held_.clear();
    owner_ = nullptr;
    for (Window* window : windows_) {
        if (&window->form == ActiveForm()) owner_ = window;
        if (!messagesAreModal || !window->enabled) continue;
        window->enabled = false;
        if (window != owner_) held_.push_back(window);
    }
}

void HeadlessDesktop::ReleaseWindows() noexcept {
    for (Window* window : held_)
        window->enabled = true;
    held_.clear();
    if (owner_ != nullptr) owner_->enabled = true;
    owner_ = nullptr;
}

const HeadlessDesktop::Window* HeadlessDesktop::Find(const forms::Form& form) const {
    const auto window =
        std::ranges::find_if(windows_, [&](const Window* each) { return &each->form == &form; });
    return window != windows_.end() ? *window : nullptr;
}

WindowCalls HeadlessDesktop::CallsOf(const forms::Form& form) const {
    const Window* window = Find(form);
    return window != nullptr ? window->calls : WindowCalls{};
}

bool HeadlessDesktop::IsWindowEnabled(const forms::Form& form) const {
    const Window* window = Find(form);
    return window != nullptr && window->enabled;
}

bool HeadlessDesktop::IsWindowVisible(const forms::Form& form) const {
    const Window* window = Find(form);
    return window != nullptr && window->visible;
}

void HeadlessDesktop::ActivateByUser(forms::Form* form) {
    if (form == ActiveForm() || (form != nullptr && !IsWindowEnabled(*form))) return;
    const auto window =
        std::ranges::find_if(windows_, [&](const Window* each) { return &each->form == form; });
    if (window != windows_.end()) std::rotate(window, window + 1, windows_.end());
    if (ActiveForm() != nullptr) ActiveForm()->HandleDeactivate();
    if (form != nullptr) form->HandleActivate();
}

void HeadlessDesktop::Close(Window& window) {
    const bool wasTop = !windows_.empty() && windows_.back() == &window;
    std::erase(windows_, &window);
    if (!wasTop || ActiveForm() != nullptr) return;
    const auto next = std::ranges::find_if(windows_.rbegin(), windows_.rend(),
                                           [](const Window* each) { return each->enabled; });
    if (next != windows_.rend()) (*next)->form.HandleActivate();
}

bool HeadlessDesktop::ActivateHost() {
    if (hasHost) ActivateByUser(nullptr);
    return hasHost;
}

}  // namespace tavrin::tests
