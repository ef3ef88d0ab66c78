// The members of strings that the C++ library's headers expect to find compiled.
#include <string>

_LIBCPP_BEGIN_NAMESPACE_STD

template class basic_string<char>;
template string operator+<char, char_traits<char>, allocator<char>>(const char*, const string&);

_LIBCPP_END_NAMESPACE_STD
