#pragma once

#include <cstddef>
#include <functional>
#include <new>

namespace tavrin::tests {

/// Memory for one object that forked processes write and their parent reads.
void* MapShared(std::size_t size);

template <class Figures>
Figures& ShareFigures() {
    return *::new (MapShared(sizeof(Figures))) Figures();
}

/// Runs `work(job)` in that many processes of their own and waits for all. True when each ended with 0.
bool RunInProcesses(int jobs, const std::function<int(int)>& work);

/// Calls back when a sanitizer or abort() ends this process.
void WhenDying(void (*callback)());

}  // namespace tavrin::tests
