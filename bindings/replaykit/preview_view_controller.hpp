// RPPreviewViewController: shows what was recorded, and lets a person keep it.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace rp {

struct PreviewViewController
    : objc::Kind<PreviewViewController, "RPPreviewViewController", ui::ViewController> {
    using Kind::Kind;

    /// Not retained; it is told by `previewControllerDidFinish:` to dismiss the preview.
    void setPreviewControllerDelegate(objc::Object delegate) const {
        send<"setPreviewControllerDelegate:">(delegate);
    }
};

} // namespace rp
