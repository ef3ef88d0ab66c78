// The three files.
#include "library/utilities/dumps/runtime_dump.hpp"

#include "bindings/quartzcore/media_time.hpp"
#include "library/utilities/documents.hpp"
#include "library/utilities/dumps/runtime_text.hpp"

namespace wentra::utilities {
namespace {

constexpr DocumentFile uptimeFile{"/var/mobile/Documents/程序运行时长.txt"};
constexpr DocumentFile classFile{"/var/mobile/Documents/父类方法属性.txt"};
constexpr DocumentFile imageFile{"/var/mobile/Documents/动态框架信息.txt"};

} // namespace

void RuntimeDump::writeUptime() {
    static_cast<void>(uptimeFile.write(uptimeText(CACurrentMediaTime())));
}

void RuntimeDump::writeSymbols() {
    static_cast<void>(classFile.write(classText()));
    static_cast<void>(imageFile.write(imageText()));
}

} // namespace wentra::utilities
