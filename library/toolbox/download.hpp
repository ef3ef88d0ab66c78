// The downloader's place on the controller.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/button.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The download in progress, its bar and the button that ends it.
class Download : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static Download& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"progressView", &Download::progressView_>(),
            objc::property<"downloadTask", &Download::task_>(),
            objc::property<"canceldownloadButton", &Download::cancelButton_>(),
        };
    }

private:
    objc::Strong<ui::View> progressView_;
    objc::Strong<objc::Object> task_;
    objc::Strong<ui::Button> cancelButton_;
};

} // namespace wentra::toolbox
