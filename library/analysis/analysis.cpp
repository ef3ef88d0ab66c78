// The classes of the room.
#include "library/analysis/analysis.hpp"

#include "library/analysis/details_view_controller.hpp"
#include "library/analysis/movable_alert_view.hpp"

#include <array>

namespace wentra::analysis {

Face face() {
    static constexpr std::array<Face::Declaration, 2> classes{&registerDetailsViewController,
                                                              &registerMovableAlertView};
    return {classes, {}};
}

} // namespace wentra::analysis
