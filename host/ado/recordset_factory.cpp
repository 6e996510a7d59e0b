#include "host/ado/recordset_factory.h"

#include <combaseapi.h>

#include <new>

#include "data/error.h"
#include "host/ado/recordset_object.h"
#include "win32/text.h"

namespace tavrin::host {
namespace {

constexpr CLSID RecordsetClass = {
    0x00000535, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};

class RecordsetFactory : public win32::UnknownObject<IClassFactory> {
  public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        try {
            return win32::MakeObject<RecordsetObject>()->QueryInterface(id, object);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }
};

}  // namespace

RecordsetRegistration::RecordsetRegistration() {
    const auto factory = win32::MakeObject<RecordsetFactory>();
    const HRESULT registered = CoRegisterClassObject(RecordsetClass, factory.Get(), CLSCTX_INPROC_SERVER,
                                                     REGCLS_MULTIPLEUSE, &cookie_);
    if (FAILED(registered)) throw data::Error(registered, win32::SystemMessage(registered));
}

RecordsetRegistration::~RecordsetRegistration() {
    CoRevokeClassObject(cookie_);
}

}  // namespace tavrin::host
