// Opens what is tapped.
#include "library/files/browser/opening.hpp"

#include "bindings/uikit/navigation_controller.hpp"
#include "library/common/animated.hpp"
#include "library/files/browser/file_reading.hpp"
#include "library/files/file_kind.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"
#include "library/files/viewers/image_content_view_controller.hpp"

namespace wentra::files {

void Opening::select(ui::TableView table, ns::IndexPath row) {
    const auto path = panes_.entry(table, row);
    if (!path) {
        return;
    }
    panes_.touch(table, *path);
    if (isFolder(*path)) {
        panes_.setFolder(table, *path);
        panes_.reload();
    } else if (isText(*path)) {
        showText(*path);
    } else if (isImage(*path)) {
        showImage(table, *path);
    }
}

void Opening::showText(const std::string& path) const {
    const ns::Url url = urlOf(path);
    push(FileContentViewController::with(content(url), url));
}

void Opening::showImage(ui::TableView table, const std::string& path) const {
    const auto urls = ns::MutableArray::make();
    long index = 0;
    for (const std::string& image : panes_.entries(table)) {
        if (const ns::Url url = isImage(image) ? urlOf(image) : ns::Url(); url) {
            index = image == path ? static_cast<long>(urls.count()) : index;
            urls.add(url);
        }
    }
    push(ImageContentViewController::with(urls.assume<ns::ArrayOf<ns::Url>>(), index));
}

void Opening::push(ui::ViewController viewer) const {
    self().navigationController().push(viewer, animated);
}

bool Opening::isImagePath(ns::String path) const { return isImage(pathOf(path)); }
bool Opening::isTextFile(ns::String path) const { return isText(pathOf(path)); }
bool Opening::isDirectory(ns::String path) const { return isFolder(pathOf(path)); }

ns::String Opening::content(ns::Url url) const {
    const ns::String text = textOfFile(url);
    return text ? text : ns::String::from(u"");
}

} // namespace wentra::files
