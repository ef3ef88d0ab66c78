// The user's preferences as they stand in their file at this moment.
#pragma once

#include "library/startup/key_table.hpp"
#include "library/startup/property_list/padded_bytes.hpp"
#include "library/startup/property_list/property_list.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace wentra::startup {

/// A snapshot of the preference file. A file that is missing, no regular file, larger than 16 MB,
/// cut short, malformed anywhere, or that holds no dictionary counts as an empty one. Of entries
/// with equal keys the last counts, in binary files too. Never changes once made; may be read from
/// any thread.
///
/// Reading costs about as much as opening the file: XML and binary property lists are checked in
/// one pass, which keeps the values of the known keys. XML may be UTF-8 or, with a byte order mark,
/// UTF-16.
class Preferences {
public:
    /// The file at preferencePath(), read anew at every call.
    static Preferences read();

    /// The file at `path` (UTF-8).
    static Preferences readFile(const std::string& path);

    /// The bytes of such a file; they are copied.
    static Preferences parse(std::string_view bytes);

    /// A boolean, a number that is not 0, or a text that NSString's boolValue takes for on.
    bool on(const Switch& key) const { return on(key.name()); }

    /// A number, a boolean as 0 or 1, or the decimal number a text begins with; 0 for other values.
    /// Has float precision, and may be infinite or not a number if the file says so.
    double number(const Number& key) const { return number(key.name()); }

    /// A text; empty for values that are no text.
    std::u16string text(const Text& key) const { return text(key.name()); }

    // The same by a name (UTF-8) known at run time only. Names that are not in the table of keys
    // cost another pass over the file's bytes.
    bool on(std::string_view name) const { return switchValue(find(name)); }
    double number(std::string_view name) const { return numberValue(find(name)); }
    std::u16string text(std::string_view name) const { return textValue(find(name)); }

private:
    Preferences() = default;
    explicit Preferences(PaddedBytes bytes);

    Value find(std::string_view name) const;

    PaddedBytes bytes_;
    std::array<Value, knownKeyCount> known_{};
};

} // namespace wentra::startup
