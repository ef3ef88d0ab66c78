// The lists of extensions.
#include "library/crashlogs/report_name.hpp"

#include "library/files/file_path.hpp"

#include <algorithm>
#include <array>

namespace wentra::crashlogs {
namespace {

using namespace std::string_view_literals;

constexpr std::array reports{"ips"sv, "synced"sv};
constexpr std::array documents{"ips"sv, "json"sv, "txt"sv, "jpg"sv, "png"sv, "jpeg"sv};

bool contains(const auto& extensions, std::string_view extension) {
    return std::ranges::find(extensions, extension) != extensions.end();
}

} // namespace

bool isListed(std::string_view name, Shown shown) {
    const std::string_view extension = files::extensionOf(name);
    return shown == Shown::reports ? contains(reports, extension) : contains(documents, extension);
}

} // namespace wentra::crashlogs
