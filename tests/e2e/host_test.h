#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "e2e/driver/host.h"
#include "e2e/driver/input.h"
#include "e2e/driver/shown_message.h"
#include "e2e/driver/wait.h"
#include "e2e/driver/window.h"

namespace tavrin::e2e {

/// A test with a host of its own. Afterwards every window is closed, and the component must let go of the
/// connection and of itself: each test checks that along with what it is about.
class HostTest : public testing::Test {
  protected:
    explicit HostTest(LoopKind loop = LoopKind::Plain, HostData data = HostData::Embedded);
    void TearDown() override;

    /// Calls Apel and waits for the palette as the call leaves it.
    Window OpenPalette(const HostValues& values = {});
    /// The same when Apel has been called. \param result its answer
    Window AwaitPalette(HRESULT result);
    /// Opens the rate list by a click on the palette's button.
    Window OpenRateList(const HostValues& values = {});

    /// Closes windows and messages, from the front to the back.
    static void CloseEverything();

    /// Waits for a message, checks all that it shows, and answers it.
    static void ExpectMessage(const std::string& prompt, MessageIcon icon, const std::string& title,
                              const std::vector<int>& buttons, int answer);

    /// Gives the host's window the keyboard, by a click.
    void ActivateHostWindow();

    std::unique_ptr<Host> host;
};

/// Where the pointer rests between actions: over none of the host's windows, near the lower edge of the
/// screen.
POINT PointerAtRest();

}  // namespace tavrin::e2e
