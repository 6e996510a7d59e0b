#pragma once

#include <windows.h>

#include <unknwn.h>

#include "com/server.h"
#include "win32/base/unknown_object.h"

namespace tavrin::com {

/// Makes `Utile` objects.
class ClassFactory : public win32::UnknownObject<IClassFactory> {
  public:
    explicit ClassFactory(Server& server) : server_(server), ticket_(server.Objects()) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

  private:
    Server& server_;
    win32::ObjectCount::Ticket ticket_;
};

}  // namespace tavrin::com
