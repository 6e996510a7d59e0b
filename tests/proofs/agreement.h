#pragma once

#include <string>
#include <string_view>

#include "support/headless_desktop.h"

namespace tavrin::tests {

/// Compares what the forms and their controls say with what their windows show. Only between two inputs.
/// \param focus the control that has the platform's focus
/// \return what differs; empty where both sides agree
std::string Disagreement(const HeadlessDesktop& desktop, const forms::Control* focus);

/// Whether a window that sends such a statement is among those that are loaded.
bool IsSenderLoaded(const HeadlessDesktop& desktop, std::string_view statement);

}  // namespace tavrin::tests
