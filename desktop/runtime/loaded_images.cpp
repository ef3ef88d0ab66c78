// The dynamic loader's list of loaded images.
#include <cstdint>
#include <link.h>
#include <string>
#include <vector>

namespace {

/// Anew at each call: the list grows while the process runs.
const std::vector<std::string>& images() {
    thread_local std::vector<std::string> names;
    names.clear();
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* out) {
            static_cast<std::vector<std::string>*>(out)->emplace_back(info->dlpi_name);
            return 0;
        },
        &names);
    return names;
}

} // namespace

extern "C" {

std::uint32_t _dyld_image_count() { return static_cast<std::uint32_t>(images().size()); }

/// The image's path, null past the end; valid until the next call on this thread. The executable
/// itself has the empty name on Linux.
const char* _dyld_get_image_name(std::uint32_t index) {
    const auto& names = images();
    return index < names.size() ? names[index].c_str() : nullptr;
}
}
