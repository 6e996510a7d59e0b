#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::verify {

/// What a connection string says that no report may repeat: itself, and in it secrets, users and servers.
/// What a provider or a test says may hold them.
class Secrets {
  public:
    Secrets() = default;
    explicit Secrets(const std::string& connectionString);

    /// The text with "(withheld)" in the place of each, whatever the case of its letters.
    std::string Withheld(std::string_view text) const;

  private:
    std::vector<std::string> secrets_;
};

}  // namespace tavrin::verify
