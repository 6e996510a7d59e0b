#include "host/automation/call_arguments.h"

#include <utility>

namespace tavrin::host {

using win32::Variant;

const VARIANT* CallArguments::Raw(std::size_t index) const {
    return index < call_.cArgs ? &call_.rgvarg[call_.cArgs - 1 - index] : nullptr;
}

Variant CallArguments::At(std::size_t index) const {
    const VARIANT* argument = Raw(index);
    return argument != nullptr ? Variant::Copy(*argument) : Variant::Missing();
}

std::int32_t CallArguments::LongOr(std::size_t index, std::int32_t otherwise) const {
    const Variant argument = At(index);
    return argument.IsMissing() ? otherwise : argument.ToLong();
}

void CallArguments::GiveBack(std::size_t index, std::int32_t number) const {
    const VARIANT* argument = Raw(index);
    if (argument == nullptr) return;
    if (argument->vt == (VT_BYREF | VT_I4)) *argument->plVal = number;
    if (argument->vt != (VT_BYREF | VT_VARIANT)) return;
    Variant value(number);
    VariantClear(argument->pvarVal);
    *argument->pvarVal = value.Detach();
}

}  // namespace tavrin::host
