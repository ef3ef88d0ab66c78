// The live picture of the screen for one page: what has changed, encoded, and no more than it
// takes.
#pragma once

#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/viewer/frame.hpp"
#include "desktop/viewer/shown_screen.hpp"

#include <boost/asio/thread_pool.hpp>

#include <functional>
#include <memory>

namespace desktop::viewer {

/// Sends a frame whenever the screen has changed and fewer than two frames wait to be seen, so that
/// a slow page gets the newest picture and not all the former ones. Nothing happens while the
/// screen stands still. Main thread; pixels are encoded on another.
class Picture {
public:
    /// `deliver` is called with each frame, in order, on the encoding thread; `drawn` on the main
    /// thread whenever the screen has been drawn anew.
    Picture(double scale, std::function<void(Bytes)> deliver, std::function<void()> drawn);
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    /// Waits until the frames at work are delivered.
    ~Picture();

    /// The page has drawn that frame and those before it.
    void seen(std::uint32_t frame);

private:
    void schedule();
    void refresh();
    void encode(Changes changes);

    ScreenImage image_;
    ShownScreen shown_;
    std::function<void(Bytes)> deliver_;
    std::function<void()> drawn_;
    std::uint32_t sent_ = 0;
    std::uint32_t seen_ = 0;
    bool isScheduled_ = false;
    /// What is queued on the main thread must not outlive the picture.
    std::shared_ptr<Picture*> self_;
    boost::asio::thread_pool encoder_{1};
};

} // namespace desktop::viewer
