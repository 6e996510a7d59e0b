// The C++ runtime inside this DLL guards what threads share with these few functions of POSIX. The library
// that has them for MinGW brings threads, their cancelling and a clock along, 30 KB of which nothing runs:
// the component lives on its host's thread. Found here first, they spare the DLL that library.

#include "com/runtime_threads.h"

#include <exception>  // tells which runtime this is

#ifdef __GLIBCXX__

#include <windows.h>

#include <pthread.h>

#include <cerrno>

namespace tavrin::com {
namespace {

/// The runtime takes none of its locks twice in one thread, so that a word is enough for one. What stands in
/// a mutex that is held; a free one holds anything else, at first what its initialiser put there.
constexpr LONG Held = 1;

enum OnceState : LONG { NotYet, Begun, Done };

LONG volatile* Word(pthread_mutex_t* mutex) {
    return reinterpret_cast<LONG volatile*>(mutex);
}

/// The one value that the runtime keeps for each thread, and what it does with it when the thread ends.
DWORD threadSlot = FLS_OUT_OF_INDEXES;
void (*endOfThread)(void*) = nullptr;

void WINAPI LeaveThread(void* value) noexcept {
    if (value != nullptr && endOfThread != nullptr) endOfThread(value);
}

}  // namespace

void FreeRuntimeThreads() noexcept {
    // For every thread that has a value, this one last.
    if (threadSlot != FLS_OUT_OF_INDEXES) FlsFree(threadSlot);
    threadSlot = FLS_OUT_OF_INDEXES;
}

}  // namespace tavrin::com

using namespace tavrin::com;

// NOLINTBEGIN(readability-identifier-naming): the standard's names
extern "C" {

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t*) {
    InterlockedExchange(Word(mutex), 0);
    return 0;
}

int pthread_mutex_lock(pthread_mutex_t* mutex) {
    while (InterlockedExchange(Word(mutex), Held) == Held)
        Sleep(0);
    return 0;
}

int pthread_mutex_unlock(pthread_mutex_t* mutex) {
    InterlockedExchange(Word(mutex), 0);
    return 0;
}

int pthread_mutex_destroy(pthread_mutex_t*) {
    return 0;
}

// Whoever waits looks again by himself, so nobody needs to wake him.
int pthread_cond_wait(pthread_cond_t*, pthread_mutex_t* mutex) {
    pthread_mutex_unlock(mutex);
    Sleep(1);
    return pthread_mutex_lock(mutex);
}

int pthread_cond_broadcast(pthread_cond_t*) {
    return 0;
}

int pthread_once(pthread_once_t* o, void (*func)()) {
    if (InterlockedCompareExchange(o, Begun, NotYet) == NotYet) {
        func();
        InterlockedExchange(o, Done);
    }
    while (InterlockedCompareExchange(o, Done, Done) != Done)
        Sleep(0);
    return 0;
}

int pthread_key_create(pthread_key_t* key, void (*dest)(void*)) {
    if (threadSlot != FLS_OUT_OF_INDEXES) return EAGAIN;  // the runtime makes one
    threadSlot = FlsAlloc(LeaveThread);
    if (threadSlot == FLS_OUT_OF_INDEXES) return EAGAIN;
    endOfThread = dest;
    *key = threadSlot;
    return 0;
}

void* pthread_getspecific(pthread_key_t key) {
    return FlsGetValue(key);
}

int pthread_setspecific(pthread_key_t key, const void* value) {
    return FlsSetValue(key, const_cast<void*>(value)) != FALSE ? 0 : ENOMEM;
}

/// The clock that never goes back; nothing here asks for another.
int clock_gettime(clockid_t, struct timespec* tp) {
    constexpr LONGLONG NanosecondsPerSecond = 1000000000;
    LARGE_INTEGER now{};
    LARGE_INTEGER frequency{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    const LONGLONG rest = now.QuadPart % frequency.QuadPart;
    tp->tv_sec = static_cast<time_t>(now.QuadPart / frequency.QuadPart);
    tp->tv_nsec = static_cast<long>(rest * NanosecondsPerSecond / frequency.QuadPart);
    return 0;
}
}
// NOLINTEND(readability-identifier-naming)

#else

void tavrin::com::FreeRuntimeThreads() noexcept {}

#endif
