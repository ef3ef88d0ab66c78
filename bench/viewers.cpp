// The viewers of files: colouring a page of a report against matching its expressions, searching it
// against memmem, and a large file in the viewer of bytes against reading it.
#include "bench/support/phone.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/input_stream.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/case_insensitive_search.hpp"
#include "library/files/files.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"
#include "library/files/viewers/hex_editor_view_controller.hpp"
#include "library/files/viewers/text_pages.hpp"
#include "tests/library/files/viewers/syntax_expressions.hpp"

#include <benchmark/benchmark.h>
#include <unicode/regex.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace wentra::files;

/// A page of frames and images, as reports have them.
std::u16string report() {
    std::u16string text = u"{\"name\":\"SpringBoard\",\"timestamp\":\"2024-05-01 10:00:00\"}\n";
    while (text.size() < pageSize) {
        text +=
            u"      {\"imageOffset\":121234,\"symbol\":\"objc_msgSend\",\"symbolLocation\":32,"
            u"\"imageIndex\":7},\n    {\n      \"source\" : \"P\",\n      \"base\" : 6912344064,"
            u"\n      \"path\" : \"\\/usr\\/lib\\/libobjc.A.dylib\",\n      \"name\" : "
            u"\"libobjc.A.dylib\"\n    },\n";
    }
    text.resize(pageSize);
    return text;
}

void matchSyntax(benchmark::State& state) {
    const std::u16string text = report();
    const icu::UnicodeString searched(false, text.data(), static_cast<std::int32_t>(text.size()));
    for (auto _ : state) {
        int found = 0;
        for (const auto& [pattern, syntax] : syntaxExpressions) {
            UErrorCode status = U_ZERO_ERROR;
            icu::RegexMatcher matcher({pattern.data(), static_cast<std::int32_t>(pattern.size())},
                                      0, status);
            matcher.reset(searched);
            while (matcher.find(status) != 0) {
                ++found;
            }
        }
        benchmark::DoNotOptimize(found);
    }
}

void registerViewers() {
    static const bool once = [] {
        bench::startPlatform();
        for (const auto declare : face().classes) {
            declare();
        }
        return true;
    }();
    static_cast<void>(once);
}

void openAndColour(benchmark::State& state) {
    registerViewers();
    const objc::Pool pool;
    const auto content = ns::String::from(report());
    const auto url = ns::Url::withString(ns::String::fromUtf8("file:///tmp/report.ips"));
    for (auto _ : state) {
        const objc::Pool inner;
        const auto viewer = FileContentViewController::with(content, url);
        viewer.view().layoutIfNeeded();
        viewer.send<"highlightSyntax">();
        benchmark::DoNotOptimize(viewer.textView().contentSize());
    }
}

constexpr std::u16string_view soughtText = u"libsystem_kernel";

void searchPage(benchmark::State& state) {
    registerViewers();
    const objc::Pool pool;
    const auto text = ns::String::from(report());
    const auto sought = ns::String::from(soughtText);
    for (auto _ : state) {
        benchmark::DoNotOptimize(wentra::occurrencesIgnoringCase(text, sought));
    }
}

void searchMemory(benchmark::State& state) {
    const std::u16string text = report();
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            memmem(text.data(), 2 * text.size(), soughtText.data(), 2 * soughtText.size()));
    }
}

/// 64 MB that are not all alike, gone at the end.
class LargeFile {
public:
    LargeFile() {
        constexpr std::size_t size = 64U << 20U;
        std::string bytes(size, '\0');
        for (std::size_t index = 0; index < size; ++index) {
            bytes[index] = static_cast<char>(index * 2654435761U >> 16U);
        }
        close(mkstemp(path_.data()));
        std::ofstream(path_, std::ios::binary) << bytes;
    }
    LargeFile(const LargeFile&) = delete;
    LargeFile& operator=(const LargeFile&) = delete;
    ~LargeFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_ = std::filesystem::temp_directory_path() / "wentra-bench-XXXXXX";
};

ns::String largePath() {
    static const LargeFile file;
    return ns::String::fromUtf8(file.path());
}

/// Reading the file in blocks that are kept, and nothing else.
void readBlocks(benchmark::State& state) {
    registerViewers();
    const objc::Pool pool;
    for (auto _ : state) {
        const objc::Pool inner;
        const auto blocks = ns::MutableArray::make();
        const auto stream = ns::InputStream::withFileAtPath(largePath());
        std::array<char, 256> buffer{};
        stream.open();
        while (stream.hasBytesAvailable()) {
            const objc::Pool each;
            const long count = stream.read(buffer.data(), buffer.size());
            if (count < 1) {
                break;
            }
            blocks.add(ns::Data::from({buffer.data(), static_cast<std::size_t>(count)}));
        }
        stream.close();
        benchmark::DoNotOptimize(blocks.count());
    }
}

void showBytes(benchmark::State& state) {
    registerViewers();
    const objc::Pool pool;
    const objc::Strong window = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
    for (auto _ : state) {
        const objc::Pool inner;
        window.setRootViewController(HexEditorViewController::withFile(largePath()));
        window.makeKeyAndVisible();
        window.layoutIfNeeded();
        state.PauseTiming();
        window.setRootViewController(ui::ViewController::make());
        state.ResumeTiming();
    }
    window.setHidden(true);
}

} // namespace

BENCHMARK(matchSyntax)->Unit(benchmark::kMillisecond);
BENCHMARK(openAndColour)->Unit(benchmark::kMillisecond);
BENCHMARK(searchMemory)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchPage)->Unit(benchmark::kMicrosecond);
BENCHMARK(readBlocks)->Unit(benchmark::kMillisecond);
BENCHMARK(showBytes)->Unit(benchmark::kMillisecond);
