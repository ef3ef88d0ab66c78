// Writes the file in one step, and tells how it went.
#include "library/files/viewers/text_saving.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/result.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "library/common/alert.hpp"

#include <cstdlib>
#include <memory>

namespace wentra::files {
namespace {

using namespace ns::literals;

ns::String failure(ns::Error error) {
    return ns::String::from(u"文件保存失败: " + ns::description(error).utf16());
}

/// The file that a link leads to, so that the link stays one.
ns::String written(ns::Url url) {
    const std::string path = url.path().utf8();
    const std::unique_ptr<char, void (*)(void*)> target(realpath(path.c_str(), nullptr), &free);
    return target ? ns::String::fromUtf8(target.get()) : url.path();
}

} // namespace

TextSaving::~TextSaving() { ns::NotificationCenter::defaultCenter().removeObserver(self()); }

void TextSaving::add() {
    button_ = ui::BarButtonItem::withSystemItem(ui::BarButtonSystemItem::save, self(),
                                                objc::selector<"saveFile">());
    button_.setEnabled(false);
    self().navigationItem().setRightBarButtonItem(button_);
    ns::NotificationCenter::defaultCenter().addObserver(
        self(), objc::selector<"textViewDidChangeText:">(), ui::textViewTextDidChange(), nullptr);
}

/// Of a text that was not shown to its end, the rest is lost: what is saved is what is shown.
void TextSaving::save() {
    constexpr double shownSeconds = 0.6;
    constexpr bool atomically = true;
    const ns::Error error = self().textView().text().writeToFile(
        written(self().fileUrl()), atomically, ns::StringEncoding::utf8);
    if (!error) {
        button_.setEnabled(false);
    }
    const Alert alert =
        error ? Alert(u"Fail"_ns, failure(error)) : Alert(u"Success"_ns, u"文件保存成功"_ns);
    alert.presentFor(shownSeconds, self());
}

} // namespace wentra::files
