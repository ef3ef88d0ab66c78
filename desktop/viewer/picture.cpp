// From stale screen to frame.
#include "desktop/viewer/picture.hpp"

#include "desktop/runtime/main_queue.hpp"
#include "desktop/viewer/patch.hpp"

#include <boost/asio/post.hpp>

namespace desktop::viewer {
namespace {

constexpr std::uint32_t mostUnseen = 2;

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
    std::vector<Patch> patches;
    patches.reserve(regions.size());
    for (const PixelRectangle& region : regions) {
        patches.push_back(copied(image_, region));
    }
    encode(std::move(patches));
    drawn_();
    schedule(); // drawing itself may have made it stale
}

void Picture::encode(std::vector<Patch> patches) {
    const std::uint32_t number = ++sent_;
    boost::asio::post(encoder_, [number, width = static_cast<std::uint16_t>(image_.width()),
                                 height = static_cast<std::uint16_t>(image_.height()),
                                 patches = std::move(patches), deliver = &deliver_] {
        (*deliver)(encodeFrame(number, width, height, patches));
    });
}

} // namespace desktop::viewer
