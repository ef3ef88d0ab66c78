// Counting up.
#include "desktop/foundation/numbered_file.hpp"

#include <system_error>

namespace desktop::foundation {

std::filesystem::path numberedFile(const std::filesystem::path& folder, const std::string& prefix,
                                   const std::string& suffix) {
    std::error_code ignored; // writing the file fails then
    std::filesystem::create_directories(folder, ignored);
    int number = 1;
    const auto file = [&] { return folder / (prefix + std::to_string(number) + suffix); };
    while (std::filesystem::exists(file(), ignored)) {
        ++number;
    }
    return file();
}

} // namespace desktop::foundation
