// Compiled with _GLIBCXX_USE_CXX11_ABI 0: the string here is the one that the C++ library had before C++11,
// in which std::runtime_error and its like still hold their texts. See runtime_strings.cpp.

#include <string>

#ifndef __clang__  // which takes these for something else, and does not make the DLL that ships

template void std::string::swap(std::string&);
template std::string& std::string::assign(const std::string&);
template char* std::string::_S_construct(std::size_t, char, const std::allocator<char>&);
template void std::string::_Rep::_M_destroy(const std::allocator<char>&);
template void std::string::_Rep::_M_dispose(const std::allocator<char>&);
template char* std::string::_Rep::_M_clone(const std::allocator<char>&, std::size_t);
template std::string::_Rep* std::string::_Rep::_S_create(std::size_t, std::size_t,
                                                         const std::allocator<char>&);

#endif
