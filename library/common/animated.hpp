// What a message's argument of that name says in words.
#pragma once

namespace wentra {

inline constexpr bool animated = true;

} // namespace wentra
