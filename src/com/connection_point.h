#pragma once

#include <windows.h>

#include <ocidl.h>

#include <memory>

#include "com/event_source.h"
#include "com/server.h"
#include "win32/base/com_ptr.h"
#include "win32/base/unknown_object.h"

namespace tavrin::com {

/// Where listeners of `__Utile` are connected. Keeps its container alive.
class ConnectionPoint : public win32::UnknownObject<IConnectionPoint> {
  public:
    ConnectionPoint(Server& server, win32::ComPtr<IConnectionPointContainer> container,
                    std::shared_ptr<EventSource> events);

    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** enumerator) noexcept override;

  private:
    Server& server_;
    win32::ObjectCount::Ticket ticket_;
    win32::ComPtr<IConnectionPointContainer> container_;
    std::shared_ptr<EventSource> events_;
};

}  // namespace tavrin::com
