#include "doctor/core/connection_string.h"

#include <algorithm>
#include <vector>

namespace tavrin::doctor {
namespace {

constexpr std::string_view Stars = "***";

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

/// In lower case and without blanks, so that "Pass word" is one too.
std::string Keyword(std::string_view text) {
    std::string keyword;
    for (const char character : text) {
        if (IsBlank(character)) continue;
        const bool upper = character >= 'A' && character <= 'Z';
        keyword += upper ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return keyword;
}

bool NamesPassword(std::string_view text) {
    const std::string keyword = Keyword(text);
    return keyword.find("password") != std::string::npos || keyword.find("pwd") != std::string::npos;
}

/// The character that closes a value which begins so; 0 where none does.
char Closing(char opening) {
    if (opening == '\'' || opening == '"') return opening;
    return opening == '{' ? '}' : '\0';
}

/// Goes over a connection string and shows it without its passwords, which it collects.
class Masker {
  public:
    explicit Masker(std::string_view rest) : rest_(rest) {}

    std::string Run() {
        while (!rest_.empty())
            TakePair();
        return std::move(shown_);
    }
    std::vector<std::string> secrets;

  private:
    void TakePair() {
        const std::size_t end = rest_.find_first_of("=;");
        const std::string_view key = rest_.substr(0, end);
        shown_ += key;
        rest_.remove_prefix(key.size());
        if (rest_.empty()) return;
        const bool hasValue = rest_.front() == '=';
        Show(1);
        if (hasValue) TakeValue(NamesPassword(key));
    }

    void TakeValue(bool secret) {
        while (!rest_.empty() && IsBlank(rest_.front()))
            Show(1);
        const std::string_view whole = rest_;
        const char closing = rest_.empty() ? '\0' : Closing(rest_.front());
        const bool open = closing != '\0' && !SkipQuoted(closing);
        rest_.remove_prefix(std::min(rest_.find(';'), rest_.size()));
        const std::string_view value = whole.substr(0, whole.size() - rest_.size());
        if (secret || open) {
            shown_ += Stars;
            secrets.emplace_back(Trimmed(value));
            if (value.size() > 2 && closing != '\0') secrets.emplace_back(value.substr(1, value.size() - 2));
        } else if (closing != '\0') {
            ShowQuoted(value);
        } else {
            shown_ += value;
        }
    }

    /// Past the closing character, which stands for itself where it is doubled. False where there is none.
    bool SkipQuoted(char closing) {
        rest_.remove_prefix(1);
        while (!rest_.empty()) {
            const bool closes = rest_.front() == closing;
            rest_.remove_prefix(1);
            if (!closes) continue;
            if (rest_.empty() || rest_.front() != closing) return true;
            rest_.remove_prefix(1);
        }
        return false;
    }

    /// A quoted value may be a connection string in its turn.
    void ShowQuoted(std::string_view value) {
        const std::size_t last = value.find_last_of("'\"}");
        Masker inner(value.substr(1, last - 1));
        shown_ += value.front() + inner.Run() + std::string(value.substr(last));
        secrets.insert(secrets.end(), inner.secrets.begin(), inner.secrets.end());
    }

    void Show(std::size_t count) {
        shown_ += rest_.substr(0, count);
        rest_.remove_prefix(count);
    }

    std::string_view rest_;
    std::string shown_;
};

}  // namespace

std::string WithoutPasswords(std::string_view connection) {
    return Masker(connection).Run();
}

std::string WithoutPasswordsOf(std::string_view connection, std::string text) {
    Masker masker(connection);
    masker.Run();
    std::ranges::sort(masker.secrets, std::ranges::greater(), &std::string::size);
    for (const std::string& secret : masker.secrets) {
        if (secret.empty()) continue;
        for (std::size_t at = text.find(secret); at != std::string::npos;
             at = text.find(secret, at + Stars.size()))
            text.replace(at, secret.size(), Stars);
    }
    return text;
}

}  // namespace tavrin::doctor
