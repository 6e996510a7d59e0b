#include "shell/application.h"

#include <algorithm>
#include <utility>

#include "data/text/date.h"
#include "data/traced_connection.h"

namespace tavrin::shell {
namespace {

std::string Describe(const HostContext& context) {
    return "date " + data::FormatYearMonthDay(context.workDate) + ", year " +
           std::to_string(context.workYear) + ", company " + std::to_string(context.companyId) +
           (context.connection ? ", a connection" : ", no connection");
}

}  // namespace

Application::Application(forms::Desktop& desktop, MessageServiceFactory createMessageService)
    : desktop_(desktop), createMessageService_(std::move(createMessageService)) {
    context.beforeQuery = [this] { desktop_.ExpectWait(); };
}

void Application::SetListener(std::shared_ptr<data::Diagnosis> listener) {
    data::Tell(listener.get(), [&] { return "Apel with " + Describe(context); });
    context.trace = listener ? std::make_shared<data::TracedConnection>(listener) : nullptr;
    desktop_.SetListener(std::move(listener));
}

Application::~Application() {
    desktop_.UnloadAll();
    for (const Slot& slot : slots_)
        slot.form->whenUnloaded = nullptr;
}

void Application::CreateMessageService() {
    messageService_ = createMessageService_();
}

int Application::ShowMessage(const std::string& prompt, int icon, int buttons, const std::string& title) {
    if (!messageService_) CreateMessageService();
    // A window that opens while the message is up puts a new service into the slot; this one lives until its
    // message has been answered.
    const std::shared_ptr<MessageService> current = messageService_;
    const forms::Desktop::MessageScope scope(desktop_);
    return current->ShowMessage(prompt, icon, buttons, title);
}

Application::Answer Application::Ask(const forms::Form& asking, const std::string& question,
                                     const std::string& title) {
    const bool tookInput = asking.Enabled();
    const bool yes = ShowMessage(question, message::Question, message::YesNo, title) == message::AnswerYes;
    if (!asking.IsLoaded() || asking.Enabled() != tookInput) return Answer::Withdrawn;
    return yes ? Answer::Yes : Answer::No;
}

void Application::UnloadWindow(std::string_view name) {
    const auto& open = desktop_.Forms();
    const auto found = std::ranges::find(open, name, &forms::Form::Name);
    if (found != open.end()) (*found)->Unload();
}

void Application::AddLauncher(std::string windowName, Launcher launcher) {
    catalogue_.push_back({std::move(windowName), std::move(launcher)});
}

void Application::Launch(std::string_view windowName) {
    const auto entry = std::ranges::find(catalogue_, windowName, &CatalogueEntry::name);
    if (entry != catalogue_.end()) entry->launch(*this);
}

forms::Form* Application::Find(std::type_index type) const {
    // A window that is about to go is no one's default any more: the host may open it anew while it is told.
    const auto slot = std::ranges::find_if(
        slots_, [&](const Slot& entry) { return entry.type == type && !entry.form->IsUnloading(); });
    return slot != slots_.end() ? slot->form.get() : nullptr;
}

forms::Form* Application::Keep(std::type_index type, std::shared_ptr<forms::Form> form) {
    form->whenUnloaded = [this](forms::Form& unloaded) { Forget(unloaded); };
    slots_.push_back({type, std::move(form)});
    return slots_.back().form.get();
}

void Application::Forget(forms::Form& form) {
    std::erase_if(slots_, [&](const Slot& slot) { return slot.form.get() == &form; });
}

}  // namespace tavrin::shell
