#pragma once

#include <string>

#include "e2e/driver/host.h"

namespace tavrin::e2e {

/// Calls Apel and opens every window there is, by mouse messages, without the pointer. When it comes back all
/// of them are open but the currency window, which was opened and closed: it would stand in the way of the
/// others. \throws DriverError when one does not appear
void OpenEveryWindow(Host& host);

/// Closes the palette, which takes most windows along, and the evolution window, which it leaves.
/// \throws DriverError when one stays
void CloseEveryWindow(Host& host);

/// The whole life of the component in a host: loads the DLL by hand, opens every window, closes them and
/// frees the DLL. The host must hold no object. \throws DriverError when something of it stays: a window, the
/// DLL, or a reference to the host's connection
void LiveAndLeave(Host& host);

/// Messages put to the window of a button as if the mouse had pressed it.
void PostClick(const Window& button);

/// What LiveAndLeave opens, and how often the event comes meanwhile.
inline constexpr int WindowsOfTour = 10;
inline constexpr int EventsOfTour = 3;

}  // namespace tavrin::e2e
