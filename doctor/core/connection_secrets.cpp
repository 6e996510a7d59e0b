#include "doctor/core/connection_secrets.h"

#include <algorithm>

#include "doctor/core/connection_string.h"

namespace tavrin::doctor {
namespace {

constexpr std::string_view Stars = "***";
constexpr std::size_t LongestSwitch = 5;

/// What stands between the quotes.
std::string_view Content(const Piece& piece) {
    return piece.isQuoted ? piece.value.substr(1, piece.value.size() - 2) : piece.value;
}

/// The same with each doubled closing character once, which is the value that a provider has.
std::string Meant(const Piece& piece) {
    std::string meant(Content(piece));
    if (!piece.isQuoted) return meant;
    const std::string doubled(2, piece.value.back());
    for (std::size_t at = meant.find(doubled); at != std::string::npos; at = meant.find(doubled, at + 1))
        meant.erase(at, 1);
    return meant;
}

std::string Shown(const Piece& piece) {
    if (piece.isRemainder) return std::string(Stars);
    const std::string name = std::string(piece.keyword) + "=";
    switch (piece.kind) {
        case ValueKind::Setting:
        case ValueKind::Server:
        case ValueKind::User:
            return name + std::string(piece.value);
        case ValueKind::Connection: {
            const std::string_view quotes = piece.isQuoted ? piece.value : std::string_view();
            return name + std::string(quotes.substr(0, 1)) + ShownConnection(Meant(piece)) +
                   (quotes.empty() ? "" : std::string(1, quotes.back()));
        }
        case ValueKind::Unknown:
        case ValueKind::Secret:
            break;
    }
    return name + std::string(Stars);
}

bool IsHidden(const Piece& piece, Withhold withhold) {
    switch (piece.kind) {
        case ValueKind::Setting:
        case ValueKind::Connection:
            return false;
        case ValueKind::Server:
        case ValueKind::User:
            return withhold == Withhold::SecretsServersAndUsers;
        case ValueKind::Unknown:
            return Content(piece).size() > LongestSwitch;
        case ValueKind::Secret:
            break;
    }
    return true;
}

/// Whether a quote is open at the end; others may read on behind it.
bool IsOpen(const Piece& piece) {
    return !piece.isQuoted && piece.value.find_first_of("'\"{") == 0;
}

std::string SmallLetters(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return small;
}

}  // namespace

std::string ShownConnection(std::string_view connection) {
    std::string shown;
    for (const Piece& piece : ReadConnectionString(connection))
        shown += (shown.empty() ? "" : ";") + Shown(piece);
    return shown;
}

std::vector<std::string> HiddenTexts(std::string_view connection, Withhold withhold) {
    std::vector<std::string> hidden;
    for (const Piece& piece : ReadConnectionString(connection)) {
        if (piece.kind == ValueKind::Connection || IsOpen(piece)) {
            const std::string content = IsOpen(piece) ? std::string(piece.value.substr(1)) : Meant(piece);
            const std::vector<std::string> inner = HiddenTexts(content, withhold);
            hidden.insert(hidden.end(), inner.begin(), inner.end());
        }
        if (piece.isRemainder) hidden.emplace_back(piece.text);
        if (!IsHidden(piece, withhold)) continue;
        for (const std::string& value : {std::string(Content(piece)), Meant(piece)})
            hidden.push_back(value);
    }
    std::erase(hidden, "");
    return hidden;
}

std::string TakenOut(std::vector<std::string> hidden, std::string_view text, std::string_view sign) {
    std::ranges::transform(hidden, hidden.begin(), SmallLetters);
    std::ranges::sort(hidden, std::ranges::greater(), &std::string::size);  // one may begin as another does
    const std::string small = SmallLetters(text);
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        const auto found = std::ranges::find_if(hidden, [&](const std::string& one) {
            return !one.empty() && small.compare(place, one.size(), one) == 0;
        });
        if (found == hidden.end()) {
            result += text[place++];
        } else {
            result += sign;
            place += found->size();
        }
    }
    return result;
}

std::string WithoutSecretsOf(std::string_view connection, std::string_view text) {
    return TakenOut(HiddenTexts(connection, Withhold::Secrets), text, Stars);
}

}  // namespace tavrin::doctor
