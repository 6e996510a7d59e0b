#include "e2e/driver/registry_snapshot.h"

#include <windows.h>

#include <array>
#include <vector>

#include "win32/base/text.h"

namespace tavrin::e2e {

namespace {

constexpr std::size_t LongestName = 16384;

class Key {
  public:
    Key(HKEY parent, const std::wstring& path) { RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key_); }
    ~Key() {
        if (key_ != nullptr) RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    HKEY Get() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

class Recorder {
  public:
    explicit Recorder(RegistrySnapshot& snapshot) : snapshot_(snapshot), name_(LongestName) {}

    void Record(HKEY parent, const std::wstring& name, const std::string& path) {
        const Key key(parent, name);
        if (key.Get() == nullptr) return;
        snapshot_[path + "\\"] = "";
        RecordValues(key.Get(), path);
        for (DWORD index = 0; Next(index, key.Get()); ++index) {
            const std::wstring child(name_.data());
            Record(key.Get(), child, path + "\\" + win32::ToUtf8(child));
        }
    }

  private:
    bool Next(DWORD index, HKEY key) {
        auto length = static_cast<DWORD>(name_.size());
        return RegEnumKeyExW(key, index, name_.data(), &length, nullptr, nullptr, nullptr, nullptr) ==
               ERROR_SUCCESS;
    }

    void RecordValues(HKEY key, const std::string& path) {
        std::array<char, 4096> data{};
        for (DWORD index = 0;; ++index) {
            auto length = static_cast<DWORD>(name_.size());
            auto size = static_cast<DWORD>(data.size());
            const LSTATUS result = RegEnumValueW(key, index, name_.data(), &length, nullptr, nullptr,
                                                 reinterpret_cast<BYTE*>(data.data()), &size);
            if (result == ERROR_NO_MORE_ITEMS) return;
            const bool complete = result == ERROR_SUCCESS;
            snapshot_[path + " : " + win32::ToUtf8(name_.data())] =
                complete ? std::string(data.data(), size) : "";
            if (!complete && result != ERROR_MORE_DATA) return;
        }
    }

    RegistrySnapshot& snapshot_;
    std::vector<wchar_t> name_;
};

}  // namespace

RegistrySnapshot TakeRegistrySnapshot() {
    RegistrySnapshot snapshot;
    Recorder recorder(snapshot);
    recorder.Record(HKEY_LOCAL_MACHINE, L"Software\\Classes", "HKLM");
    recorder.Record(HKEY_CURRENT_USER, L"Software\\Classes", "HKCU");
    return snapshot;
}

RegistrySnapshot Missing(const RegistrySnapshot& from, const RegistrySnapshot& in) {
    RegistrySnapshot missing;
    for (const auto& [path, data] : from) {
        const auto found = in.find(path);
        if (found == in.end() || found->second != data) missing.emplace(path, data);
    }
    return missing;
}

}  // namespace tavrin::e2e
