// Putting a translation in the place of its original, and back, with a word to the user.
#pragma once

#include "bindings/uikit/view.hpp"

namespace wentra::toolbox {

/// From now on labels show the translation for the original, and a notice over the view says so.
void replaceText(ns::String original, ns::String translated, ui::View over);

/// Labels that show this text in the place of another show the other again, and a notice over the
/// view says so. Nil removes nothing.
void restoreReplacedText(ns::String shown, ui::View over);

} // namespace wentra::toolbox
