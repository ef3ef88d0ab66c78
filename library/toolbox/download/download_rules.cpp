// Beginnings and ends of texts.
#include "library/toolbox/download/download_rules.hpp"

namespace wentra::toolbox {

bool isWebAddress(std::u16string_view text) {
    return text.starts_with(u"http://") || text.starts_with(u"https://");
}

bool isFilteredOut(std::u16string_view link) {
    return link.ends_with(u".com") || link.ends_with(u".js") || link.ends_with(u".css");
}

std::u16string_view fileNameIn(std::u16string_view name) {
    name.remove_prefix(name.rfind(u'/') + 1);
    return name.empty() || name == u"." || name == u".." ? u"download" : name;
}

} // namespace wentra::toolbox
