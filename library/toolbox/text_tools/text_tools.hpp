// What the toolbox finds out about a text: Unicode escapes, links, libraries of a crash report.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/objc/part.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/grid/selection.hpp"

namespace wentra::toolbox {

/// The tools read the picked words without anything between them, or else the pasteboard.
class TextTools : public objc::Part<FloatingViewController> {
public:
    TextTools(FloatingViewController whole, const Selection& selection)
        : Part(whole), selection_(selection) {}
    static TextTools& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"umzhButtonClicked:", &TextTools::convert>(),
            objc::method<"isUnicode:", &TextTools::isUnicode>(),
            objc::method<"utf8ToUnicode:", &TextTools::escaped>(),
            objc::method<"replaceUnicode:", &TextTools::unescaped>(),
            objc::method<"dylibLinesInString:", &TextTools::libraryLines>(),
            objc::method<"isSystemDylib:", &TextTools::isSystemLibrary>(),
            objc::method<"zzjsButtonClicked:", &TextTools::analyse>(),
        };
    }

private:
    void convert(objc::Object sender);
    [[nodiscard]] bool isUnicode(ns::String text) const;
    [[nodiscard]] ns::String escaped(ns::String text) const;
    /// Nil when the escapes are malformed.
    [[nodiscard]] ns::String unescaped(ns::String text) const;
    [[nodiscard]] ns::Array libraryLines(ns::String text) const;
    [[nodiscard]] bool isSystemLibrary(ns::String line) const;
    void analyse(objc::Object sender);

    const Selection& selection_;
};

} // namespace wentra::toolbox
