#pragma once

#include <windows.h>

#include <mutex>
#include <set>
#include <string>
#include <utility>

#include "e2e/driver/ui_thread.h"

namespace tavrin::e2e {

/// EVENT_OBJECT_LIVEREGIONCHANGED, of newer headers: a control wants to be read out.
inline constexpr DWORD LiveRegionChanged = 0x8019;

/// Listens, as an assistive tool does, to the accessibility events of a host's thread: which control raised
/// which. Lives outside that thread; one at a time.
class EventWatch {
  public:
    explicit EventWatch(UiThread& thread);
    ~EventWatch();
    EventWatch(const EventWatch&) = delete;
    EventWatch& operator=(const EventWatch&) = delete;

    /// \param event EVENT_OBJECT_...
    bool Saw(DWORD event, const std::string& control) const;
    /// Waits for it. \return whether it came
    bool Await(DWORD event, const std::string& control) const;
    void Forget();

  private:
    static void CALLBACK Hear(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child,
                              DWORD thread, DWORD time);

    UiThread& thread_;
    HWINEVENTHOOK hook_ = nullptr;
    mutable std::mutex mutex_;
    std::set<std::pair<DWORD, std::string>> seen_;
};

}  // namespace tavrin::e2e
