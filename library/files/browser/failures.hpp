// What people read about a change that failed.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {

/// The system's description of the failure.
[[nodiscard]] ns::String descriptionOf(Failure failure);

/// An alert of the controller's with the text and the failure's description behind it.
void showFailure(ui::ViewController controller, std::u16string_view text, Failure failure);

} // namespace wentra::files
