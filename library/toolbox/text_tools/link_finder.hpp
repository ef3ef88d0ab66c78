// Finds what a text leads to, and opens one of it.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/objc/part.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/grid/selection.hpp"

namespace wentra::toolbox {

class LinkFinder : public objc::Part<FloatingViewController> {
public:
    LinkFinder(FloatingViewController whole, const Selection& selection)
        : Part(whole), selection_(selection) {}
    static LinkFinder& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"linkTitleDictionary", &LinkFinder::titles_>(),
            objc::method<"ljtzButtonClicked:", &LinkFinder::find>(),
            objc::method<"linksInString:", &LinkFinder::webLinksIn>(),
        };
    }

    /// Makes the titles of the schemes.
    void begin();

private:
    void find(objc::Object sender);
    [[nodiscard]] ns::Array webLinksIn(ns::String text) const;
    [[nodiscard]] ns::Array candidates(ns::String text) const;
    void offer(ns::Array candidates) const;

    const Selection& selection_;
    objc::Strong<ns::Dictionary> titles_;
};

} // namespace wentra::toolbox
