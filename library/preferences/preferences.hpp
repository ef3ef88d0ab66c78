// The user's preferences as they stand in their file at this moment.
#pragma once

#include "library/preferences/parsed_file.hpp"
#include "library/preferences/preference_keys.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace wentra::preferences {

/// A snapshot of the preference file, which is a property list of any form: XML, binary or the old
/// plain text. A file that is missing, no regular file, larger than 16 MB, cut short, malformed
/// anywhere, or that holds no dictionary counts as an empty one. Of entries with equal keys the
/// last counts, in binary files too. Never changes once made, costs little to copy and may be read
/// from any thread.
///
/// Every reading reads all bytes of the file. Only when they differ from those of the last reading
/// are they parsed: readings of a file that nobody changed share what was found then.
class Preferences {
public:
    /// The file at preferencePath(), read anew at every call. Any thread.
    static Preferences read();

    /// The file at `path` (UTF-8). Any thread.
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

    /// Whether both are made from the same bytes for sure, as those of two readings of a file that
    /// nobody changed between.
    bool sharesWith(const Preferences& other) const { return file_ == other.file_; }

private:
    explicit Preferences(std::shared_ptr<const ParsedFile> file) : file_(std::move(file)) {}

    Value find(std::string_view name) const { return file_ ? file_->find(name) : Value(); }

    std::shared_ptr<const ParsedFile> file_; ///< null stands for an empty file
};

} // namespace wentra::preferences
