// The panel's ten buttons.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/panel/body_layout.hpp"

#include <span>

namespace wentra::toolbox {

/// Makes the buttons and puts them into the controller's view. `shade` is the alpha of their
/// backgrounds.
void addButtons(FloatingViewController controller, double shade);

/// Puts every button into its place.
void placeButtons(FloatingViewController controller, const BodyLayout& layout);

/// How a function's button looks, whatever it does. Two of the panel's are of a paler colour.
enum class ButtonTone { usual, pale };
void styleButton(ui::Button button, ButtonTone tone, double shade);

/// `setButton:withFrame:`.
std::span<const objc::Change> buttonCategory();

} // namespace wentra::toolbox
