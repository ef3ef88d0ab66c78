// The way to the viewers.
#include "library/crashlogs/report_opening.hpp"

#include "bindings/uikit/navigation_controller.hpp"
#include "library/common/animated.hpp"
#include "library/files/browser/file_reading.hpp"
#include "library/files/file_kind.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"
#include "library/files/viewers/image_content_view_controller.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"

namespace wentra::crashlogs {
namespace {

bool showsPicture(const ReportEntry& entry) { return files::isImage(entry.name().utf8()); }

} // namespace

void ReportOpening::open(unsigned long row) {
    const ReportEntry entry = lists_.at(row);
    if (files::isFolder(entry.url.path().utf8())) {
        if (preferences::Preferences::read().on(preferences::keys.browseFolders)) {
            lists_.walkInto(entry.url);
        }
    } else if (showsPicture(entry)) {
        openPicture(row);
    } else {
        openText(entry.url);
    }
}

void ReportOpening::openPicture(unsigned long row) const {
    const auto pictures = ns::MutableArray::make();
    unsigned long current = 0;
    for (unsigned long each = 0; each < lists_.count(); ++each) {
        const ReportEntry entry = lists_.at(each);
        current = each == row ? pictures.count() : current;
        if (showsPicture(entry)) {
            pictures.add(entry.url);
        }
    }
    push(files::ImageContentViewController::with(pictures.assume<ns::ArrayOf<ns::Url>>(),
                                                 static_cast<long>(current)));
}

void ReportOpening::openText(ns::Url url) const {
    const auto text = self().send<"contentForFileAtURL:", ns::String>(url);
    push(files::FileContentViewController::with(text, url));
}

ns::String ReportOpening::content(ns::Url url) const { return files::textOfFile(url); }

void ReportOpening::push(ui::ViewController viewer) const {
    const ui::NavigationController navigation = self().navigationController();
    navigation.push(viewer, animated);
    navigation.setToolbarHidden(true, animated);
}

} // namespace wentra::crashlogs
