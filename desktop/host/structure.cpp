// Converting structures.
#include "desktop/host/structure.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace desktop::host {
namespace {

constexpr std::array<Structure, 6> structures{{
    {"rect", {"CGRect", "_NSRect"}, 4, true},
    {"point", {"CGPoint", "_NSPoint"}, 2, true},
    {"size", {"CGSize", "_NSSize"}, 2, true},
    {"range", {"_NSRange", "NSRange"}, 2, false},
    {"transform", {"CGAffineTransform", "_NSAffineTransformStruct"}, 6, true},
    {"insets", {"UIEdgeInsets", "NSEdgeInsets"}, 4, true},
}};

using Field = std::array<std::byte, sizeof(double)>;

Field fieldFromJson(const Json& value, bool isFloating) {
    if (isFloating && value.is_number()) {
        return std::bit_cast<Field>(value.get<double>());
    }
    if (!isFloating && value.is_number_unsigned()) {
        return std::bit_cast<Field>(value.get<std::uint64_t>());
    }
    throw RequestError(written(value) + " does not fit into the structure");
}

Json fieldToJson(const Field& field, bool isFloating) {
    return isFloating ? Json(std::bit_cast<double>(field))
                      : Json(std::bit_cast<std::uint64_t>(field));
}

} // namespace

Structure::Bytes Structure::fromJson(const Json& value) const {
    const auto fields = value.is_object() ? value.find(key) : value.end();
    if (!value.is_object() || fields == value.end() || !fields->is_array() ||
        fields->size() != fieldCount) {
        throw RequestError(std::string("expected {\"") + key + "\":[" + std::to_string(fieldCount) +
                           " numbers]}, got " + written(value));
    }
    Bytes bytes{};
    for (std::size_t i = 0; i < fieldCount; ++i) {
        const Field field = fieldFromJson((*fields)[i], isFloating);
        std::ranges::copy(field, bytes.begin() + static_cast<std::ptrdiff_t>(i * field.size()));
    }
    return bytes;
}

Json Structure::toJson(const Bytes& bytes) const {
    Json fields = Json::array();
    for (std::size_t i = 0; i < fieldCount; ++i) {
        Field field{};
        std::memcpy(field.data(), &bytes[i * field.size()], field.size());
        fields.push_back(fieldToJson(field, isFloating));
    }
    return {{key, std::move(fields)}};
}

const Structure* structureOf(std::string_view encoding) {
    if (!encoding.starts_with('{')) {
        return nullptr;
    }
    const std::string_view name = encoding.substr(1, encoding.find_first_of("=}") - 1);
    const auto* found = std::ranges::find_if(structures, [name](const Structure& structure) {
        return std::ranges::count(structure.names, name) != 0;
    });
    return found == structures.end() ? nullptr : found;
}

const Structure* structureForKey(std::string_view key) {
    const auto* found = std::ranges::find(
        structures, key, [](const Structure& s) { return std::string_view(s.key); });
    return found == structures.end() ? nullptr : found;
}

} // namespace desktop::host
