#include "com/failure.h"

#include <oleauto.h>

#include <string>

#include "win32/base/com_ptr.h"
#include "win32/base/text.h"
#include "win32/base/variant.h"

namespace tavrin::com {
namespace {

constexpr wchar_t Source[] = L"Tavrin.Utile";

}  // namespace

void SetErrorInfo(const win32::Failure& failure, REFIID interfaceId) noexcept try {
    win32::ComPtr<ICreateErrorInfo> creator;
    if (FAILED(CreateErrorInfo(creator.Receive()))) return;
    std::wstring source = Source;
    std::wstring description = win32::ToWide(failure.description);
    creator->SetGUID(interfaceId);
    creator->SetSource(source.data());
    creator->SetDescription(description.data());
    ::SetErrorInfo(0, creator.As<IErrorInfo>().Get());
} catch (...) {
    // The result alone must do.
}

void FillExceptionInfo(const win32::Failure& failure, EXCEPINFO* info) noexcept {
    if (info == nullptr) return;
    *info = {};
    info->scode = failure.result;
    try {
        info->bstrSource = win32::Bstr(std::wstring_view(Source)).Detach();
        info->bstrDescription = win32::Bstr(std::string_view(failure.description)).Detach();
    } catch (...) {
        // The result alone must do.
    }
}

}  // namespace tavrin::com
