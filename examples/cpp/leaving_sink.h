// Hears the event Iesire. A late-bound listener is any object with IDispatch; the event's number is 1.
#pragma once

#include <windows.h>

#include <ocidl.h>

/// Lives on the stack of the one thread that uses it, so it counts no references.
class LeavingSink final : public IDispatch {
  public:
    explicit LeavingSink(DWORD thread) : thread_(thread) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    /// The call comes from inside the component, on the way out of a window: note it, act on it later.
    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        if (event == 1) PostThreadMessageW(thread_, WM_QUIT, 0, 0);
        return S_OK;
    }

  private:
    DWORD thread_;
};
