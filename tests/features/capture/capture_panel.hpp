// The toolbox panel on a phone whose files a test can see.
#pragma once

#include "tests/features/toolbox/toolbox_panel.hpp"
#include "tests/support/temporary_folder.hpp"

#include <filesystem>

namespace tests {

struct Root {
    support::TemporaryFolder folder;
};

/// The folder is there before the phone and is left after it.
class CapturePanel : private Root, public ToolboxPanel {
public:
    explicit CapturePanel(const std::string& app = "chat", const Json& preferences = Json::object())
        : ToolboxPanel(preferences, {"--app", app, "--root", folder.path()}) {}

    /// A file of the device where it really lies.
    [[nodiscard]] std::filesystem::path real(const std::string& file) const {
        return folder.path() / file.substr(1);
    }
    /// The one visible view with that accessibility label, tapped.
    void tapLabelled(const std::string& label) {
        const Json found = find({{"label", label}, {"visible", true}});
        ASSERT_EQ(found.size(), 1U) << label;
        Phone::tap(found[0]);
    }
    Json container() { return panel("container"); }
};

} // namespace tests
