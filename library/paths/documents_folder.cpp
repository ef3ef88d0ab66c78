// Asks the system for the folder.
#include "library/paths/documents_folder.hpp"

#include "bindings/foundation/file_manager.hpp"

namespace wentra::paths {

ns::String documentPath(std::u16string_view name) {
    const ns::Url folder =
        ns::FileManager::defaultManager()
            .urlsFor(ns::SearchPathDirectory::document, ns::SearchPathDomainMask::user)
            .first();
    if (!folder) {
        return nullptr;
    }
    std::u16string path = folder.path().utf16();
    path += u'/';
    path += name;
    return ns::String::from(path);
}

} // namespace wentra::paths
