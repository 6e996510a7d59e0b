#include "host/ado/fields_object.h"

#include <array>

#include "host/ado/session.h"
#include "host/ado/value_variant.h"
#include "win32/base/text.h"

namespace tavrin::host {

using win32::Variant;

EmbeddedRecordset& RecordsetRows::Open() const {
    if (rows == nullptr || !rows->IsOpen()) ado_error::ThrowClosed();
    return *rows;
}

std::span<const Member> FieldObject::Members() const {
    static constexpr std::array table{
        Member{L"Value", 0, Access::Get, 0, Run<&FieldObject::Value>},
        Member{L"Name", 1100, Access::Get, 0, Run<&FieldObject::Name>},
        Member{L"Type", 1102, Access::Get, 0, Run<&FieldObject::Type>},
        Member{L"DefinedSize", 1103, Access::Get, 0, Run<&FieldObject::DefinedSize>},
    };
    return table;
}

void FieldObject::OnUse(const Member& member) {
    recordset_->questions.Note(static_cast<int>(index_), member.name);
}

const FieldInfo& FieldObject::Info() const {
    const std::vector<FieldInfo>& fields = recordset_->Open().Fields();
    if (index_ >= fields.size()) ado_error::ThrowItemNotFound();
    return fields[index_];
}

Variant FieldObject::Value(const CallArguments&) {
    return ToVariant(recordset_->Open().Field(index_), Info().type);
}

Variant FieldObject::Name(const CallArguments&) {
    return Variant(std::string_view(Info().name));
}

Variant FieldObject::Type(const CallArguments&) {
    return Variant(DataTypeOf(Info().type));
}

Variant FieldObject::DefinedSize(const CallArguments&) {
    return Variant(std::int32_t{Info().definedSize});
}

std::span<const Member> FieldsObject::Members() const {
    static constexpr std::array table{
        Member{L"Item", 0, Access::Get, 1, Run<&FieldsObject::Item>},
        Member{L"Count", 0x60020000, Access::Get, 0, Run<&FieldsObject::Count>},
    };
    return table;
}

void FieldsObject::OnUse(const Member& member) {
    // An item is told apart by its argument; what is asked of it is seen there.
    if (member.maxArguments == 0) recordset_->questions.Note(Questions::OfFields, member.name);
}

Variant FieldsObject::Count(const CallArguments&) {
    const bool isOpen = recordset_->rows != nullptr && recordset_->rows->IsOpen();
    return Variant(static_cast<std::int32_t>(isOpen ? recordset_->rows->Fields().size() : 0));
}

Variant FieldsObject::Item(const CallArguments& arguments) {
    return AsVariant(FieldAt(arguments.At(0)));
}

win32::ComPtr<FieldObject> FieldsObject::FieldAt(const Variant& place) const {
    const bool isName = place.Type() == VT_BSTR;
    const std::size_t index = isName ? IndexOf(place.ToText()) : static_cast<std::size_t>(place.ToLong());
    if (index >= recordset_->Open().Fields().size()) ado_error::ThrowItemNotFound();
    return win32::MakeObject<FieldObject>(recordset_, index);
}

std::size_t FieldsObject::IndexOf(const std::string& name) const {
    const std::wstring wanted = win32::ToWide(name);
    const std::vector<FieldInfo>& fields = recordset_->Open().Fields();
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const std::wstring candidate = win32::ToWide(fields[index].name);
        if (CompareStringOrdinal(wanted.c_str(), -1, candidate.c_str(), -1, TRUE) == CSTR_EQUAL) return index;
    }
    ado_error::ThrowItemNotFound();
}

}  // namespace tavrin::host
