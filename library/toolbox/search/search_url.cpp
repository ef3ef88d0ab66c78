// Texts become parts of addresses.
#include "library/toolbox/search/search_url.hpp"

#include "library/common/percent_encoding.hpp"

namespace wentra::toolbox {
namespace {

constexpr std::u16string_view placeholder = u"%@";

std::u16string filled(std::u16string_view format, std::u16string_view text) {
    const std::size_t place = format.find(placeholder);
    std::u16string result(format.substr(0, place));
    return result.append(text).append(format.substr(place + placeholder.size()));
}

std::u16string encoded(std::u16string_view text) {
    const std::string bytes = percentEncoded(text, percent::queryAllowed);
    return {bytes.begin(), bytes.end()}; // ASCII only
}

} // namespace

std::u16string searchAddress(const SearchUrl& url, std::u16string_view text) {
    return filled(url.format, encoded(text));
}

std::u16string productListAddress(std::u16string_view text) {
    constexpr std::u16string_view parameter =
        uR"({"des":"productList","keyWord":"%@","from":"search","category":"jump"})";
    return u"openjd://virtual?params=" + encoded(filled(parameter, text));
}

std::u16string webAddress(std::u16string_view address) {
    const bool isWhole =
        address.empty() || address.starts_with(u"http://") || address.starts_with(u"https://");
    return isWhole ? std::u16string(address) : u"https://" + std::u16string(address);
}

} // namespace wentra::toolbox
