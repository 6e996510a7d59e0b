#include "verify/secrets.h"

#include <algorithm>
#include <array>

namespace tavrin::verify {

namespace {

constexpr std::string_view Withheld = "(withheld)";
constexpr std::array<std::string_view, 14> SecretKeys{
    "password",    "pwd",    "new password", "user id", "uid", "user", "user name",
    "data source", "server", "addr",         "address", "dsn", "host", "network address"};

std::string Small(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](char each) {
        return each >= 'A' && each <= 'Z' ? static_cast<char>(each + 0x20) : each;
    });
    return small;
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) return {};
    return text.substr(start, text.find_last_not_of(' ') - start + 1);
}

/// A value ends at its closing quote or brace where it has one, else at the semicolon. Takes it off the text.
std::string_view TakeValue(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const char first = text.empty() ? ';' : text.front();
    const bool isQuoted = first == '"' || first == '\'' || first == '{';
    const char last = first == '{' ? '}' : first;
    const std::size_t close = isQuoted ? text.find(last, 1) : std::string_view::npos;
    const std::size_t end =
        std::min(text.find(';', close == std::string_view::npos ? 0 : close), text.size());
    const std::string_view value =
        close == std::string_view::npos ? Trimmed(text.substr(0, end)) : text.substr(1, close - 1);
    text.remove_prefix(std::min(end + 1, text.size()));
    return value;
}

}  // namespace

Secrets::Secrets(const std::string& connectionString) {
    const std::string all = Small(connectionString);
    secrets_ = {all};
    std::string_view rest = all;
    while (!rest.empty()) {
        const std::size_t equals = rest.find('=');
        if (equals == std::string_view::npos) break;
        const std::string_view key = Trimmed(rest.substr(0, equals));
        rest.remove_prefix(equals + 1);
        const std::string_view value = TakeValue(rest);
        if (std::ranges::find(SecretKeys, key) != SecretKeys.end()) secrets_.emplace_back(value);
    }
    std::erase(secrets_, "");
    std::ranges::sort(secrets_, std::ranges::greater{}, &std::string::size);
}

std::string Secrets::Withheld(std::string_view text) const {
    const std::string small = Small(text);
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        const auto secret = std::ranges::find_if(
            secrets_, [&](const std::string& each) { return small.compare(place, each.size(), each) == 0; });
        if (secret == secrets_.end()) {
            result += text[place++];
        } else {
            result += verify::Withheld;
            place += secret->size();
        }
    }
    return result;
}

}  // namespace tavrin::verify
