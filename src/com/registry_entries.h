#pragma once

#include <string>
#include <vector>

#include "com/registry.h"

namespace tavrin::com {

/// A group of registry entries that is written and removed as one (registration.list).
enum class Part { Program, Class, File, Library };

/// The entries of a part for a component that lies in that file. A key stands before the keys below it.
std::vector<RegistryEntry> EntriesOf(Part part, const std::wstring& file);

/// The key whose own value names the component's file; the class and the type library's file have one.
std::wstring FileKeyOf(Part part);

}  // namespace tavrin::com
