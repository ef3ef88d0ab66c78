// New files under numbers of their own, and saving pictures.
#include "desktop/uikit/photos/photo_library.hpp"

#include "bindings/foundation/error.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/saved_photos.hpp"
#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/foundation/bundle.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/values/image.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace desktop::photos {
namespace {

using namespace ns::literals;

/// "IMG_0007", for one more than there are files.
std::string nameFor(int number) {
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "/IMG_%04d", number);
    return std::string(folder) + name.data();
}

/// A name that no file has, whatever its suffix.
std::string freeName() {
    int last = 0;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        int number = 0;
        if (std::sscanf(entry.path().stem().c_str(), "IMG_%d", &number) == 1) {
            last = std::max(last, number);
        }
    }
    return nameFor(last + 1);
}

void recordPhoto(const std::string& file) {
    EventLog::shared().record("photo",
                              ns::Dictionary::withObject(ns::String::fromUtf8(file), u"file"_ns));
}

/// The error that tells a person why, or nil.
ns::Error save(ui::Image image) {
    const Image* picture = UIImage::valueOf(image);
    if (picture != nullptr && add(picture->png(), ".png")) {
        return nullptr;
    }
    constexpr long dataUnavailable = -3310;
    return ns::Error::withDescription(u"ALAssetsLibraryErrorDomain"_ns, dataUnavailable,
                                      u"无法存储到相册。"_ns);
}

} // namespace

std::optional<std::string> add(std::span<const std::byte> bytes, std::string_view suffix) {
    if (*deviceroot_get() == '\0' || bytes.empty()) {
        return std::nullopt;
    }
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    const std::string file = freeName() + std::string(suffix);
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush().good()) {
        std::filesystem::remove(file, ignored); // no half of a picture stays
        return std::nullopt;
    }
    recordPhoto(file);
    return file;
}

} // namespace desktop::photos

void UIImageWriteToSavedPhotosAlbum(id image, id target, SEL done, void* context) {
    using namespace desktop;
    using namespace ns::literals;
    const objc::Pool pool;
    foundation::requireUsageDescription(u"NSPhotoLibraryAddUsageDescription"_ns);
    const objc::Strong<ui::Image> saved = objc::wrap<ui::Image>(image);
    const objc::Strong<ns::Error> error = photos::save(saved);
    const objc::Strong<objc::Object> told = objc::wrap<objc::Object>(target);
    if (!told || done == nullptr) {
        return;
    }
    MainQueue::shared().add([saved, error, told, done, context] {
        objc::sendTo<void>(told.raw(), done, saved.raw(), error.raw(), context);
    });
}
