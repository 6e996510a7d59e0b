#include "host/ado/errors_object.h"

#include <array>

namespace tavrin::host {

using win32::Variant;

std::span<const Member> ErrorObject::Members() const {
    static constexpr std::array table{
        Member{L"Description", 0, Access::Get, 0, Run<&ErrorObject::Description>},
        Member{L"Number", 0x60020000, Access::Get, 0, Run<&ErrorObject::Number>},
        Member{L"Source", 0x60020001, Access::Get, 0, Run<&ErrorObject::Source>},
        Member{L"NativeError", 0x60020006, Access::Get, 0, Run<&ErrorObject::NativeError>},
    };
    return table;
}

std::span<const Member> ErrorsObject::Members() const {
    static constexpr std::array table{
        Member{L"Item", 0, Access::Get, 1, Run<&ErrorsObject::Item>},
        Member{L"Count", 0x60020000, Access::Get, 0, Run<&ErrorsObject::Count>},
        Member{L"Clear", 0x60030001, Access::Call, 0, Run<&ErrorsObject::Clear>},
    };
    return table;
}

Variant ErrorsObject::Count(const CallArguments&) {
    return Variant(static_cast<std::int32_t>(session_->errors.size()));
}

Variant ErrorsObject::Item(const CallArguments& arguments) {
    const std::int32_t index = arguments.LongOr(0, -1);
    if (index < 0 || static_cast<std::size_t>(index) >= session_->errors.size())
        ado_error::ThrowItemNotFound();
    return AsVariant(win32::MakeObject<ErrorObject>(session_->errors[static_cast<std::size_t>(index)]));
}

Variant ErrorsObject::Clear(const CallArguments&) {
    session_->errors.clear();
    return {};
}

}  // namespace tavrin::host
