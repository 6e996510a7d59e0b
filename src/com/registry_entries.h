#pragma once

#include <string>
#include <vector>

#include "com/registry.h"
#include "com/server.h"

namespace tavrin::com {

// What stands in the registry about the component. Keys stand before the keys below them.

/// The class and its ProgID.
std::vector<RegistryEntry> ClassEntries(Server& server);

/// The interfaces, by which other apartments reach an object.
std::vector<RegistryEntry> InterfaceEntries(Server& server);

/// The type library: the 32-bit and the 64-bit component share all of it but the file.
std::vector<RegistryEntry> TypeLibraryEntries(Server& server);

/// The key of the type library's file, which is this bitness' own.
std::wstring TypeLibraryFileKey(Server& server);

}  // namespace tavrin::com
