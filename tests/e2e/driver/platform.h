#pragma once

namespace tavrin::e2e {

// What the driver, and the tests' expectations, depend on.

/// Whether the system is Wine. What it alone needs, or cannot, is done or expected nowhere else.
bool IsWine();

/// Whether this process may register classes for the whole machine.
bool MayRegisterForMachine();

/// Whether classes that one user has registered for himself are found by this process. Wine 8 looks among the
/// machine's alone, and so does Windows for programs that run as an administrator. A system that does better
/// fails the test that asks.
bool FindsClassesOfOneUser();

}  // namespace tavrin::e2e
