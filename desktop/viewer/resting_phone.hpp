// What pages find in place of a phone whose application crashes again and again.
#pragma once

#include "desktop/viewer/phone.hpp"

namespace desktop::viewer {

/// Serves pages without any application, and waits for one of them to start one.
class RestingPhone {
public:
    RestingPhone(const Door& door, Start start, std::filesystem::path deviceFolder);

private:
    void opened(PageNumber page);
    void said(PageNumber page, const std::string& text);

    Start start_;
    std::filesystem::path deviceFolder_;
    Server server_;
};

} // namespace desktop::viewer
