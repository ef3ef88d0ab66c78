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
    /// `options` are the host's, beside those for the application and the device's folder.
    explicit CapturePanel(const std::string& app = "chat", const Json& preferences = Json::object(),
                          std::vector<std::string> options = {})
        : ToolboxPanel(preferences, with(app, std::move(options))) {}

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

private:
    [[nodiscard]] std::vector<std::string> with(const std::string& app,
                                                std::vector<std::string> options) const {
        options.insert(options.end(), {"--app", app, "--root", folder.path()});
        return options;
    }
};

} // namespace tests
