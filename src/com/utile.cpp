#include "com/utile.h"

#include <olectl.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "com/composition.h"
#include "com/connection_point.h"
#include "com/enumerator.h"
#include "win32/ado/ado_connection.h"
#include "win32/base/debug_output.h"
#include "win32/base/translation.h"

namespace tavrin::com {
namespace {

constexpr DISPID ApelId = 1;

/// The same object stays the same connection: windows compare it with the one that they have read from.
std::shared_ptr<data::Connection> ConnectionOf(win32::ComPtr<IDispatch> object,
                                               std::shared_ptr<data::Connection> present) {
    if (!object) return nullptr;  // the first query tells
    const auto* known = dynamic_cast<const win32::AdoConnection*>(present.get());
    if (known != nullptr && known->IsOf(object)) return present;
    return std::make_shared<win32::AdoConnection>(std::move(object));
}

}  // namespace

Utile::Utile(Server& server)
    : server_(server), ticket_(server.Objects()), events_(std::make_shared<EventSource>()) {}

HRESULT Utile::Apel(IDispatch** cnn, DATE argDataProgram, short bExercitiuInCurs, LONG IdsoCN) noexcept {
    if (cnn == nullptr) return E_POINTER;
    return win32::Translated([&] {
        const win32::Failure failure =
            OpenUtilities({win32::ComPtr<IDispatch>(*cnn), data::OleDate{argDataProgram}, bExercitiuInCurs,
                           static_cast<std::int32_t>(IdsoCN)});
        if (FAILED(failure.result)) SetErrorInfo(failure, __uuidof(_Utile));
        return failure.result;
    });
}

win32::Failure Utile::OpenUtilities(ApelArguments arguments) noexcept try {
    shell::Application& application = server_.Application();
    const forms::Desktop::DispatchScope scope(application.Desktop());
    shell::HostContext& context = application.context;
    context.companyId = arguments.companyId;
    context.workDate = arguments.workDate;
    context.connection = ConnectionOf(std::move(arguments.connection), context.connection);
    context.workYear = arguments.workYear;
    context.caller = events_;
    application.SetListener(win32::FindDebugListener());
    OpenPalette(application);
    return {};
} catch (...) {
    return win32::CurrentFailure();
}

HRESULT Utile::GetTypeInfoCount(UINT* count) noexcept {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT Utile::GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return win32::Translated([&] { return server_.Types().Find(__uuidof(_Utile), info); });
}

HRESULT Utile::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
    if (!IsEqualIID(id, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr) return E_POINTER;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    return win32::Translated([&] {
        win32::ComPtr<ITypeInfo> info;
        const HRESULT found = server_.Types().Find(__uuidof(_Utile), info.Receive());
        return FAILED(found) ? found : DispGetIDsOfNames(info.Get(), names, count, ids);
    });
}

HRESULT Utile::Invoke(DISPID member, REFIID id, LCID locale, WORD kind, DISPPARAMS* call, VARIANT* result,
                      EXCEPINFO* exception, UINT* badArgument) noexcept {
    if (result != nullptr) VariantInit(result);
    if (!IsEqualIID(id, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (member != ApelId || (kind & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
    if (call == nullptr) return E_POINTER;
    return win32::Translated([&] { return InvokeApel(*call, locale, exception, badArgument); });
}

HRESULT Utile::InvokeApel(const DISPPARAMS& call, LCID locale, EXCEPINFO* exception, UINT* badArgument) {
    ApelArguments arguments;
    UINT place = 0;
    const HRESULT read = ReadApelArguments(call, locale, arguments, place);
    if (FAILED(read)) {
        if (badArgument != nullptr) *badArgument = place;
        return read;
    }
    const win32::Failure failure = OpenUtilities(std::move(arguments));
    if (SUCCEEDED(failure.result)) return S_OK;
    FillExceptionInfo(failure, exception);
    return DISP_E_EXCEPTION;
}

HRESULT Utile::EnumConnectionPoints(IEnumConnectionPoints** enumerator) noexcept {
    if (enumerator == nullptr) return E_POINTER;
    *enumerator = nullptr;
    return win32::Translated([&] {
        std::vector<win32::ComPtr<IConnectionPoint>> points{MakeConnectionPoint()};
        *enumerator = win32::MakeObject<ConnectionPointEnumerator>(server_, std::move(points)).Detach();
        return S_OK;
    });
}

HRESULT Utile::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
    if (point == nullptr) return E_POINTER;
    *point = nullptr;
    if (!IsEqualIID(id, __uuidof(__Utile))) return CONNECT_E_NOCONNECTION;
    return win32::Translated([&] {
        *point = MakeConnectionPoint().Detach();
        return S_OK;
    });
}

win32::ComPtr<IConnectionPoint> Utile::MakeConnectionPoint() {
    return win32::MakeObject<ConnectionPoint>(server_, win32::ComPtr<IConnectionPointContainer>(this),
                                              events_);
}

HRESULT Utile::GetClassInfo(ITypeInfo** info) noexcept {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return win32::Translated([&] { return server_.Types().Find(__uuidof(::Utile), info); });
}

HRESULT Utile::GetGUID(DWORD kind, GUID* id) noexcept {
    if (id == nullptr) return E_POINTER;
    *id = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
    *id = __uuidof(__Utile);
    return S_OK;
}

HRESULT Utile::InterfaceSupportsErrorInfo(REFIID id) noexcept {
    return IsEqualIID(id, __uuidof(_Utile)) ? S_OK : S_FALSE;
}

}  // namespace tavrin::com
