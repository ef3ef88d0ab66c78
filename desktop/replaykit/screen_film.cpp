// From changes of the screen to shots, and from shots to the encoder.
#include "desktop/replaykit/screen_film.hpp"

#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/foundation/numbered_file.hpp"

#include <algorithm>
#include <cstring>

namespace desktop {
namespace {

constexpr double interval = 1.0 / 30;
constexpr std::size_t mostWaiting = 2;
constexpr int bytesPerPixel = 4;

/// Text is sharp enough, and one core encodes it while the screen moves.
constexpr double pixelsPerPoint = 2;

} // namespace

ScreenFilm::ScreenFilm(std::unique_ptr<ScreenImage> image, std::unique_ptr<FilmEncoder> encoder)
    : image_(std::move(image)), encoder_(std::move(encoder)), width_(image_->width()),
      height_(image_->height()), start_(Clock::shared().now()), last_(-interval),
      thread_([this] { encode(); }) {
    image_->whenStale([this] { schedule(); });
    take();
}

ScreenFilm::~ScreenFilm() {
    if (encoder_) {
        finish();
    }
}

void ScreenFilm::schedule() {
    if (ticket_ == 0) {
        const double due = std::max(elapsed(), last_ + interval);
        ticket_ = Clock::shared().at(start_ + due, [this] {
            ticket_ = 0;
            take();
        });
    }
}

void ScreenFilm::take() {
    last_ = elapsed();
    {
        const std::lock_guard lock(mutex_);
        if (waiting_.size() >= mostWaiting && Clock::shared().mode() == Clock::Mode::real) {
            schedule(); // the encoder is late
            return;
        }
    }
    shoot();
    if (image_->isStale()) { // drawing itself may have made it so
        schedule();
    }
}

/// A screen that has been turned keeps the film's size: what does not fit is left out.
void ScreenFilm::shoot() {
    if (!image_->refresh().empty()) {
        const auto rowBytes = static_cast<std::size_t>(width_) * bytesPerPixel;
        Shot shot{spare(), elapsed()};
        shot.pixels.resize(rowBytes * static_cast<std::size_t>(height_));
        const auto copied =
            static_cast<std::size_t>(std::min(width_, image_->width())) * bytesPerPixel;
        const unsigned char* from = image_->pixels();
        for (int row = 0; row < std::min(height_, image_->height()); ++row) {
            std::memcpy(shot.pixels.data() + static_cast<std::size_t>(row) * rowBytes,
                        from + std::ptrdiff_t{row} * image_->stride(), copied);
        }
        hand(std::move(shot));
    }
}

std::vector<unsigned char> ScreenFilm::spare() {
    const std::lock_guard lock(mutex_);
    if (spare_.empty()) {
        return {};
    }
    auto pixels = std::move(spare_.back());
    spare_.pop_back();
    return pixels;
}

/// On the virtual clock every shot counts, and waits for its turn.
void ScreenFilm::hand(Shot shot) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_.size() < mostWaiting; });
    waiting_.push_back(std::move(shot));
    changed_.notify_all();
}

void ScreenFilm::encode() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return !waiting_.empty() || isEnding_; });
        if (waiting_.empty()) {
            return;
        }
        Shot shot = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        encoder_->add(shot.pixels.data(), width_ * bytesPerPixel, shot.seconds);
        lock.lock();
        spare_.push_back(std::move(shot.pixels));
        changed_.notify_all();
    }
}

bool ScreenFilm::finish() {
    shoot();
    Clock::shared().cancel(std::exchange(ticket_, 0));
    image_->whenStale(nullptr);
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
        changed_.notify_all();
    }
    thread_.join();
    return std::exchange(encoder_, nullptr)->finish(elapsed());
}

std::unique_ptr<ScreenFilm> filmScreen(const std::string& file) {
    auto image = std::make_unique<ScreenImage>(pixelsPerPoint);
    auto encoder = FilmEncoder::open(file, image->width(), image->height());
    return encoder ? std::make_unique<ScreenFilm>(std::move(image), std::move(encoder)) : nullptr;
}

std::string freeFilmFile(const std::string& prefix) {
    if (*deviceroot_get() == '\0') {
        return {};
    }
    return foundation::numberedFile("/var/mobile/Library/ReplayKit", prefix, ".webm");
}

} // namespace desktop
