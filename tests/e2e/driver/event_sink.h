#pragma once

#include <windows.h>

#include <oaidl.h>

#include <functional>

#include "win32/base/unknown_object.h"

namespace tavrin::e2e {

/// A host's listener for the component's event: counts it, then does what the test has set. Lives on the
/// host's thread.
class EventSink final : public win32::UnknownObject<IDispatch> {
  public:
    int Iesire() const { return count_; }

    /// What happens at the event, and what the call answers.
    std::function<HRESULT()> onIesire;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* call, VARIANT*,
                                     EXCEPINFO*, UINT*) noexcept override;

  private:
    std::atomic<int> count_ = 0;
};

}  // namespace tavrin::e2e
