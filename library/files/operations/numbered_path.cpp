// Counts up to a free name.
#include "library/files/operations/numbered_path.hpp"

#include "library/files/file_path.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {

std::string numberedPath(const std::string& source, const std::string& destination) {
    std::string path = destination;
    for (unsigned counter = 1; entryExists(path); ++counter) {
        std::string name(baseOf(source));
        name.append("-").append(std::to_string(counter)).append(".").append(extensionOf(source));
        path = joined(parentOf(destination), name);
    }
    return path;
}

} // namespace wentra::files
