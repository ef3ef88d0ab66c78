// The screen as pixels, kept up to date.
#pragma once

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/display/content_store.hpp"
#include "desktop/quartzcore/screen_changes.hpp"

#include <functional>
#include <vector>

namespace desktop {

/// A picture of the screen that redraws what has changed. Main thread; several may exist, at
/// different scales.
class ScreenImage {
public:
    /// Of the whole screen, with that many pixels a point; stale until the first `refresh`.
    explicit ScreenImage(double scale);
    ScreenImage(const ScreenImage&) = delete;
    ScreenImage& operator=(const ScreenImage&) = delete;
    ~ScreenImage();

    /// Brings layout and pixels up to date. The regions that are different since the last call:
    /// disjoint, few, and none when nothing has changed. The size is another one when the phone has
    /// been turned, and everything is different then.
    std::vector<PixelRectangle> refresh();

    /// Whether `refresh` has anything to look at.
    [[nodiscard]] bool isStale() const { return stale_; }
    /// Calls back once whenever the image becomes stale after a `refresh`; not to refresh in the
    /// call itself, since the change may be half done.
    void whenStale(std::function<void()> callback) { whenStale_ = std::move(callback); }

    /// Premultiplied BGRA, rows from top to bottom, `stride` bytes apart; opaque. Good until the
    /// next `refresh`.
    [[nodiscard]] const unsigned char* pixels() const;
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;
    [[nodiscard]] int stride() const;
    /// A copy of the pixels.
    [[nodiscard]] Image snapshot() const { return canvas_.snapshot(); }

private:
    void becomeStale();
    [[nodiscard]] cairo_surface_t* surface() const { return cairo_get_target(canvas_.context()); }

    Size size_; ///< in points
    double scale_;
    Canvas canvas_;
    DisplayList shown_;
    ContentStore contents_;
    std::function<void()> whenStale_;
    bool stale_ = true;
    ScreenChanges::Ticket ticket_;
};

} // namespace desktop
