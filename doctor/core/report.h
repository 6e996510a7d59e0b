#pragma once

#include <string>

#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// How many findings of that verdict there are.
std::size_t Count(const Report& report, Verdict verdict);

/// Where and when a report was made.
struct Origin {
    std::string time;  ///< "2026-11-22 17:24:09", of the machine's zone
    std::string machine;
};

/// For the console: a line for each finding, what to do about it below.
std::string PlainReport(const Report& report, const Origin& origin, Language language);

/// One page in UTF-8 that needs no other file.
std::string HtmlReport(const Report& report, const Origin& origin, Language language);

}  // namespace tavrin::doctor
