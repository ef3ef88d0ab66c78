// Reads, encodes and writes; an alert tells how it went.
#include "library/files/conversion/image_conversion.hpp"

#include "bindings/uikit/image_representation.hpp"
#include "library/common/alert.hpp"
#include "library/files/file_kind.hpp"
#include "library/files/file_path.hpp"
#include "library/files/regular_file.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;

constexpr double best = 1;

ns::Data jpegOf(ui::Image image) { return ui::jpegRepresentation(image, best); }

std::optional<ImageConversion::Target> targetOf(ns::String extension) {
    if (extension.isEqual(u"png"_ns)) {
        return ImageConversion::Target{".png", &ui::pngRepresentation};
    }
    if (extension.isEqual(u"jpg"_ns)) {
        return ImageConversion::Target{".jpg", &jpegOf};
    }
    return std::nullopt;
}

} // namespace

void ImageConversion::tell(ns::String title, ns::String message) const {
    Alert(title, message).action(u"OK"_ns).presentFrom(self());
}

void ImageConversion::convert(ns::IndexPath row, ui::TableView table, ns::String extension) {
    const auto source = panes_.entry(table, row);
    if (!source) {
        return;
    }
    const auto target = targetOf(extension);
    if (!isImage(*source)) {
        tell(u"错误"_ns, u"图片格式错误"_ns);
    } else if (!target) {
        tell(u"错误"_ns, u"转换格式错误"_ns);
    } else {
        write(*source, *target);
        self().send<"reloadDataForTableView:">(table);
    }
}

void ImageConversion::write(const std::string& source, const Target& target) const {
    const std::string name = std::string(baseOf(source)).append(target.ending);
    const ns::Error error =
        target.encode(imageOfFile(source))
            .writeToFile(textOf(joined(parentOf(source), name)), ns::DataWritingOptions::atomic);
    tell(error ? u"错误"_ns : u"成功"_ns, error ? u"图片转换失败"_ns : u"图片转换成功"_ns);
}

} // namespace wentra::files
