#pragma once

namespace tavrin::e2e {

/// While it lives, this program refuses memory to the thread that made it, once it has granted it a number of
/// times. What the DLL takes is the DLL's own affair: this is for parts of the component inside this program.
class MemoryShortage {
  public:
    explicit MemoryShortage(int granted);
    ~MemoryShortage();
    MemoryShortage(const MemoryShortage&) = delete;
    MemoryShortage& operator=(const MemoryShortage&) = delete;

    /// Whether memory has been refused.
    static bool WasFelt();
};

}  // namespace tavrin::e2e
