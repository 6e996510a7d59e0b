#include "host/ado/recordset_factory.h"

#include <combaseapi.h>

#include "data/error.h"
#include "host/ado/object_factory.h"
#include "host/ado/recordset_object.h"
#include "win32/base/text.h"

namespace tavrin::host {

RecordsetRegistration::RecordsetRegistration() {
    const auto factory = win32::MakeObject<ObjectFactory<RecordsetObject>>();
    const HRESULT registered = CoRegisterClassObject(AdoRecordsetClass, factory.Get(), CLSCTX_INPROC_SERVER,
                                                     REGCLS_MULTIPLEUSE, &cookie_);
    if (FAILED(registered)) throw data::Error(registered, win32::SystemMessage(registered));
}

RecordsetRegistration::~RecordsetRegistration() {
    CoRevokeClassObject(cookie_);
}

}  // namespace tavrin::host
