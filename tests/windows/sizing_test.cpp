// The windows that can be sized: what becomes of their controls at any size that a user gives them.

#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "forms/controls/chart.h"
#include "forms/controls/grid.h"
#include "windows/every_window.h"

namespace tavrin::tests {
namespace {

using forms::Rect;
using forms::Size;

/// A control's place in its window.
Rect PlaceOf(const forms::Control& control) {
    Rect place = control.Bounds();
    for (forms::Control* around = control.Parent().AsControl(); around != nullptr;
         around = around->Parent().AsControl()) {
        place.left += around->Bounds().left;
        place.top += around->Bounds().top;
    }
    return place;
}

bool Meet(const Rect& a, const Rect& b) {
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

using Pair = std::pair<std::string, std::string>;

/// The controls in sight that stand in one place together.
std::set<Pair> Overlaps(const forms::Form& form) {
    std::set<Pair> found;
    for (const forms::Control* one : form.AllControls()) {
        for (const forms::Control* other : form.AllControls()) {
            const bool seen = one->IsEffectivelyVisible() && other->IsEffectivelyVisible();
            if (seen && one->QualifiedName() < other->QualifiedName() && Meet(PlaceOf(*one), PlaceOf(*other)))
                found.emplace(one->QualifiedName(), other->QualifiedName());
        }
    }
    return found;
}

std::map<std::string, Rect> Places(const forms::Form& form) {
    std::map<std::string, Rect> places;
    for (const forms::Control* control : form.AllControls())
        places[control->QualifiedName()] = control->Bounds();
    return places;
}

class SizingTest : public EveryWindowTest {
  protected:
    void ForEachSizableWindow(const Look& look) {
        ForEachWindow([&](forms::Form& form) {
            if (form.Border() == forms::BorderStyle::Sizable) look(form);
        });
    }

    /// Sizes in twips that a platform of that resolution gives, pixel for pixel, from the smallest one to the
    /// screen.
    std::vector<Size> SizesAt(int dpi, Size smallest) const {
        const double pixel = static_cast<double>(forms::TwipsPerInch) / dpi;
        const auto whole = [pixel](double twips) {
            return static_cast<int>(std::lround(std::ceil(twips / pixel) * pixel));
        };
        const Size screen = desktop.ScreenSize();
        std::vector<Size> sizes;
        for (const double part : {0.0, 0.001, 0.01, 0.13, 0.377, 0.5, 0.9, 1.0}) {
            sizes.push_back({whole(std::lerp(smallest.width, screen.width, part)),
                             whole(std::lerp(smallest.height, screen.height, part))});
        }
        return sizes;
    }
};

TEST_F(SizingTest, WindowsThatGainFromRoomCanBeSized) {
    std::set<std::string> sizable;
    ForEachSizableWindow([&](const forms::Form& form) { sizable.insert(form.Name()); });
    EXPECT_EQ(sizable, (std::set<std::string>{"CursValutar", "EvolutieCurs", "Notes"}));
}

TEST_F(SizingTest, ControlsStayInsideAndApartAtEverySize) {
    ForEachSizableWindow([&](forms::Form& form) {
        const std::set<Pair> atFirst = Overlaps(form);
        for (const int dpi : {96, 192}) {
            for (const Size size : SizesAt(dpi, form.SmallestClientSize())) {
                form.HandleSized(size);
                ASSERT_EQ(form.ClientSize(), size);
                EXPECT_EQ(Overlaps(form), atFirst) << form.Name() << ", " << size.width << " wide";
                for (const forms::Control* control : form.AllControls()) {
                    const Rect place = PlaceOf(*control);
                    EXPECT_GE(place.left, 0) << form.Name() << "." << control->QualifiedName();
                    EXPECT_LE(place.Right(), size.width) << form.Name() << "." << control->QualifiedName();
                    EXPECT_LE(place.Bottom(), size.height) << form.Name() << "." << control->QualifiedName();
                }
            }
        }
    });
}

TEST_F(SizingTest, TheRoomGoesToTheGridTheChartAndTheNote) {
    const std::map<std::string, std::string> growing = {
        {"CursValutar", "Grid"}, {"EvolutieCurs", "MSChart1"}, {"Notes", "txtNota"}};
    ForEachSizableWindow([&](forms::Form& form) {
        const Rect before = form.FindControl(growing.at(form.Name()))->Bounds();
        const Size client = form.ClientSize();
        form.HandleSized({client.width + 3000, client.height + 1500});
        const Rect after = form.FindControl(growing.at(form.Name()))->Bounds();
        EXPECT_EQ(after.width, before.width + 3000) << form.Name();
        EXPECT_EQ(after.height, before.height + 1500) << form.Name();
    });
}

TEST_F(SizingTest, BackAtItsSizeAWindowLooksAsBefore) {
    ForEachSizableWindow([&](forms::Form& form) {
        const Size client = form.ClientSize();
        const auto before = Places(form);
        for (const Size size : SizesAt(192, form.SmallestClientSize()))
            form.HandleSized(size);
        form.HandleSized(client);
        EXPECT_EQ(Places(form), before) << form.Name();
    });
}

TEST_F(SizingTest, FocusAndCurrentRowStay) {
    ForEachSizableWindow([&](forms::Form& form) {
        auto* grid = dynamic_cast<forms::Grid*>(form.FindControl("Grid"));
        if (grid != nullptr) grid->SetRow(grid->Rows() - 1);
        const int row = grid != nullptr ? grid->Row() : 0;
        const std::string focused = FocusedControl();
        for (const Size size : SizesAt(96, form.SmallestClientSize())) {
            form.HandleSized(size);
            EXPECT_EQ(FocusedControl(), focused) << form.Name();
            if (row == 0) continue;
            EXPECT_EQ(grid->Row(), row);
            EXPECT_FALSE(grid->CellBounds(row, 0).IsEmpty()) << "row " << row << " of " << form.Name();
        }
    });
}

TEST_F(SizingTest, WindowsOpenInTheWorkArea) {
    desktop.workArea = Rect{0, 0, 12600, 7200};
    ForEachSizableWindow([&](const forms::Form& form) {
        EXPECT_GE(form.Bounds().top, 0) << form.Name();
        EXPECT_LE(form.Bounds().Bottom(), 7200) << form.Name();
    });
}

}  // namespace
}  // namespace tavrin::tests
