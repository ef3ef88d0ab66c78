// View controllers: editing what they show, and the button that begins and ends it.
#include "bindings/uikit/bar_button_item.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"

namespace desktop {

using namespace ns::literals;

void ViewController::setEditing(bool editing) {
    self().send<"setEditing:animated:">(objc::Boolean(editing), objc::Boolean(false));
}

void ViewController::setEditingAnimated(bool editing, bool) {
    editing_ = editing;
    editButton_.setTitle(editing ? u"完成"_ns : u"编辑"_ns);
    editButton_.send<"setStyle:">(editing ? ui::BarButtonStyle::done : ui::BarButtonStyle::plain);
}

ui::BarButtonItem ViewController::editButtonItem() {
    if (!editButton_) {
        editButton_ = ui::BarButtonItem::withTitle(editing_ ? u"完成"_ns : u"编辑"_ns,
                                                   ui::BarButtonStyle::plain, self(),
                                                   objc::selector<"editButtonPressed">());
    }
    return editButton_;
}

void ViewController::editButtonPressed() {
    self().send<"setEditing:animated:">(objc::Boolean(!editing_), objc::Boolean(true));
}

} // namespace desktop
