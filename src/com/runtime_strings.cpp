#include <string>

// The exceptions of the C++ library hold their texts in strings, and of the object file with all of a
// string's members they use these two. Made here they spare the DLL that file: of what the linker takes at
// all it leaves out little, as the tables for exceptions refer to every function. runtime_old_strings.cpp
// does the same for another file.

#ifndef __clang__  // as in the other file

template std::string::pointer std::string::_M_create(std::string::size_type&, std::string::size_type);
template void std::string::_M_assign(const std::string&);

#endif
