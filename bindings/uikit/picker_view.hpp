// UIPickerView: wheels to choose from.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct PickerView : objc::Kind<PickerView, "UIPickerView", View> {
    using Kind::Kind;

    // The two are not retained.
    void setDataSource(objc::Object source) const { send<"setDataSource:">(source); }
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
};

} // namespace ui
