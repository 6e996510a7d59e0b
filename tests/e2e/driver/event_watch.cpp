#include "e2e/driver/event_watch.h"

#include "e2e/driver/wait.h"
#include "e2e/driver/window.h"

namespace tavrin::e2e {

namespace {
EventWatch* watching = nullptr;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
}

// The hook belongs to the host's own thread, where its calls come with the messages that the thread fetches
// anyway.

EventWatch::EventWatch(UiThread& thread) : thread_(thread) {
    watching = this;
    thread_.Call([&] {
        hook_ = SetWinEventHook(EVENT_OBJECT_FOCUS, LiveRegionChanged, nullptr, Hear, GetCurrentProcessId(),
                                thread_.Id(), WINEVENT_OUTOFCONTEXT);
    });
    if (hook_ == nullptr) throw DriverError("the system gives no events");
}

EventWatch::~EventWatch() {
    thread_.Call([&] { UnhookWinEvent(hook_); });
    watching = nullptr;
}

bool EventWatch::Saw(DWORD event, const std::string& control) const {
    const std::scoped_lock lock(mutex_);
    return seen_.contains({event, control});
}

bool EventWatch::Await(DWORD event, const std::string& control) const {
    return WaitUntil([&] { return Saw(event, control); }, 2000);
}

void EventWatch::Forget() {
    const std::scoped_lock lock(mutex_);
    seen_.clear();
}

void CALLBACK EventWatch::Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG, DWORD, DWORD) {
    if (watching == nullptr) return;
    const std::scoped_lock lock(watching->mutex_);
    watching->seen_.insert({event, Window(window).Name()});
}

}  // namespace tavrin::e2e
