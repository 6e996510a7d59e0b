#include "win32/window/name_property.h"

#include "win32/base/text.h"

namespace tavrin::win32 {

namespace {
constexpr wchar_t PropertyName[] = L"Tavrin.Name";
}

NameProperty::NameProperty(HWND window, std::string_view name)
    : window_(window), atom_(GlobalAddAtomW(ToWide(name).c_str())) {
    SetPropW(window_, PropertyName, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom_)));
}

NameProperty::~NameProperty() {
    RemovePropW(window_, PropertyName);
    if (atom_ != 0) GlobalDeleteAtom(atom_);
}

}  // namespace tavrin::win32
