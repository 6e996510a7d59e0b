#pragma once

#include <windows.h>

#include <atomic>
#include <memory>

#include "com/type_library.h"
#include "shell/application.h"
#include "win32/base/unknown_object.h"
#include "win32/desktop/desktop.h"

namespace tavrin::com {

/// The loaded component: what keeps it loaded, and the windows' application, which the first call makes.
class Server {
  public:
    explicit Server(HINSTANCE instance) : instance_(instance), types_(instance) {}

    HINSTANCE Instance() const { return instance_; }
    TypeLibrary& Types() { return types_; }

    /// The objects that clients hold; references of the windows themselves do not count.
    win32::ObjectCount& Objects() { return objects_; }
    void Lock() { ++locks_; }
    void Unlock() { --locks_; }

    /// What all windows share, made on first use.
    shell::Application& Application();

    /// If nothing needs the component any more, lets go of the host's connection and listeners.
    /// \return whether the component may be unloaded now
    bool Retire();

  private:
    bool IsNeeded() const;

    HINSTANCE instance_;
    TypeLibrary types_;
    win32::ObjectCount objects_;
    std::atomic<long> locks_ = 0;
    std::unique_ptr<win32::Desktop> desktop_;
    std::unique_ptr<shell::Application> application_;
};

}  // namespace tavrin::com
