#include "e2e/driver/accessible_reader.h"

#include <algorithm>

#include "e2e/driver/wait.h"
#include "win32/base/com_ptr.h"
#include "win32/base/text.h"
#include "win32/base/variant.h"

namespace tavrin::e2e {

namespace {

using win32::Bstr;
using win32::ComPtr;
using win32::ToUtf8;
using win32::Variant;

VARIANT Part(int number) {
    VARIANT part;
    VariantInit(&part);
    part.vt = VT_I4;
    part.lVal = number;
    return part;
}

template <class TextGetter>
std::string ReadText(IAccessible& object, int part, TextGetter getter) {
    BSTR text = nullptr;
    if (FAILED((object.*getter)(Part(part), &text))) throw DriverError("an accessible text cannot be read");
    return ToUtf8(Bstr::Attach(text).View());
}

AccessibleFacts ReadFacts(IAccessible& object, int part) {
    AccessibleFacts facts;
    facts.name = ReadText(object, part, &IAccessible::get_accName);
    facts.value = ReadText(object, part, &IAccessible::get_accValue);
    facts.description = ReadText(object, part, &IAccessible::get_accDescription);
    facts.shortcut = ReadText(object, part, &IAccessible::get_accKeyboardShortcut);
    facts.defaultAction = ReadText(object, part, &IAccessible::get_accDefaultAction);
    Variant role, state;
    if (FAILED(object.get_accRole(Part(part), role.Receive())) ||
        FAILED(object.get_accState(Part(part), state.Receive()))) {
        throw DriverError("an accessible role or state cannot be read");
    }
    facts.role = role.ToLong();
    facts.state = state.ToLong();
    LONG left = 0, top = 0, width = 0, height = 0;
    object.accLocation(&left, &top, &width, &height, Part(part));
    facts.place = {left, top, left + width, top + height};
    LONG count = 0;
    if (part == CHILDID_SELF) object.get_accChildCount(&count);
    facts.childCount = static_cast<int>(count);
    return facts;
}

}  // namespace

ComPtr<IAccessible> OpenAccessible(const Window& control) {
    ComPtr<IAccessible> object;
    const HRESULT result = AccessibleObjectFromWindow(control.Handle(), static_cast<DWORD>(OBJID_CLIENT),
                                                      __uuidof(IAccessible), object.ReceiveVoid());
    if (FAILED(result) || !object) throw DriverError(control.Name() + " is not accessible");
    return object;
}

AccessibleFacts ReadAccessible(UiThread& thread, const Window& control) {
    return thread.Call([&] { return ReadFacts(*OpenAccessible(control), CHILDID_SELF); });
}

std::vector<AccessibleFacts> ReadParts(UiThread& thread, const Window& control) {
    return thread.Call([&] {
        const ComPtr<IAccessible> object = OpenAccessible(control);
        std::vector<AccessibleFacts> parts;
        const int count = ReadFacts(*object, CHILDID_SELF).childCount;
        for (int part = 1; part <= count; ++part)
            parts.push_back(ReadFacts(*object, part));
        return parts;
    });
}

TableTexts ReadTable(UiThread& thread, const Window& table) {
    const std::vector<AccessibleFacts> parts = ReadParts(thread, table);
    const auto isHeader = [](const AccessibleFacts& part) { return part.role == ROLE_SYSTEM_COLUMNHEADER; };
    const auto columns = static_cast<std::size_t>(std::ranges::count_if(parts, isHeader));
    TableTexts rows;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i % columns == 0) rows.emplace_back();
        rows.back().push_back(isHeader(parts[i]) ? parts[i].name : parts[i].value);
    }
    return rows;
}

HRESULT DoDefaultAction(UiThread& thread, const Window& control) {
    return thread.Call([&] { return OpenAccessible(control)->accDoDefaultAction(Part(CHILDID_SELF)); });
}

}  // namespace tavrin::e2e
