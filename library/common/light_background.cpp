// The colour, and the appearance that goes with it.
#include "library/common/light_background.hpp"

namespace wentra {

void setLightBackground(ui::View view, ui::Color background) {
    view.setBackgroundColor(background);
    view.setOverrideUserInterfaceStyle(ui::InterfaceStyle::light);
}

} // namespace wentra
