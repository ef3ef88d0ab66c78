// The members of strings that the C++ library's headers expect to find compiled.
#include <charconv>
#include <limits>
#include <string>

namespace {

template <class Number>
std::string decimal(Number number) {
    char text[std::numeric_limits<Number>::digits10 + 2];
    return {text, std::to_chars(text, text + sizeof(text), number).ptr};
}

} // namespace

_LIBCPP_BEGIN_NAMESPACE_STD

template class basic_string<char>;
template string operator+<char, char_traits<char>, allocator<char>>(const char*, const string&);

string to_string(unsigned number) { return decimal(number); }
string to_string(unsigned long number) { return decimal(number); }
string to_string(long number) { return decimal(number); }
string to_string(unsigned long long number) { return decimal(number); }

_LIBCPP_END_NAMESPACE_STD
