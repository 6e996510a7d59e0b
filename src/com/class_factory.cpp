#include "com/class_factory.h"

#include "com/utile.h"
#include "win32/base/translation.h"

namespace tavrin::com {

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return win32::Translated([&] { return win32::MakeObject<Utile>(server_)->QueryInterface(id, object); });
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
    lock != FALSE ? server_.Lock() : server_.Unlock();
    return S_OK;
}

}  // namespace tavrin::com
