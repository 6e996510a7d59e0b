#include "forms/model/desktop.h"

#include <algorithm>
#include <utility>

#include "data/error.h"
#include "forms/model/form.h"

namespace tavrin::forms {

Desktop::~Desktop() = default;

void Desktop::Add(Form& form) {
    forms_.push_back(&form);
    TellOf(form, " opened");
}

void Desktop::Remove(Form& form) {
    std::erase(forms_, &form);
    TellOf(form, " closed");
    if (activeForm_ == &form) activeForm_ = nullptr;
    // Its destructor removes a form that was never unloaded; then there is nothing left to keep alive.
    if (auto self = form.weak_from_this().lock()) unloaded_.push_back(std::move(self));
}

void Desktop::ActivateNeighbour(const Form& form, int step) {
    std::vector<Form*> open = forms_;
    std::erase_if(
        open, [&](const Form* each) { return each != &form && !(each->Visible() && each->AcceptsInput()); });
    const auto count = std::ssize(open);
    const auto place = std::ranges::find(open, &form) - open.begin() + step;
    const bool isBeyond = place < 0 || place >= count;
    if (!isBeyond || !ActivateHost()) open[static_cast<std::size_t>((place + count) % count)]->Show();
}

void Desktop::UnloadAll() {
    while (!forms_.empty())
        forms_.back()->Unload();
}

void Desktop::BeginMessage() {
    StopWaiting();
    if (messageDepth_ == 0) {
        // The button that is down will come up over the message.
        for (Form* form : forms_)
            form->EndPress();
        HoldWindows();
    }
    ++messageDepth_;
    ++messageCount_;
}

void Desktop::EndMessage() noexcept {
    StopWaiting();
    if (--messageDepth_ > 0) return;
    ReleaseWindows();
    ReconcileForms();
}

void Desktop::ReconcileForms() noexcept {
    // NOLINTNEXTLINE(modernize-loop-convert): what the platform tells meanwhile may close a form
    for (std::size_t i = 0; i < forms_.size(); ++i)
        forms_[i]->Reconcile();
}

void Desktop::ReportCurrentException(const Origin& origin) noexcept try {
    const data::Error error = data::CurrentError();
    // A provider's description may quote what was typed.
    data::Tell(listener_.get(), [&] {
        const std::string line = "error " + std::to_string(error.Number());
        return origin.form != nullptr ? line + " in " + origin.HandlerName() : line;
    });
    ReportError({error.Number(), error.Description(), origin.Window(), origin.Action()});
} catch (...) {
    ReportError({data::error_number::OutOfMemory, {}});  // no memory for the words either
}

void Desktop::TellOf(const Form& form, std::string_view happening) const noexcept {
    data::Tell(listener_.get(), [&] { return ("window " + form.Name()).append(happening); });
}

void Desktop::ExpectWait() {
    if (waits_ || !IsDispatching()) return;
    waits_ = true;
    BeginWait();
}

void Desktop::StopWaiting() noexcept {
    if (std::exchange(waits_, false)) EndWait();
}

void Desktop::EndDispatch() noexcept {
    StopWaiting();
    ReleaseUnloaded();
}

void Desktop::ReleaseUnloaded() noexcept {
    // Letting a form go may unload others in turn; they belong to the next round.
    while (!unloaded_.empty()) {
        const std::vector<std::shared_ptr<Form>> round = std::exchange(unloaded_, {});
    }
}

}  // namespace tavrin::forms
