#include "com/server.h"

#include <utility>

#include "com/composition.h"
#include "win32/desktop/message_service.h"

namespace tavrin::com {

shell::Application& Server::Application() {
    if (application_ != nullptr) return *application_;
    auto desktop = std::make_unique<win32::Desktop>(instance_);
    auto application = std::make_unique<shell::Application>(
        *desktop, [desktop = desktop.get()] { return std::make_unique<win32::MessageService>(*desktop); });
    AddWindows(*application);
    desktop_ = std::move(desktop);
    application_ = std::move(application);
    return *application_;
}

bool Server::Retire() {
    if (IsNeeded()) return false;
    // Letting go of the host's objects runs the host's code, which may call in again.
    {
        const auto desktop = std::move(desktop_);
        const auto application = std::move(application_);
        types_.Release();
    }
    return application_ == nullptr && !IsNeeded();
}

bool Server::IsNeeded() const {
    if (locks_ > 0 || objects_.Alive() > 0) return true;
    if (desktop_ == nullptr) return false;
    return !desktop_->Forms().empty() || desktop_->IsDispatching() || desktop_->IsInUse();
}

}  // namespace tavrin::com
