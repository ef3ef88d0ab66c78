// Makes viewers that need not be there.
#include "library/files/browser/viewers.hpp"

namespace wentra::files {
namespace {

ui::ViewController allocated(const char* className) {
    const Class cls = objc_lookUpClass(className);
    return cls == nullptr ? ui::ViewController()
                          : objc::send<"alloc", ui::ViewController>(objc::object(cls));
}

ui::ViewController made(const char* className) {
    return allocated(className)
        .send<"init", ui::ViewController>()
        .send<"autorelease", ui::ViewController>();
}

template <class Value>
void set(ui::ViewController viewer, const char* setter, Value value) {
    objc::sendTo(viewer.raw(), sel_registerName(setter), value);
}

ui::ViewController answer(ui::ViewController viewer, const char* message, ns::String text) {
    return objc::sendTo<ui::ViewController>(viewer.raw(), sel_registerName(message), text);
}

} // namespace

ui::ViewController textViewer(ns::String text, ns::Url url) {
    const auto viewer = made("FileContentViewController");
    set(viewer, "setFileContent:", text);
    set(viewer, "setFileURL:", url);
    return viewer;
}

ui::ViewController imageViewer(ns::Array urls, long index) {
    const auto viewer = made("ImageContentViewController");
    set(viewer, "setImageURLs:", urls);
    set(viewer, "setCurrentIndex:", index);
    return viewer;
}

ui::ViewController hexViewer(ns::String path) {
    return answer(allocated("HexEditorViewController"), "initWithSrcPath:", path)
        .send<"autorelease", ui::ViewController>();
}

} // namespace wentra::files
