// The order of start-up: class-load methods first, then the initialisers.
#include "library/startup/start_up.hpp"

#include "bindings/objc/pool.hpp"
#include "library/analysis/analysis.hpp"
#include "library/blocking/request_hooks.hpp"
#include "library/clipboard/clipboard.hpp"
#include "library/common/draggable_view.hpp"
#include "library/crashlogs/crashlogs.hpp"
#include "library/editing/editing.hpp"
#include "library/files/files.hpp"
#include "library/labels/labels.hpp"
#include "library/scratchpad/scratch_pad_hook.hpp"
#include "library/toolbox/toolbox.hpp"
#include "library/toolbox/view_model.hpp"
#include "library/utilities/utilities.hpp"

#include <array>
#include <mutex>

namespace wentra::startup {
namespace {

Face commonFace() {
    static constexpr std::array<Face::Declaration, 1> classes{&registerTrashButton};
    static constexpr std::array<Table, 1> categories{&draggableCategory};
    return {classes, categories};
}

constexpr std::array rooms{&commonFace,      &labels::face,   &clipboard::face,
                           &utilities::face, &analysis::face, &files::face,
                           &crashlogs::face, &toolbox::face,  &editing::face};

void install(std::span<const Table> tables) {
    for (const Table table : tables) {
        for (const objc::Change& change : table()) {
            objc::install(change);
        }
    }
}

void declareRooms() {
    for (const auto face : rooms) {
        for (const Face::Declaration declare : face().classes) {
            declare();
        }
    }
    for (const auto face : rooms) {
        install(face().categories);
    }
}

void startToolbox() {
    blocking::resolvePreferencePath();
    toolbox::scheduleViewModel();
}

template <Table... Tables>
constexpr std::array<Table, sizeof...(Tables)> tables{Tables...};

constexpr std::array table{
    Step{"classes and categories", {}, &declareRooms},

    Step{"UILabel(LongPressCopy) load", tables<&labels::longPressCopyLoad>},
    Step{"UILabel(hook) load", tables<&labels::labelTextLoad>},
    Step{"YYLabel load", tables<&labels::yyLabelTextLoad>},

    Step{"1 scratch pad in Settings", tables<&scratchpad::scratchPadHooks>},
    Step{"2 preference path and floating toolbox", {}, &startToolbox},
    Step{"3 request blocking", tables<&blocking::requestHooks>},
    Step{"4 rule editor's containers and label text",
         tables<&labels::containerHooks, &labels::labelTextHooks>},
    Step{"5 rule editor in the camera application", tables<&labels::cameraHooks>},
    Step{"6 observer of the edit menu", {}, &editing::observeMenu},
    Step{"7 edit menu and text editing", tables<&editing::responderHooks, &editing::textViewHooks,
                                                &editing::textFieldHooks, &editing::menuHooks>},
    Step{"8 gestures on labels and text views", tables<&editing::textGestureHooks>},
};

void run(const Step& step) {
    if (step.action != nullptr) {
        step.action();
    }
    install(step.hooks);
}

} // namespace

std::vector<Face> faces() {
    std::vector<Face> all;
    all.reserve(rooms.size());
    for (const auto face : rooms) {
        all.push_back(face());
    }
    return all;
}

std::span<const Step> steps() { return table; }

void startUp() noexcept {
    static std::once_flag once;
    std::call_once(once, [] {
        const objc::Pool pool;
        for (const Step& step : table) {
            objc::contained(step.name.data(), [&step] { run(step); });
        }
    });
}

} // namespace wentra::startup
