// The classes of the room.
#include "library/crashlogs/crashlogs.hpp"

#include "library/crashlogs/report_list_controller.hpp"

#include <array>

namespace wentra::crashlogs {

Face face() {
    static constexpr std::array<Face::Declaration, 1> classes{&registerReportListController};
    return {classes, {}};
}

} // namespace wentra::crashlogs
