#include "com/connection_point.h"

#include <olectl.h>
#include <tavrin_interfaces.h>

#include <utility>

#include "com/enumerator.h"
#include "win32/base/translation.h"

namespace tavrin::com {
namespace {

/// A listener may answer for the event interface alone, or for any IDispatch.
win32::ComPtr<IDispatch> EventInterfaceOf(IUnknown& sink) {
    win32::ComPtr<IDispatch> events;
    sink.QueryInterface(__uuidof(__Utile), events.ReceiveVoid());
    if (!events) sink.QueryInterface(__uuidof(IDispatch), events.ReceiveVoid());
    return events;
}

}  // namespace

ConnectionPoint::ConnectionPoint(Server& server, win32::ComPtr<IConnectionPointContainer> container,
                                 std::shared_ptr<EventSource> events)
    : server_(server),
      ticket_(server.Objects()),
      container_(std::move(container)),
      events_(std::move(events)) {}

HRESULT ConnectionPoint::GetConnectionInterface(IID* id) noexcept {
    if (id == nullptr) return E_POINTER;
    *id = __uuidof(__Utile);
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept {
    if (container == nullptr) return E_POINTER;
    return container_.CopyTo(container);
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) noexcept {
    if (cookie != nullptr) *cookie = 0;
    if (cookie == nullptr || sink == nullptr) return E_POINTER;
    return win32::Translated([&] {
        win32::ComPtr<IDispatch> events = EventInterfaceOf(*sink);
        if (!events) return CONNECT_E_CANNOTCONNECT;
        *cookie = events_->Advise(std::move(events));
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) noexcept {
    return win32::Translated([&] { return events_->Unadvise(cookie) ? S_OK : CONNECT_E_NOCONNECTION; });
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** enumerator) noexcept {
    if (enumerator == nullptr) return E_POINTER;
    *enumerator = nullptr;
    return win32::Translated([&] {
        *enumerator = win32::MakeObject<ConnectionEnumerator>(server_, events_->Connections()).Detach();
        return S_OK;
    });
}

}  // namespace tavrin::com
