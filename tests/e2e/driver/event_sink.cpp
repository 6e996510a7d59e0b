#include "e2e/driver/event_sink.h"

namespace tavrin::e2e {

namespace {
constexpr DISPID IesireId = 1;
}

HRESULT EventSink::GetTypeInfoCount(UINT* count) noexcept {
    *count = 0;
    return S_OK;
}

HRESULT EventSink::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* call, VARIANT*, EXCEPINFO*,
                          UINT*) noexcept {
    if (member != IesireId) return DISP_E_MEMBERNOTFOUND;
    if (call->cArgs != 0) return DISP_E_BADPARAMCOUNT;
    ++count_;
    return onIesire ? onIesire() : S_OK;
}

}  // namespace tavrin::e2e
