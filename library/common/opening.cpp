// Asks the application's object.
#include "library/common/opening.hpp"

#include "bindings/uikit/application.hpp"

namespace wentra {

void openUrl(ns::Url url) {
    if (url) {
        ui::Application::sharedApplication().openUrl(url);
    }
}

} // namespace wentra
