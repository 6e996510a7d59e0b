#include "doctor/core/connection_string.h"

#include <algorithm>
#include <string>

namespace tavrin::doctor {
namespace {

struct Keyword {
    std::string_view name;
    ValueKind kind = ValueKind::Setting;
};

// In small letters, without blanks and underlines: "trusted_connection" and "Trusted Connection" are one.
constexpr Keyword Keywords[] = {
    {"provider"},
    {"driver"},
    {"database"},
    {"initialcatalog"},
    {"integratedsecurity"},
    {"trustedconnection"},
    {"persistsecurityinfo"},
    {"authentication"},
    {"encrypt"},
    {"useencryptionfordata"},
    {"trustservercertificate"},
    {"timeout"},
    {"connecttimeout"},
    {"connectiontimeout"},
    {"generaltimeout"},
    {"commandtimeout"},
    {"querytimeout"},
    {"logintimeout"},
    {"packetsize"},
    {"autotranslate"},
    {"multipleactiveresultsets"},
    {"marsconnection"},
    {"multisubnetfailover"},
    {"applicationintent"},
    {"datatypecompatibility"},
    {"oledbservices"},
    {"localeidentifier"},
    {"language"},
    {"currentlanguage"},
    {"mode"},
    {"network"},
    {"networklibrary"},
    {"app"},
    {"applicationname"},
    {"datasource", ValueKind::Server},
    {"server", ValueKind::Server},
    {"addr", ValueKind::Server},
    {"address", ValueKind::Server},
    {"networkaddress", ValueKind::Server},
    {"host", ValueKind::Server},
    {"dsn", ValueKind::Server},
    {"failoverpartner", ValueKind::Server},
    {"wsid", ValueKind::Server},
    {"workstationid", ValueKind::Server},
    {"uid", ValueKind::User},
    {"user", ValueKind::User},
    {"userid", ValueKind::User},
    {"username", ValueKind::User},
    {"extendedproperties", ValueKind::Connection},
};

/// Words of keywords whose values are secrets, however short they are.
constexpr std::string_view SecretWords[] = {"password", "pwd", "token", "secret", "key", "credential"};

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string NameOf(std::string_view keyword) {
    std::string name;
    for (const char character : keyword) {
        if (IsBlank(character) || character == '_') continue;
        const bool upper = character >= 'A' && character <= 'Z';
        name += upper ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return name;
}

ValueKind KindOf(const Piece& piece) {
    const std::string name = NameOf(piece.keyword);
    const auto stands = [&](std::string_view word) { return name.find(word) != std::string::npos; };
    if (std::ranges::any_of(SecretWords, stands)) return ValueKind::Secret;
    const auto* const found = std::ranges::find(Keywords, name, &Keyword::name);
    if (found == std::end(Keywords)) return ValueKind::Unknown;
    // A value with a sign in it may be a whole connection string, wherever it stands.
    const bool isPlain = piece.value.find('=') == std::string_view::npos;
    return isPlain || found->kind == ValueKind::Connection ? found->kind : ValueKind::Secret;
}

/// The character that closes a value which begins so; 0 where none does.
char Closing(char opening) {
    if (opening == '\'' || opening == '"') return opening;
    return opening == '{' ? '}' : '\0';
}

/// Where a quoted value ends, behind its closing character; npos where that is missing.
std::size_t EndOfQuoted(std::string_view text, char closing) {
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] != closing) continue;
        if (at + 1 == text.size() || text[at + 1] != closing) return at + 1;
        ++at;  // doubled: it stands for itself
    }
    return std::string_view::npos;
}

class Reader {
  public:
    explicit Reader(std::string_view rest) : rest_(rest) {}

    std::vector<Piece> Read() {
        while (!rest_.empty()) {
            const Piece piece = TakePiece();
            if (!piece.text.empty()) pieces_.push_back(piece);
        }
        return std::move(pieces_);
    }

  private:
    Piece TakePiece() {
        const std::string_view whole = rest_;
        const std::size_t end = rest_.find_first_of("=;");
        Piece piece;
        if (end == std::string_view::npos || rest_[end] == ';') {
            piece.value = Trimmed(rest_.substr(0, end));
            Skip(end);
        } else {
            piece.keyword = Trimmed(rest_.substr(0, end));
            Skip(end + 1);
            if (TakeValue(piece)) piece.kind = KindOf(piece);
        }
        const bool hasSign = end != std::string_view::npos && whole[end] == '=';
        piece.isRemainder = !hasSign || (GoesOn() && IsHidden(piece.kind));
        piece.text = Trimmed(whole.substr(0, whole.size() - rest_.size()));
        Skip(1);
        return piece;
    }

    /// False where the value's quote is not closed.
    bool TakeValue(Piece& piece) {
        while (!rest_.empty() && IsBlank(rest_.front()))
            Skip(1);
        const char closing = rest_.empty() ? '\0' : Closing(rest_.front());
        const std::size_t close = closing == '\0' ? 0 : EndOfQuoted(rest_, closing);
        const std::size_t end =
            close == std::string_view::npos ? rest_.size() : std::min(rest_.find(';', close), rest_.size());
        piece.value = Trimmed(rest_.substr(0, end));
        piece.isQuoted = closing != '\0' && close == piece.value.size();
        Skip(end);
        return closing == '\0' || piece.isQuoted;
    }

    static bool IsHidden(ValueKind kind) { return kind == ValueKind::Secret || kind == ValueKind::Unknown; }

    /// Whether what may be a secret and stands in no quotes is the last that was read.
    bool GoesOn() const {
        return !pieces_.empty() && !pieces_.back().isQuoted && IsHidden(pieces_.back().kind);
    }

    void Skip(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

    std::string_view rest_;
    std::vector<Piece> pieces_;
};

}  // namespace

std::vector<Piece> ReadConnectionString(std::string_view text) {
    return Reader(text).Read();
}

}  // namespace tavrin::doctor
