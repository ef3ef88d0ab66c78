// Reads, encodes and writes; an alert tells how it went.
#include "library/files/conversion/image_conversion.hpp"

#include "bindings/uikit/image_representation.hpp"
#include "library/common/alert.hpp"
#include "library/common/text_encoding.hpp"
#include "library/files/file_path.hpp"
#include "library/files/regular_file.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;

bool isConvertible(std::string_view path) {
    const std::string kind = kindOf(path);
    return kind == "jpg" || kind == "jpeg" || kind == "png";
}

} // namespace

void ImageConversion::tell(ns::String title, ns::String message) const {
    Alert(title, message).action(u"OK"_ns).presentFrom(self());
}

void ImageConversion::convert(ns::IndexPath row, ui::TableView table, ns::String extension) {
    constexpr double best = 1;
    const auto source = panes_.entry(table, row);
    if (!source) {
        return;
    }
    if (!isConvertible(*source)) {
        tell(u"错误"_ns, u"图片格式错误"_ns);
        return;
    }
    const bool toPng = extension.isEqual(u"png"_ns);
    if (!toPng && !extension.isEqual(u"jpg"_ns)) {
        tell(u"错误"_ns, u"转换格式错误"_ns);
        return;
    }
    const ui::Image image = imageOfFile(*source);
    const ns::Data data =
        toPng ? ui::pngRepresentation(image) : ui::jpegRepresentation(image, best);
    const std::string name = std::string(baseOf(*source)) + (toPng ? ".png" : ".jpg");
    const ns::Error error = data.writeToFile(textOf(joined(panes_.folder(table), name)),
                                             ns::DataWritingOptions::atomic);
    tell(error ? u"错误"_ns : u"成功"_ns, error ? u"图片转换失败"_ns : u"图片转换成功"_ns);
    self().send<"reloadDataForTableView:">(table);
}

} // namespace wentra::files
