// Fuzzes the preference reader: any bytes are survived, and UTF-16 says what its UTF-8 form says.
#include "library/common/text_encoding.hpp"
#include "library/preferences/preferences.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace wentra::preferences;

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

bool sameNumber(double left, double right) {
    return left == right || (std::isnan(left) && std::isnan(right));
}

void requireSame(const Preferences& left, const Preferences& right, std::string_view name) {
    require(left.on(name) == right.on(name));
    require(sameNumber(left.number(name), right.number(name)));
    require(left.text(name) == right.text(name));
}

std::string utf16Document(std::string_view utf8) {
    return wentra::bigEndianUtf16(u"\uFEFF" + wentra::utf16FromUtf8(utf8));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Preferences preferences = Preferences::parse(bytes);
    // Known keys, in both alphabets, and names that have to be searched for.
    for (const std::string_view name : {"kqwzgs", "开启文字复制", "kqxydx", "a", "名"}) {
        requireSame(preferences, Preferences::parse(bytes), name);
        if (wentra::isUtf8(bytes) && !bytes.starts_with("bplist") &&
            !bytes.starts_with("\xEF\xBB\xBF") && bytes.find("encoding") == bytes.npos) {
            requireSame(preferences, Preferences::parse(utf16Document(bytes)), name);
        }
    }
    return 0;
}
