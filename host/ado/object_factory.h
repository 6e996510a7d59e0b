#pragma once

#include <windows.h>

#include <unknwn.h>

#include <functional>
#include <utility>

#include "win32/base/com_ptr.h"
#include "win32/base/unknown_object.h"

namespace tavrin::host {

// ADO's own class ids: who asks the system for ADO is answered by the host's objects.
inline constexpr CLSID AdoConnectionClass = {
    0x00000514, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};
inline constexpr CLSID AdoRecordsetClass = {
    0x00000535, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};

/// Makes objects of one class, each from the same arguments.
template <class Object>
class ObjectFactory : public win32::UnknownObject<IClassFactory> {
  public:
    using Maker = std::function<win32::ComPtr<Object>()>;

    explicit ObjectFactory(Maker make = [] { return win32::MakeObject<Object>(); })
        : make_(std::move(make)) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        try {
            return make_()->QueryInterface(id, object);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }

  private:
    Maker make_;
};

}  // namespace tavrin::host
