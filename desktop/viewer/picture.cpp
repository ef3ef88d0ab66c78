// From stale screen to frame.
#include "desktop/viewer/picture.hpp"

#include "desktop/runtime/main_queue.hpp"

#include <boost/asio/post.hpp>

namespace desktop::viewer {
namespace {

// One that the page draws, and one that waits for it.
constexpr std::uint32_t mostUnseen = 2;

ScreenPixels pixelsOf(const ScreenImage& image) {
    return {image.pixels(), image.width(), image.height(), image.stride()};
}

} // namespace

Picture::Picture(double scale, std::function<void(Bytes)> deliver, std::function<void()> drawn)
    : image_(scale), deliver_(std::move(deliver)), drawn_(std::move(drawn)),
      self_(std::make_shared<Picture*>(this)) {
    image_.whenStale([this] { schedule(); });
    schedule();
}

Picture::~Picture() { encoder_.join(); }

void Picture::seen(std::uint32_t frame) {
    // A number that was not sent yet is a lie, an old one no news.
    if (sent_ - frame < sent_ - seen_) {
        seen_ = frame;
        schedule();
    }
}

void Picture::schedule() {
    if (isScheduled_ || !image_.isStale() || sent_ - seen_ >= mostUnseen) {
        return;
    }
    isScheduled_ = true;
    MainQueue::shared().add([weak = std::weak_ptr(self_)] {
        if (const auto self = weak.lock()) {
            (*self)->isScheduled_ = false;
            (*self)->refresh();
        }
    });
}

void Picture::refresh() {
    const auto regions = image_.refresh();
    if (regions.empty()) {
        return;
    }
    if (Changes changes = shown_.update(pixelsOf(image_), regions); !changes.places.empty()) {
        encode(std::move(changes));
    }
    drawn_();
    schedule(); // drawing itself may have made it stale
}

void Picture::encode(Changes changes) {
    boost::asio::post(encoder_,
                      [number = ++sent_, width = static_cast<std::uint16_t>(image_.width()),
                       height = static_cast<std::uint16_t>(image_.height()),
                       changes = std::move(changes), deliver = &deliver_]() mutable {
                          (*deliver)(encodeFrame(number, width, height, std::move(changes)));
                      });
}

} // namespace desktop::viewer
