#pragma once

#include <string>

#include "doctor/core/finding.h"

namespace tavrin::doctor {

/// How many findings of that verdict there are.
std::size_t Count(const Report& report, Verdict verdict);

/// For the console: a line for each finding, what to do about it below.
std::string PlainReport(const Report& report, Language language);

/// One page in UTF-8 that needs no other file.
std::string HtmlReport(const Report& report, Language language);

}  // namespace tavrin::doctor
