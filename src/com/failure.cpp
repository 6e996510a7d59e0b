#include "com/failure.h"

#include <oleauto.h>

#include <new>

#include "data/error.h"
#include "win32/com_ptr.h"
#include "win32/text.h"
#include "win32/variant.h"

namespace tavrin::com {
namespace {

constexpr wchar_t Source[] = L"Tavrin.Utile";

HRESULT ResultOf(std::int32_t number) {
    if (number < 0) return number;
    return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

Failure SystemFailure(HRESULT result) {
    return {result, win32::SystemMessage(result)};
}

}  // namespace

Failure CurrentFailure() noexcept try {
    try {
        throw;
    } catch (const data::Error& error) {
        return {ResultOf(error.Number()), error.Description()};
    } catch (const std::bad_alloc&) {
        return SystemFailure(E_OUTOFMEMORY);
    } catch (const std::exception& error) {
        return {E_FAIL, error.what()};
    } catch (...) {
        return SystemFailure(E_UNEXPECTED);
    }
} catch (...) {
    return {E_OUTOFMEMORY, {}};
}

void SetErrorInfo(const Failure& failure, REFIID interfaceId) noexcept try {
    win32::ComPtr<ICreateErrorInfo> creator;
    if (FAILED(CreateErrorInfo(creator.Receive()))) return;
    std::wstring source = Source;
    std::wstring description = win32::ToWide(failure.description);
    creator->SetGUID(interfaceId);
    creator->SetSource(source.data());
    creator->SetDescription(description.data());
    ::SetErrorInfo(0, creator.As<IErrorInfo>().Get());
} catch (const std::bad_alloc&) {
    // The result alone must do.
}

void FillExceptionInfo(const Failure& failure, EXCEPINFO* info) noexcept {
    if (info == nullptr) return;
    *info = {};
    info->scode = failure.result;
    try {
        info->bstrSource = win32::Bstr(std::wstring_view(Source)).Detach();
        info->bstrDescription = win32::Bstr(std::string_view(failure.description)).Detach();
    } catch (const std::bad_alloc&) {
        // The result alone must do.
    }
}

}  // namespace tavrin::com
