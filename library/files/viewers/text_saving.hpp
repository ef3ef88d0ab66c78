// Saving what the text viewer shows.
#pragma once

#include "bindings/foundation/notification.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/bar_button_item.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"

namespace wentra::files {

class TextSaving : public objc::Part<FileContentViewController> {
public:
    using Part::Part;
    ~TextSaving();
    static TextSaving& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"saveFile", &TextSaving::save>(),
            objc::method<"textViewDidChangeText:", &TextSaving::textChanged>(),
        };
    }

    /// The bar's button, of no use until the text is edited.
    void add();

private:
    void save();
    void textChanged(ns::Notification) { button_.setEnabled(true); }

    objc::Strong<ui::BarButtonItem> button_;
};

} // namespace wentra::files
