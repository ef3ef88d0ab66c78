// The dynamic loader's list of loaded images.
#include "bindings/dyld/images.hpp"

#include <filesystem>
#include <link.h>
#include <string>
#include <utility>
#include <vector>

namespace {

/// How many images have come and gone so far.
unsigned long long changes() {
    unsigned long long count = 0;
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* out) {
            *static_cast<unsigned long long*>(out) = info->dlpi_adds + info->dlpi_subs;
            return 1; // all of them tell the same
        },
        &count);
    return count;
}

/// Anew whenever an image has come or gone.
const std::vector<std::string>& images() {
    thread_local unsigned long long known = 0;
    thread_local std::vector<std::string> names;
    if (const auto now = changes(); std::exchange(known, now) == now) {
        return names;
    }
    names.clear();
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* out) {
            // Linux leaves the executable's own name empty.
            std::error_code ignored;
            static_cast<std::vector<std::string>*>(out)->emplace_back(
                info->dlpi_name[0] != '\0'
                    ? std::string(info->dlpi_name)
                    : std::filesystem::read_symlink("/proc/self/exe", ignored).string());
            return 0;
        },
        &names);
    return names;
}

} // namespace

std::uint32_t _dyld_image_count() { return static_cast<std::uint32_t>(images().size()); }

/// The image's path, null past the end; valid until the next call on this thread.
const char* _dyld_get_image_name(std::uint32_t index) {
    const auto& names = images();
    return index < names.size() ? names[index].c_str() : nullptr;
}
