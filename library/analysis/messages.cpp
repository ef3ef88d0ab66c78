// Puts the lines together.
#include "library/analysis/messages.hpp"

#include "library/common/occurrences.hpp"

namespace wentra::analysis {
namespace {

std::u16string joined(const std::vector<std::u16string>& pieces) {
    std::u16string text;
    for (const std::u16string& piece : pieces) {
        text += piece;
    }
    return text;
}

} // namespace

Messages messagesOf(const LibraryLines& lines) {
    Messages messages{joined(lines.system), joined(lines.others)};
    replaceAll(messages.addOns, u"\n", u"\n\n");
    return messages;
}

std::u16string report(std::u16string_view system, std::u16string_view addOns) {
    std::u16string text =
        u"\n提示：此界面只是告知你与哪些可执行库有关，且把系统和越狱插件的分开，"
        u"并无直接指向某插件的问题，具体细节请查看对应的崩溃详情，再告知开发者进行改进，"
        u"当然不排除是有冲突的存在，自行检测哈\n\n\n\n\n✅系统或越狱必备的可执行库:\n\n";
    text.append(system).append(u"\n\n").append(addOnHeading).append(u":\n\n").append(addOns);
    return text;
}

} // namespace wentra::analysis
