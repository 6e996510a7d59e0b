#include "verify/sql_batches.h"

#include <algorithm>
#include <cctype>
#include <optional>

namespace tavrin::verify {

namespace {

constexpr std::string_view Blanks = " \t\r\n";

bool IsWordCharacter(char each) {
    return std::isalnum(static_cast<unsigned char>(each)) != 0 || each == '_';
}

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t start = text.find_first_not_of(Blanks);
    if (start == std::string_view::npos) return {};
    return text.substr(start, text.find_last_not_of(Blanks) - start + 1);
}

/// Where a line of a script begins: outside of everything, or inside what an earlier line has opened.
class Nesting {
  public:
    bool IsOutside() const { return comments_ == 0 && quote_ == '\0'; }
    bool HasStatement() const { return hasStatement_; }
    void BeginBatch() { hasStatement_ = false; }

    void Scan(std::string_view line) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string_view pair = line.substr(i, 2);
            if (IsOutside() && pair == "--") return;
            if (quote_ == '\0' && (pair == "/*" || (pair == "*/" && comments_ > 0))) {
                comments_ += pair == "/*" ? 1 : -1;
                ++i;
            } else if (comments_ == 0) {
                ScanCode(line[i]);
            }
        }
    }

  private:
    // A doubled quote closes and opens again, which comes to the same.
    void ScanCode(char each) {
        if (Blanks.find(each) == std::string_view::npos) hasStatement_ = true;
        if (quote_ != '\0') {
            if (each == quote_) quote_ = '\0';
        } else if (each == '\'' || each == '"' || each == '[') {
            quote_ = each == '[' ? ']' : each;
        }
    }

    int comments_ = 0;
    char quote_ = '\0';  ///< what closes the text that is open
    bool hasStatement_ = false;
};

/// How often the batch before this line is to be sent; nothing where the line is none that ends a batch.
std::optional<int> RepeatsOf(std::string_view line) {
    constexpr std::size_t LongestCount = 4;
    const std::string_view text = WithoutBlanks(line);
    if (text.size() < 2 || (text[0] | 0x20) != 'g' || (text[1] | 0x20) != 'o') return std::nullopt;
    const std::string_view count = WithoutBlanks(text.substr(2));
    if (count.empty()) return 1;
    const bool isCount =
        Blanks.find(text[2]) != std::string_view::npos && count.size() <= LongestCount &&
        std::ranges::all_of(count, [](unsigned char each) { return std::isdigit(each) != 0; });
    return isCount ? std::optional(std::stoi(std::string(count))) : std::nullopt;
}

}  // namespace

std::vector<std::string> SplitBatches(std::string_view script) {
    std::vector<std::string> batches;
    std::string batch;
    Nesting nesting;
    const auto end = [&](int times) {
        if (nesting.HasStatement()) batches.insert(batches.end(), static_cast<std::size_t>(times), batch);
        batch.clear();
        nesting.BeginBatch();
    };
    while (!script.empty()) {
        const std::size_t length = std::min(script.find('\n'), script.size() - 1) + 1;
        const std::string_view line = script.substr(0, length);
        script.remove_prefix(length);
        if (const auto times = RepeatsOf(line); times && nesting.IsOutside()) {
            end(*times);
            continue;
        }
        nesting.Scan(line);
        batch += line;
    }
    end(1);
    return batches;
}

std::string WithName(std::string_view script, std::string_view placeholder, std::string_view name) {
    std::string text;
    for (std::size_t from = 0;;) {
        const std::size_t found = script.find(placeholder, from);
        if (found == std::string_view::npos) return text.append(script.substr(from));
        const std::size_t after = found + placeholder.size();
        const bool isWord = (found == 0 || !IsWordCharacter(script[found - 1])) &&
                            (after == script.size() || !IsWordCharacter(script[after]));
        text.append(script.substr(from, found - from)).append(isWord ? name : placeholder);
        from = after;
    }
}

}  // namespace tavrin::verify
