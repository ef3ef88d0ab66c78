// What the address of a web page tells without asking anybody.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace desktop::viewer {

/// All texts are UTF-8 as far as the address is, and none is escaped for HTML.
struct PageAddress {
    std::string host; ///< lower case; empty when it has none
    /// Scheme, host and port, of nothing but letters, digits and ".-_:/"; empty for what no browser
    /// is to load: other schemes than http and https, hosts of other letters, and addresses of more
    /// than `longestAddress` bytes.
    std::string site;
    std::string words; ///< what is sought or to be translated; empty when nothing is
    bool translates = false;
    /// All else in the query, decoded, in alphabetical order.
    std::vector<std::pair<std::string, std::string>> query;
};

inline constexpr std::size_t longestAddress = 32'768;

/// Any text: what cannot be read as an address has no host and no site.
[[nodiscard]] PageAddress readPageAddress(const std::string& address);

/// The beginning of a text in UTF-8, of at most that many bytes and whole characters; with "…"
/// where something is missing.
[[nodiscard]] std::string beginningOf(std::string_view text, std::size_t bytes);

} // namespace desktop::viewer
