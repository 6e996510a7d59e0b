#include "win32/base/system_error.h"

#include "data/error.h"
#include "win32/base/text.h"

namespace tavrin::win32 {

void ThrowSystemError(HRESULT result) {
    throw data::Error(result, SystemMessage(result));
}

void ThrowLastError() {
    ThrowSystemError(HRESULT_FROM_WIN32(GetLastError()));
}

}  // namespace tavrin::win32
