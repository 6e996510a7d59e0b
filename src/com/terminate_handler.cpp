// What the runtime does with an exception that nobody catches. Its own handler prints the exception's name,
// for which it brings a demangler and the C library's printing along, a twentieth of the DLL; and a host has
// no console to read it on.

#include <cstdlib>
#include <exception>

namespace __gnu_cxx {  // NOLINT(bugprone-reserved-identifier): the runtime's own name for it

void __verbose_terminate_handler() {  // NOLINT(bugprone-reserved-identifier,readability-identifier-naming)
    std::abort();
}

}  // namespace __gnu_cxx
