#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tavrin::com {

/// For whom a class is registered. Writing for the machine needs an administrator; what stands for the user
/// goes before it.
enum class Scope { Machine, User };

/// One value below a scope's classes; an empty name is the key's own value.
struct RegistryEntry {
    std::wstring key;
    std::wstring name;
    std::wstring value;
};

/// The classes of one scope in the registry, in the view of the module's own bitness.
class Registry {
  public:
    explicit Registry(Scope scope) : scope_(scope) {}

    bool Write(const RegistryEntry& entry) const;

    /// The own value of a key, where it has one.
    std::optional<std::wstring> Read(const std::wstring& key) const;

    /// Whether the other bitness has the key, where 64-bit Windows keeps it for each apart.
    bool IsInOtherView(const std::wstring& key) const;

    /// Removes a key that holds no further keys. \return whether it is not there any more
    bool Remove(const std::wstring& key) const;

    /// Removes a key with all that is in it. \return whether it is not there any more
    bool RemoveTree(const std::wstring& key) const;

    /// Removes a key if nothing at all is in it; others may share it.
    void RemoveIfEmpty(const std::wstring& key) const;

  private:
    HKEY Root() const;
    std::wstring PathOf(const std::wstring& key) const;

    Scope scope_;
};

}  // namespace tavrin::com
