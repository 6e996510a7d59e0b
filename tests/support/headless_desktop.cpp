#include "support/headless_desktop.h"

#include <algorithm>

namespace tavrin::tests {

class HeadlessDesktop::Window : public forms::FormPeer {
  public:
    Window(HeadlessDesktop& desktop, forms::Form& shown) : form(shown), desktop_(desktop) {
        desktop_.windows_.push_back(this);
    }
    ~Window() override { std::erase(desktop_.windows_, this); }

    void Changed(forms::FormAspect /*aspect*/) override {}
    void Activate() override {
        ++calls.activated;
        desktop_.ActivateByUser(&form);
    }
    void KeepOnTop() override { ++calls.keptOnTop; }
    void DragByCaption() override { ++calls.draggedByCaption; }
    void Close() override { desktop_.Close(*this); }

    forms::Form& form;
    WindowCalls calls;

  private:
    HeadlessDesktop& desktop_;
};

HeadlessDesktop::HeadlessDesktop() = default;

HeadlessDesktop::~HeadlessDesktop() {
    UnloadAll();
}

std::unique_ptr<forms::FormPeer> HeadlessDesktop::CreatePeer(forms::Form& form) {
    if (whenCreating) whenCreating(form);
    return std::make_unique<Window>(*this, form);
}

forms::Size HeadlessDesktop::FrameSize(forms::BorderStyle border) const {
    return border == forms::BorderStyle::Borderless ? forms::Size{} : forms::Size{90, 435};
}

void HeadlessDesktop::ReportError(std::int32_t number, const std::string& description) noexcept {
    reports.push_back({number, description});
    if (whileReporting) whileReporting();
}

WindowCalls HeadlessDesktop::CallsOf(const forms::Form& form) const {
    const auto window =
        std::ranges::find_if(windows_, [&](const Window* each) { return &each->form == &form; });
    return window != windows_.end() ? (*window)->calls : WindowCalls{};
}

void HeadlessDesktop::ActivateByUser(forms::Form* form) {
    if (form == ActiveForm() || (form != nullptr && !form->Enabled())) return;
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
                                           [](const Window* each) { return each->form.Enabled(); });
    if (next != windows_.rend()) (*next)->form.HandleActivate();
}

}  // namespace tavrin::tests
