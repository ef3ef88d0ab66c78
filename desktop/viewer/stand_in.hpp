// The pages of our own that stand where the phone shows a web page.
#pragma once

#include "desktop/uikit/uikit.hpp"

#include <string>

namespace desktop::viewer {

/// A page in HTML that plays the one at the address: whose it is, and the words that the address
/// carries. It loads nothing, runs nothing and links to nothing, whatever the address is. `style`
/// is its style sheet.
[[nodiscard]] std::string standInPage(const std::string& address, const std::string& style,
                                      uikit::Appearance appearance);

/// A page in HTML that is nothing but a frame with what is at the address, locked in.
[[nodiscard]] std::string framePage(const std::string& address);

/// What a browser is to allow a stand-in: to be shown in the page of this server.
[[nodiscard]] std::string standInPolicy();

/// What a browser is to allow a frame page: to load that site (page_address.hpp) into the frame,
/// and no other, also where the site itself leads elsewhere.
[[nodiscard]] std::string framePolicy(const std::string& site);

} // namespace desktop::viewer
