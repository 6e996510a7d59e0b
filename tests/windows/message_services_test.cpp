// Which windows make a message service of their own, and when.

#include <gmock/gmock.h>

#include <set>
#include <string>

#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

class MessageServicesTest : public EveryWindowTest {};

TEST_F(MessageServicesTest, EveryWindowButPaletteAndCalculatorMakesOneWhenItLoads) {
    for (const host::WindowEntry& window : host::AllWindows()) {
        for (const host::WindowState& state : window.states) {
            std::set<std::string> makers{window.name};
            for (const host::ButtonClick& click : state.clicks)
                makers.insert(click.form);
            makers.erase("Utilitati");
            makers.erase("frmCalculator");
            messages.created = 0;
            ASSERT_NE(Come(window, state), nullptr) << state.description;
            EXPECT_EQ(messages.created, std::ssize(makers)) << state.description;
        }
    }
}

}  // namespace
}  // namespace tavrin::tests
