// What the text viewer can do to the look of its text: colours for its syntax, and the font's size.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/text_attributes.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"

namespace wentra::files {

class TextColouring : public objc::Part<FileContentViewController> {
public:
    using Part::Part;
    static TextColouring& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"changeFontSize", &TextColouring::askForSize>(),
            objc::method<"setFontSize:", &TextColouring::setFontSize>(),
            objc::method<"highlightSyntax", &TextColouring::colour>(),
            objc::method<"highlightTextWithRegex:color:inAttributedString:",
                         &TextColouring::colourMatches>(),
        };
    }

private:
    void askForSize();
    void setFontSize(double points) { self().textView().setFont(ui::Font::system(points)); }
    void colour();
    void colourMatches(ns::String pattern, ui::Color color, ns::MutableAttributedString text) const;
};

} // namespace wentra::files
