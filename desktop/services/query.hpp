// The query of a request's target.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace desktop::services {

/// The names and values after the "?" of a target such as "/path?q=a%20b&to=zh", decoded: "%XX" is
/// a byte, "+" a space, a malformed escape stays as it is. Of equal names, the last one counts.
std::map<std::string, std::string> queryOf(std::string_view target);

/// All that is behind the first "name=" of the query, "&" and "+" included, its "%XX" decoded: an
/// address that a client has put there as it stands. Empty when there is none of that name.
std::string restBehind(std::string_view target, std::string_view name);

/// The bytes of a text in which "%XX" is one; a malformed escape stays as it is.
std::string percentDecoded(std::string_view text);

/// The target without its query.
std::string_view pathOf(std::string_view target);

} // namespace desktop::services
