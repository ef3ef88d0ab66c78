// Where picked words go: the pasteboard and the share sheet.
#pragma once

#include "library/toolbox/grid/selection.hpp"

namespace wentra::toolbox {

class PickedText : public objc::Part<FloatingViewController> {
public:
    PickedText(FloatingViewController whole, const Selection& selection)
        : Part(whole), selection_(selection) {}
    static PickedText& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"pasteButtonClicked:", &PickedText::copy>(),
            objc::method<"shareButtonClicked:", &PickedText::share>(),
        };
    }

private:
    /// Writes what is picked, or else what is there already, to the pasteboard. The tiles stay as
    /// they are: it is only the picked text that is gone.
    void copy(objc::Object sender);
    void share(objc::Object sender);

    const Selection& selection_;
};

} // namespace wentra::toolbox
