#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tavrin::host {

/// A click on a control of a form, or a drag from there, unless it is null; then what is pressed: digits,
/// capital letters and the keys' own codes.
struct TourAction {
    const char* form;
    const char* control;
    std::string keys = {};
    std::wstring text = {};  ///< typed after the keys, in any script
    POINT drag = {0, 0};     ///< how far the button is held down, in pixels at 96 DPI
};

/// One picture: what a user does before it, and which windows it shows.
struct TourStep {
    const char* picture;
    std::vector<TourAction> actions;
    /// Forms by their names; windows that the platform opens for them by their classes.
    std::vector<const char*> windows;
};

/// In their order: each goes on where the one before it has ended. For the demo's data and its day.
const std::vector<TourStep>& TourSteps();

}  // namespace tavrin::host
