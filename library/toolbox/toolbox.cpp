// The classes of the toolbox.
#include "library/toolbox/toolbox.hpp"

#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/translation/bilingual_view.hpp"
#include "library/toolbox/view_model.hpp"

#include <array>

namespace wentra::toolbox {

Face face() {
    static constexpr std::array<Face::Declaration, 3> classes{
        &registerFloatingViewController, &registerBilingualView, &registerViewModel};
    return {classes, {}};
}

} // namespace wentra::toolbox
