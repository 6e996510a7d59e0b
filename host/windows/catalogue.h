#pragma once

#include <string>
#include <vector>

namespace tavrin::host {

// What the windows say of themselves to everything that goes through all of them: the tour that takes their
// pictures, the tests of what holds in every window, the users at random. One source here for each utility.

/// A click on a control of a form.
struct ButtonClick {
    const char* form;
    const char* control;
};

/// A state of a window, and a user's way to it from the palette that has just opened.
struct WindowState {
    const char* description;  ///< in one word
    const char* caption;
    std::vector<ButtonClick> clicks;
};

struct WindowEntry {
    const char* name;  ///< of its form
    std::vector<WindowState> states;
    /// The beginnings of what its messages may ask or tell, whatever the user does and the database says.
    std::vector<const char*> messages;
};

/// A click on a control of a form, or a drag from there, unless it is null; then what is pressed: digits,
/// capital letters and the keys' own codes.
struct TourAction {
    const char* form;
    const char* control;
    std::string keys = {};
    std::string text = {};  ///< typed after the keys, in any script
    struct {
        int x, y;
    } drag = {0, 0};  ///< how far the button is held down, in pixels at 96 DPI
};

/// One picture: what a user does before it, and which windows it shows.
struct TourStep {
    const char* picture;
    std::vector<TourAction> actions;
    /// Forms by their names; windows that the platform opens for them by their classes.
    std::vector<const char*> windows;
};

/// The windows of one utility, and its part of the tour, which goes on where the part before it has ended.
/// For the demo's data and its day.
struct Utility {
    const char* folder;  ///< of its sources
    std::vector<WindowEntry> windows;
    std::vector<TourStep> tour;
};

Utility DescribePalette();
Utility DescribeCalculator();
Utility DescribeRates();
Utility DescribeAddressBook();
Utility DescribeNotes();

/// In the order of the tour.
const std::vector<Utility>& AllUtilities();

std::vector<WindowEntry> AllWindows();
std::vector<TourStep> AllTourSteps();

// Keys and windows of the platform, for the descriptions.

std::string Key(int code);
/// What is pressed wherever the keyboard is.
TourAction Press(std::string keys);

inline constexpr const char* MessageClass = "#32770";
inline constexpr const char* ListClass = "ComboLBox";
inline constexpr const char* HostClass = "TavrinHost";

}  // namespace tavrin::host
