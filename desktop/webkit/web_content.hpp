// The web pages on the screen: which views show which address.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/uikit/view.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace desktop {

/// The page that one view shows. The page itself is not fetched: where it stands, a viewer may show
/// it. Belongs to its view; main thread.
class WebContent {
public:
    WebContent();
    WebContent(const WebContent&) = delete;
    WebContent& operator=(const WebContent&) = delete;
    ~WebContent();

    /// Turns to the page of that address, in `view`, and tells the event log: `webLoad` {url,
    /// headers}.
    void load(ui::View view, ns::Url url, ns::Dictionary headers);
    /// Draws the address in the middle of the view, on the current canvas.
    void draw() const;

private:
    friend std::vector<struct LiveWebPage> liveWebPages();

    std::uint64_t number_; ///< of the view
    std::uint64_t load_ = 0;
    ui::View view_;
    std::string address_;
};

/// A page in a window.
struct LiveWebPage {
    /// Counts the views of this process.
    std::uint64_t number;
    /// Counts what all views have loaded: a view that loads the same address again shows another
    /// page.
    std::uint64_t load;
    ui::View view;
    /// In the window, in points.
    CGRect frame;
    /// UTF-8
    std::string address;
};

/// The pages whose views are in a window, in the order in which the views were made. Main thread.
std::vector<LiveWebPage> liveWebPages();

} // namespace desktop
