#include "com/runtime_memory.h"

#include <exception>  // tells which runtime this is

#ifdef __clang__
#pragma clang diagnostic ignored "-Wreserved-identifier"  // the runtime's own names
#endif

#ifdef __GLIBCXX__
namespace __gnu_cxx {
// The runtime's own name, which no header of it declares.
void __freeres();  // NOLINT(readability-identifier-naming)
}  // namespace __gnu_cxx
#endif

namespace tavrin::com {

void FreeRuntimeMemory() noexcept {
#ifdef __GLIBCXX__
    // Some 73 KB, which a host that loads and frees the component over and over would lose each time.
    __gnu_cxx::__freeres();
#endif
}

}  // namespace tavrin::com
