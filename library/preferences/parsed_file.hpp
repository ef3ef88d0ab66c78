// What the bytes of a preference file say, worked out once.
#pragma once

#include "library/preferences/key_table.hpp"
#include "library/preferences/property_list/padded_bytes.hpp"
#include "library/preferences/property_list/property_list.hpp"

#include <array>
#include <optional>
#include <string_view>

namespace wentra::preferences {

/// The bytes of a file and the values in them: none when they hold no dictionary. Never changes.
class ParsedFile {
public:
    /// A larger file counts as an empty one; in bytes.
    static constexpr std::size_t largest = std::size_t{16} << 20;

    explicit ParsedFile(PaddedBytes bytes);

    /// As they stand in the file.
    std::string_view bytes() const { return bytes_.view(); }

    /// Whether they hold a dictionary.
    bool isSound() const { return isSound_; }

    /// The value of any key (UTF-8), which refers to this object. A key that is not in the table of
    /// keys costs another pass over the bytes.
    Value find(std::string_view name) const;

private:
    const PaddedBytes& document() const { return recoded_ ? *recoded_ : bytes_; }

    PaddedBytes bytes_;
    std::optional<PaddedBytes> recoded_; ///< text of another encoding than UTF-8
    bool isSound_ = false;
    std::array<Value, knownKeyCount> known_{};
};

} // namespace wentra::preferences
