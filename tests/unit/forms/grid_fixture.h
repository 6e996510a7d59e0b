#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "forms/controls/grid.h"
#include "forms/controls/text_box.h"
#include "forms/model/form.h"
#include "support/headless_desktop.h"
#include "support/headless_keyboard.h"
#include "support/recording_surface.h"

namespace tavrin::tests {

class GridForm : public forms::Form {
  public:
    explicit GridForm(forms::Desktop& desktop)
        : Form(desktop, "Grids", "Grids", forms::BorderStyle::FixedDialog) {}

    forms::Grid grid{*this, "Grid", {200, 300, 4060, 3360}};  ///< room for ten rows under the header
    forms::TextBox other{*this, "other", {0, 4000, 900, 330}};
};

/// A grid with the focus in a window, its events counted.
class GridTest : public testing::Test {
  protected:
    GridTest() {
        form->Show();
        grid.onChange = [this] { ++changes; };
        grid.onClick = [this] { ++clicks; };
    }
    ~GridTest() override { desktop.UnloadAll(); }

    RecordingSurface Draw(double pixelSize = 15) const {
        RecordingSurface surface(pixelSize);
        grid.Draw(surface);
        return surface;
    }

    HeadlessDesktop desktop;
    HeadlessKeyboard keyboard{desktop};
    std::shared_ptr<GridForm> form = std::make_shared<GridForm>(desktop);
    forms::Grid& grid = form->grid;
    int changes = 0;
    int clicks = 0;
};

}  // namespace tavrin::tests
