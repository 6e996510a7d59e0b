#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace tavrin::tests {

/// A window that is disabled while one of those that it has opened is there, which enable it when they close.
struct HeldWindow {
    std::string_view name;
    std::array<std::string_view, 3> holders;
};
inline constexpr std::array<HeldWindow, 2> HeldWindows = {{
    {"CursValutar", {"CursValutarDetaliu", "CereMoneda", "EvolutieCurs"}},
    {"frmCalculator", {"AlegeMoneda"}},
}};

constexpr bool MayHold(std::string_view holder, std::string_view held) {
    return std::ranges::any_of(HeldWindows, [&](const HeldWindow& window) {
        return window.name == held && std::ranges::find(window.holders, holder) != window.holders.end();
    });
}

/// Whether the window can never be enabled while such a holder is open. A rate list that was opened under an
/// evolution is another than the one that opened it, and a calculator under a chooser may be another as well.
constexpr bool MustHold(std::string_view holder, std::string_view held) {
    return held == "CursValutar" && MayHold(holder, held) && holder != "EvolutieCurs";
}

}  // namespace tavrin::tests
