// The pad that collects what is copied while Settings is open.
#pragma once

#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::scratchpad {

/// A panel over a controller's view, hidden until something is copied. Main thread only.
class ScratchPad {
public:
    /// Adds a panel and what it is dropped on to put it away; they live as long as the view.
    static ScratchPad over(ui::ViewController controller);

    /// Shows the panel and adds the text to it on a line of its own. All of it is written to a file
    /// in the application's documents, unless that fails.
    void add(ns::String text) const;

private:
    ScratchPad(ui::View panel, ui::TextView text) : panel_(panel), text_(text) {}

    objc::Strong<ui::View> panel_;
    objc::Strong<ui::TextView> text_;
};

} // namespace wentra::scratchpad
