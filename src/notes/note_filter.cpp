#include "notes/note_filter.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

#include "data/error.h"

namespace tavrin::notes {

namespace {

// Longer ones occur in no document; readers keep words and numbers in fields of fixed length.
constexpr std::size_t LongestWord = 32;
constexpr std::size_t LongestNumber = 10;

constexpr std::string_view Letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view Digits = "0123456789";
constexpr std::string_view HexDigits = "0123456789abcdef";
constexpr std::string_view Special("{}\\\0", 4);

[[noreturn]] void Refuse() {
    throw data::RuntimeError(data::error_number::InvalidFile);
}

/// A backslash, letters, perhaps a number, and the one blank that ends them.
struct ControlWord {
    std::string_view name;
    std::string_view number;
    std::string_view whole;
};

/// What stands for a word that is not kept.
struct PlainForm {
    std::string_view word;
    std::string_view instead;
};

// Readers skip it, but it ends a word that stands before what is left out.
constexpr std::string_view Nothing = "\n";

// Editors have been seen to fail over rows that are not what their definition says. A table's text stays, its
// cells set apart by tabs, its rows by paragraphs.
constexpr PlainForm TableWords[] = {
    {"cell", "\\tab "}, {"nestcell", "\\tab "}, {"row", "\\par "},  {"nestrow", "\\par "},
    {"trowd", Nothing}, {"cellx", Nothing},     {"intbl", Nothing}, {"itap", Nothing},
};

const PlainForm* PlainFormOf(std::string_view word) {
    const auto* const found = std::ranges::find(TableWords, word, &PlainForm::word);
    return found != std::end(TableWords) ? found : nullptr;
}

/// Walks through a file from front to back and keeps what may stay.
class Walk {
  public:
    explicit Walk(std::string_view file) : rest_(file) { kept_.reserve(file.size()); }

    std::string Run() {
        if (!rest_.starts_with("{\\rtf") && !rest_.starts_with("{\\urtf")) Refuse();
        do {
            Step();
        } while (!groups_.empty());
        return std::move(kept_);
    }

  private:
    /// A group that is open: what had been kept before it, and whether it is left out.
    struct Group {
        std::size_t keptBefore;
        bool leftOut;
    };

    void Step() {
        if (rest_.empty()) Refuse();
        switch (rest_.front()) {
            case '{':
                return Open();
            case '}':
                return Close();
            case '\\':
                return Control();
            case '\0':
                Refuse();
            default:
                return Keep(rest_.substr(0, rest_.find_first_of(Special)));
        }
    }

    void Open() {
        if (groups_.size() == MaximumNesting) Refuse();
        groups_.push_back({kept_.size(), IsLeftOut()});
        Keep(rest_.substr(0, 1));
    }

    void Close() {
        Keep(rest_.substr(0, 1));
        const Group closed = groups_.back();
        groups_.pop_back();
        if (!closed.leftOut) return;
        kept_.resize(closed.keptBefore);
        if (!IsLeftOut()) kept_ += Nothing;
    }

    void Control() {
        if (rest_.size() < 2 || rest_[1] == '\0') Refuse();
        if (Letters.find(rest_[1]) == std::string_view::npos) return Keep(rest_.substr(0, 2));
        const ControlWord word = Read();
        if (word.name == "bin") return KeepBinary(word);
        if (word.name == "object" || word.name == "objdata") LeaveGroupOut();
        if (const auto* plain = PlainFormOf(word.name)) {
            if (!IsLeftOut()) kept_ += plain->instead;
            rest_.remove_prefix(word.whole.size());
        } else {
            Keep(word.whole);
        }
    }

    ControlWord Read() const {
        const std::size_t nameEnd = EndOf(Letters, 1);
        const bool negative = nameEnd < rest_.size() && rest_[nameEnd] == '-';
        const std::size_t digits = nameEnd + (negative ? 1 : 0);
        const std::size_t numberEnd = EndOf(Digits, digits);
        if (nameEnd - 1 > LongestWord || numberEnd - digits > LongestNumber) Refuse();
        const std::size_t end = numberEnd > digits ? numberEnd : nameEnd;
        const bool blank = end < rest_.size() && rest_[end] == ' ';
        return {rest_.substr(1, nameEnd - 1), rest_.substr(nameEnd, end - nameEnd),
                rest_.substr(0, end + (blank ? 1 : 0))};
    }

    std::size_t EndOf(std::string_view characters, std::size_t from) const {
        return std::min(rest_.find_first_not_of(characters, from), rest_.size());
    }

    /// A group within one that is left out is so too; the outermost is the note itself.
    bool IsLeftOut() const { return !groups_.empty() && groups_.back().leftOut; }

    void LeaveGroupOut() {
        if (groups_.size() == 1) Refuse();
        groups_.back().leftOut = true;
    }

    void Keep(std::string_view text) {
        if (!IsLeftOut()) kept_ += text;
        rest_.remove_prefix(text.size());
    }

    /// Raw bytes may look like anything to a reader that does not count them: digits say the same.
    void KeepBinary(const ControlWord& word) {
        std::size_t count = 0;
        const auto read = std::from_chars(word.number.begin(), word.number.end(), count);
        if (read.ec != std::errc() && !word.number.empty()) Refuse();
        rest_.remove_prefix(word.whole.size());
        if (count > rest_.size()) Refuse();
        if (!IsLeftOut()) KeepDigitsOf(rest_.substr(0, count));
        rest_.remove_prefix(count);
    }

    void KeepDigitsOf(std::string_view bytes) {
        kept_ += Nothing;
        for (const char byte : bytes) {
            kept_ += HexDigits[static_cast<unsigned char>(byte) >> 4];
            kept_ += HexDigits[static_cast<unsigned char>(byte) & 0xF];
        }
    }

    std::string_view rest_;
    std::string kept_;
    std::vector<Group> groups_;
};

}  // namespace

std::string FilterNote(std::string_view file) {
    if (file.size() > MaximumNoteSize) Refuse();
    return Walk(file).Run();
}

}  // namespace tavrin::notes
