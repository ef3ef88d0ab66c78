// The files that the tools read and write in the user's documents.
#pragma once

#include "bindings/foundation/data.hpp"

namespace wentra::utilities {

/// A text's file, whatever the layout of the jailbreak. NUL-terminated UTF-8.
struct DocumentFile {
    const char* path;

    [[nodiscard]] ns::String name() const { return ns::String::fromUtf8(path); }
    /// In one step: the former file stays where writing fails. Nil when it was written.
    [[nodiscard]] ns::Error write(std::string_view utf8) const {
        return ns::Data::from(utf8).writeToFile(name(), ns::DataWritingOptions::atomic);
    }
};

} // namespace wentra::utilities
