#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tavrin::doctor {

enum class Language { Romanian, English };

/// What is said, in both languages.
struct Text {
    std::string romanian;
    std::string english;

    const std::string& In(Language language) const {
        return language == Language::Romanian ? romanian : english;
    }
    bool operator==(const Text&) const = default;
};

/// Text that is the same in both: names, paths, what a provider says.
inline Text Same(const std::string& text) {
    return {text, text};
}

inline Text operator+(const Text& one, const Text& other) {
    return {one.romanian + other.romanian, one.english + other.english};
}

enum class Verdict {
    Good,
    Warning,  ///< the utilities work, but not as well as they could
    Error,    ///< something in them will fail
};

struct Finding {
    Verdict verdict = Verdict::Good;
    Text what;
    Text advice;  ///< empty where there is nothing to do
};

/// The findings on one subject.
struct Section {
    Text title;
    std::vector<Finding> findings;

    void Good(Text what) { findings.push_back({Verdict::Good, std::move(what), {}}); }
    void Warn(Text what, Text advice) {
        findings.push_back({Verdict::Warning, std::move(what), std::move(advice)});
    }
    void Fail(Text what, Text advice) {
        findings.push_back({Verdict::Error, std::move(what), std::move(advice)});
    }
};

using Report = std::vector<Section>;

}  // namespace tavrin::doctor
