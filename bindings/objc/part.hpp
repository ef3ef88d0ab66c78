// Parts of a peer: objects with a subject of their own that list their rows themselves.
#pragma once

#include "bindings/objc/method.hpp"
#include "bindings/objc/object.hpp"

#include <algorithm>
#include <array>

namespace objc {

/// The base of a part, a member of a peer that answers some of the messages to the peer's object:
///
///     class Title : public objc::Part<GripKind> {
///     public:
///         using Part::Part;
///         static Title& of(objc::Object grip); // defined next to the peer: its member
///         static constexpr auto methods() { return std::array{objc::property<"title",
///         &Title::text_>()}; }
///     private:
///         objc::Copied<ns::String> text_;
///     };
///
/// The peer makes it with `Title title_{self()}` and lists its rows with `objc::join`. Parts of one
/// peer may keep references to one another: they are made and destroyed together and never move.
template <class Kind, Boundary Border = Boundary::contained>
class Part {
public:
    static constexpr Boundary border = Border;

    /// `whole` is the object that the part lives in; it is not retained.
    explicit Part(Kind whole) : whole_(whole) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    /// The object that the messages come to.
    [[nodiscard]] Kind self() const { return whole_; }

protected:
    ~Part() = default;

private:
    Kind whole_;
};

/// The rows of several tables, one after the other.
template <std::size_t... Counts>
constexpr auto join(const std::array<MethodRow, Counts>&... tables) {
    std::array<MethodRow, (Counts + ... + 0)> rows;
    auto end = rows.begin();
    ((end = std::ranges::copy(tables, end).out), ...);
    return rows;
}

} // namespace objc
