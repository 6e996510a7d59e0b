// What the runtime does with an exception that nobody catches. Its own handler prints the exception's name,
// for which it brings a demangler and the C library's printing along, a twentieth of the DLL; and a host has
// no console to read it on.

#include <cstdlib>
#include <exception>

#ifdef __clang__
#pragma clang diagnostic ignored "-Wreserved-identifier"  // the runtime's own names
#endif

namespace __gnu_cxx {

void __verbose_terminate_handler() {  // NOLINT(readability-identifier-naming)
    std::abort();
}

}  // namespace __gnu_cxx
