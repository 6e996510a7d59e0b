#include "host/program/tour.h"

#include <cstdio>

#include "data/error.h"
#include "host/pictures/png.h"
#include "host/pictures/screen_picture.h"
#include "host/program/tour_user.h"
#include "host/windows/catalogue.h"
#include "win32/base/text.h"

namespace tavrin::host {
namespace {

constexpr ULONGLONG StillnessPatienceMilliseconds = 5000;
/// Longer than what is drawn needs from a window to the screen.
constexpr DWORD BetweenLooksMilliseconds = 30;

/// Takes the caret off the picture: whether it is to be seen is a matter of luck.
class WithoutCaret {
  public:
    explicit WithoutCaret(const WindowThread& windows) : windows_(windows) {
        windows_.Call([this] { isHidden_ = HideCaret(nullptr) != FALSE; });
    }
    ~WithoutCaret() {
        if (isHidden_) windows_.Call([] { ShowCaret(nullptr); });
    }
    WithoutCaret(const WithoutCaret&) = delete;
    WithoutCaret& operator=(const WithoutCaret&) = delete;

  private:
    const WindowThread& windows_;
    bool isHidden_ = false;
};

/// The smallest part of the screen that holds all windows of the step.
RECT PlaceOf(const TourStep& step, const TourUser& user) {
    RECT all{};
    for (const char* const name : step.windows) {
        RECT place;
        GetWindowRect(user.Await(name), &place);
        UnionRect(&all, &all, &place);
    }
    return all;
}

/// What is there twice in a row.
ScreenPicture CaptureStill(const RECT& place) {
    const ULONGLONG end = GetTickCount64() + StillnessPatienceMilliseconds;
    ScreenPicture before;
    while (GetTickCount64() < end) {
        Sleep(BetweenLooksMilliseconds);
        ScreenPicture picture = CaptureScreen(place);
        if (picture == before) return picture;
        before = std::move(picture);
    }
    throw data::Error(E_FAIL, "the picture does not come to rest");
}

ScreenPicture TakePicture(const TourStep& step, const TourUser& user, const WindowThread& windows) {
    const RECT place = PlaceOf(step, user);
    user.Rest();
    const WithoutCaret withoutCaret(windows);
    windows.Settle();
    return CaptureStill(place);
}

}  // namespace

void RunTour(const WindowThread& windows, const std::wstring& folder) {
    CreateDirectoryW(folder.c_str(), nullptr);
    const TourUser user(windows);
    const std::vector<TourStep> steps = AllTourSteps();
    std::size_t number = 0;
    for (const TourStep& step : steps) {
        for (const TourAction& action : step.actions)
            user.Perform(action);
        SavePng(TakePicture(step, user, windows), folder + L"\\" + win32::ToWide(step.picture) + L".png");
        std::printf("Window %zu of %zu: %s\n", ++number, steps.size(), step.picture);
        std::fflush(stdout);
    }
    PostMessageW(user.Await("Utilitati"), WM_CLOSE, 0, 0);
}

}  // namespace tavrin::host
