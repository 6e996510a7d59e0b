#pragma once

#include <windows.h>

namespace tavrin::win32 {

/// The component's own side-by-side manifest (resource 2 of its module), which gives its windows the current
/// common controls inside a host that asks for none. A module without that resource gets what the host has.
class ActivationContext {
  public:
    explicit ActivationContext(HINSTANCE module);
    ~ActivationContext();
    ActivationContext(const ActivationContext&) = delete;
    ActivationContext& operator=(const ActivationContext&) = delete;

    /// Makes the context the thread's own while windows are created.
    class Scope {
      public:
        explicit Scope(const ActivationContext& context);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        ULONG_PTR cookie_ = 0;  // before active_, whose initialisation writes it
        bool active_;
    };

  private:
    HANDLE context_;
};

}  // namespace tavrin::win32
