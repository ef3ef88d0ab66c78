// The system's detector finds links, the application opens them.
#include "library/common/links.hpp"

#include "bindings/foundation/data_detector.hpp"
#include "bindings/foundation/set.hpp"
#include "bindings/uikit/application.hpp"

namespace wentra {

ns::MutableArray linksIn(ns::String text) {
    const auto links = ns::MutableArray::make();
    if (!text) {
        return links;
    }
    const auto known = ns::MutableSet::make();
    const auto detector = ns::DataDetector::withTypes(ns::TextCheckingType::link);
    for (const ns::TextCheckingResult match : detector.matches(text, {0, text.length()})) {
        const ns::String link = match.url().absoluteString();
        if (link.length() > 0 && !known.contains(link)) {
            known.add(link);
            links.add(link);
        }
    }
    return links;
}

void openUrl(ns::Url url) {
    if (url) {
        ui::Application::sharedApplication().openUrl(url);
    }
}

void openLink(ns::String address) { openUrl(ns::Url::withString(address)); }

} // namespace wentra
