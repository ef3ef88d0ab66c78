// Who gets what is typed, and actions that are meant for nobody else.
#pragma once

#include "bindings/uikit/view.hpp"

namespace desktop::first_responder {

/// Nil when there is none. Not retained: a responder that goes away is none any more. Main thread.
[[nodiscard]] ui::Responder current();

/// Makes it the first responder, if it wants to be one, is not out of the window, and the present
/// one gives way; the keyboard comes or goes with it. Whether it is the first responder now.
bool become(ui::Responder responder);
/// True when it is not the first responder any more, or never was.
bool resign(ui::Responder responder);

/// There is no first responder any more, and nobody is asked.
void drop();
/// The view has left its window: it cannot be the first responder any more, willing or not.
void leftWindow(ui::View view);
/// The responder is being deallocated.
void forget(ui::Responder responder);

} // namespace desktop::first_responder
