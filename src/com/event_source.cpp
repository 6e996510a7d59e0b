#include "com/event_source.h"

#include <oleauto.h>

#include <algorithm>
#include <utility>

namespace tavrin::com {
namespace {

constexpr DISPID IesireId = 1;

void CallIesire(IDispatch& sink) {
    DISPPARAMS none{};
    sink.Invoke(IesireId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
}

}  // namespace

DWORD EventSource::Advise(win32::ComPtr<IDispatch> sink) {
    connections_.push_back({++lastCookie_, std::move(sink)});
    return lastCookie_;
}

bool EventSource::Unadvise(DWORD cookie) {
    const auto found =
        std::ranges::find_if(connections_, [&](const Connection& entry) { return entry.cookie == cookie; });
    if (found == connections_.end()) return false;
    // The listener's last reference may go with it, and its code run: the list is in order by then.
    const Connection leaving = std::move(*found);
    connections_.erase(found);
    return true;
}

void EventSource::RaiseIesire() noexcept try {
    const auto alive = shared_from_this();
    const std::vector<Connection> listeners = connections_;
    for (const Connection& listener : listeners)
        if (IsConnected(listener.cookie)) CallIesire(*listener.sink);
} catch (...) {
    // Without memory for the list nobody can be told.
}

bool EventSource::IsConnected(DWORD cookie) const {
    return std::ranges::any_of(connections_, [&](const Connection& entry) { return entry.cookie == cookie; });
}

}  // namespace tavrin::com
