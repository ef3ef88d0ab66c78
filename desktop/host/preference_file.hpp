// A file on the device that holds preferences.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/property_list_serialization.hpp"

#include <filesystem>

namespace desktop::host {

class PreferenceFile {
public:
    explicit PreferenceFile(std::filesystem::path path) : path_(std::move(path)) {}
    /// That of the library: where it is depends on the jailbreak's layout.
    static PreferenceFile ofLibrary();

    /// The dictionary in the file; nil when there is no file, or none with a dictionary in it.
    [[nodiscard]] ns::Dictionary read() const;
    /// Writes the file as a whole, with the folders that lead to it. Throws RequestError when it
    /// cannot be written, or when `entries` is not a property list.
    void write(ns::Dictionary entries, ns::PropertyListFormat format) const;
    /// Nothing happens when there is none.
    void remove() const;

private:
    std::filesystem::path path_;
};

} // namespace desktop::host
