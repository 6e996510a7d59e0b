#include "win32/system_error.h"

#include <windows.h>

#include "data/error.h"
#include "win32/text.h"

namespace tavrin::win32 {

void ThrowLastError() {
    const HRESULT result = HRESULT_FROM_WIN32(GetLastError());
    throw data::Error(result, SystemMessage(result));
}

}  // namespace tavrin::win32
