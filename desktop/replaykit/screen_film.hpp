// A film of the screen while it is made.
#pragma once

#include "desktop/replaykit/film_encoder.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/application/screen_image.hpp"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace desktop {

/// Takes a picture whenever the screen has changed, 30 a second at most, and hands it to a thread
/// that encodes. Where that is late, the application does not wait: on the real clock, the next
/// picture is the newest. Main thread.
class ScreenFilm {
public:
    /// The encoder makes pictures of `width` by `height` pixels, those of `image`.
    ScreenFilm(std::unique_ptr<ScreenImage> image, std::unique_ptr<FilmEncoder> encoder);
    ScreenFilm(const ScreenFilm&) = delete;
    ScreenFilm& operator=(const ScreenFilm&) = delete;
    /// Ends the film where it is.
    ~ScreenFilm();

    /// Ends the film with what the screen shows now; false when the file could not be written.
    /// Once.
    bool finish();
    /// What the film shows last.
    [[nodiscard]] Image poster() const { return image_->snapshot(); }

private:
    struct Shot {
        std::vector<unsigned char> pixels;
        double seconds;
    };

    void schedule();
    void take();
    void shoot();
    std::vector<unsigned char> spare();
    void hand(Shot shot);
    void encode();
    [[nodiscard]] double elapsed() const { return Clock::shared().now() - start_; }

    std::unique_ptr<ScreenImage> image_;
    std::unique_ptr<FilmEncoder> encoder_;
    int width_;
    int height_;
    double start_;
    double last_ = 0;
    Clock::Ticket ticket_ = 0;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Shot> waiting_;
    std::vector<std::vector<unsigned char>> spare_; ///< pixels to be written over
    bool isEnding_ = false;
    std::thread thread_;
};

/// Films the screen into the file from now on; null when that cannot be written.
[[nodiscard]] std::unique_ptr<ScreenFilm> filmScreen(const std::string& file);
/// A file on the device for the next film, which has the name's number; empty without a device.
[[nodiscard]] std::string freeFilmFile(const std::string& prefix);

} // namespace desktop
