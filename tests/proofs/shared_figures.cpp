#include "proofs/shared_figures.h"

#include <sanitizer/common_interface_defs.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <vector>

namespace tavrin::tests {
namespace {

void (*dying)() = nullptr;

void OnAbort(int /*signal*/) {
    if (dying != nullptr) dying();
    std::_Exit(1);
}

}  // namespace

void* MapShared(std::size_t size) {
    void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "mmap");
    return memory;
}

bool RunInProcesses(int jobs, const std::function<int(int)>& work) {
    std::fflush(nullptr);
    std::vector<pid_t> children;
    for (int job = 0; job < jobs; ++job) {
        const pid_t child = fork();
        if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
        if (child == 0) std::exit(work(job));  // by way of exit, where leaks are looked for
        children.push_back(child);
    }
    bool fine = true;
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        fine = fine && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    return fine;
}

void WhenDying(void (*callback)()) {
    dying = callback;
    std::signal(SIGABRT, OnAbort);
#ifdef TAVRIN_SANITIZED
    __sanitizer_set_death_callback(callback);
#endif
}

}  // namespace tavrin::tests
