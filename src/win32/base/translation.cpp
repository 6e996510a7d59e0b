#include "win32/base/translation.h"

#include <cstdint>

#include "data/error.h"

namespace tavrin::win32 {
namespace {

HRESULT ResultOf(std::int32_t number) {
    if (number < 0) return number;
    if (number == data::error_number::OutOfMemory) return E_OUTOFMEMORY;
    return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

}  // namespace

Failure CurrentFailure() noexcept try {
    const data::Error error = data::CurrentError();
    return {ResultOf(error.Number()), error.Description()};
} catch (...) {
    return {E_OUTOFMEMORY, {}};  // no memory for the words either
}

}  // namespace tavrin::win32
