// The panel's tools over texts, each against the plain road: links against one regular expression,
// Unicode escapes against formatting and a property list, pinyin against ICU by itself.
#include "bench/support/phone.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/foundation/regular_expression.hpp"
#include "bindings/objc/pool.hpp"
#include "library/common/occurrences.hpp"
#include "library/common/path_links.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/search/pinyin.hpp"
#include "library/toolbox/text_tools/share_codes.hpp"
#include "library/toolbox/text_tools/unicode_escapes.hpp"

#include <benchmark/benchmark.h>
#include <unicode/translit.h>

#include <cstdio>
#include <memory>
#include <string>

namespace {

namespace toolbox = wentra::toolbox;
using namespace ns::literals;

constexpr std::size_t megabyte = 1U << 20U;

std::u16string numbered(std::u16string_view before, std::size_t number) {
    const std::string digits = std::to_string(number);
    return std::u16string(before).append(digits.begin(), digits.end());
}

/// Chat lines in English and Chinese with 5,000 different links to the megabyte, and a path to ten
/// links; none is a share code, so that each word of those is sought to the end.
std::u16string chat(std::size_t megabytes) {
    constexpr std::size_t linksInMegabyte = 5000;
    constexpr std::u16string_view talk = u"小明: see you at 7.30, 不见不散! 😀 (bring the map)\n";
    const std::size_t units = megabytes * megabyte / sizeof(char16_t);
    std::u16string text;
    for (std::size_t link = 0; link < megabytes * linksInMegabyte; ++link) {
        text += numbered(u"阿华：", link) + numbered(u" https://example.com/a?page=", link);
        text += link % 10 == 0 ? numbered(u" /var/mobile/", link) + u" " : u"，";
        const std::size_t end = units * (link + 1) / (megabytes * linksInMegabyte);
        while (text.size() < end) {
            text += talk.substr(0, end - text.size());
        }
    }
    return text;
}

void findLinks(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const std::u16string units = chat(static_cast<std::size_t>(state.range(0)));
    const auto text = ns::String::from(units);
    const auto controller = toolbox::FloatingViewController::make();
    for (auto _ : state) {
        const objc::Pool inner;
        const auto links = controller.send<"linksInString:", ns::Array>(text);
        benchmark::DoNotOptimize(wentra::pathLinksIn(units));
        benchmark::DoNotOptimize(toolbox::sharedScheme(units));
        state.counters["links"] = static_cast<double>(links.count());
    }
}

/// Links, paths and share codes as one pattern.
void matchLinks(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const std::u16string units = chat(1);
    const auto text = ns::String::from(units);
    const auto pattern =
        uR"([a-z][a-z0-9+.-]*://[^\s"<>，。！]+)"
        uR"(|(?:[a-z0-9-]+\.)+[a-z]{2,}(?:[/?#][^\s"<>，。！]*)?)"
        uR"(|/(?:etc|s?bin|usr|dev|private|Library|System|tmp|var|)"
        uR"(Applications|cores|Developer)\S*)"
        uR"(|打开抖音|抖音口令|通过百度|百度云盘|淘宝搜索|淘宝】|手机阿里|闲鱼)"_ns;
    const auto expression =
        ns::RegularExpression::sendClass<"regularExpressionWithPattern:options:error:",
                                         ns::RegularExpression>(pattern, 0UL,
                                                                static_cast<void*>(nullptr));
    for (auto _ : state) {
        const objc::Pool inner;
        const auto matches = expression.matches(text, {0, units.size()});
        state.counters["matches"] = static_cast<double>(matches.count());
    }
}

/// A megabyte of Chinese and English.
const std::u16string& mixedText() {
    static const std::u16string text = [] {
        constexpr std::u16string_view phrase = u"Copied 今天上午十点开会，room 204。再见！😀\n";
        std::u16string repeated;
        while (repeated.size() * sizeof(char16_t) < megabyte) {
            repeated.append(phrase);
        }
        return repeated;
    }();
    return text;
}

void escapeText(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(toolbox::unicodeEscapes(mixedText()));
    }
}

void unescapeText(benchmark::State& state) {
    const std::u16string escapes = toolbox::unicodeEscapes(mixedText());
    for (auto _ : state) {
        benchmark::DoNotOptimize(toolbox::withoutUnicodeEscapes(escapes));
    }
}

/// Each unit formatted by itself and appended.
void formatEscapes(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const auto text = ns::String::from(mixedText());
    const ns::String format = u"\\u%x"_ns;
    for (auto _ : state) {
        const objc::Pool inner;
        const auto escapes = ns::MutableString::make();
        for (unsigned long at = 0; at < text.length(); ++at) {
            objc::sendTo(escapes.raw(), objc::selector<"appendFormat:">(), format,
                         unsigned{text.send<"characterAtIndex:", char16_t>(at)});
        }
    }
}

/// The text in quotation marks, read as an old property list.
void listEscapes(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const std::u16string escapes = toolbox::unicodeEscapes(mixedText());
    for (auto _ : state) {
        const objc::Pool inner;
        std::u16string list = u'"' + escapes + u'"';
        wentra::replaceAll(list, u"\\u", u"\\U");
        const std::string bytes = ns::String::from(list).utf8();
        const auto data = ns::Data::from(bytes);
        const auto plain = ns::PropertyListSerialization::propertyList(data).value;
        benchmark::DoNotOptimize(plain.as<ns::String>().utf16());
    }
}

const std::u16string& chinese() {
    static const std::u16string text = [] {
        constexpr std::u16string_view phrase =
            u"今天上午十点开会不见不散早上好世界重要银行行走音乐快乐";
        std::u16string repeated;
        while (repeated.size() < 10000) {
            repeated.append(phrase);
        }
        repeated.resize(10000);
        return repeated;
    }();
    return text;
}

void pinyin(benchmark::State& state) {
    bench::startPhone();
    const objc::Pool pool;
    const auto text = ns::String::from(chinese());
    for (auto _ : state) {
        const objc::Pool inner;
        benchmark::DoNotOptimize(toolbox::pinyinOf(text));
    }
}

void icuPinyin(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const auto make = [&status](const char16_t* identifier) {
        return std::unique_ptr<icu::Transliterator>(
            icu::Transliterator::createInstance(identifier, UTRANS_FORWARD, status));
    };
    const auto latin = make(u"Han-Latin");
    const auto marks = make(u"NFD; [:Mn:] Remove; NFC");
    for (auto _ : state) {
        icu::UnicodeString text(chinese().data(), static_cast<std::int32_t>(chinese().size()));
        latin->transliterate(text);
        marks->transliterate(text);
        benchmark::DoNotOptimize(text.length());
    }
}

BENCHMARK(findLinks)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(matchLinks)->Unit(benchmark::kMillisecond);
BENCHMARK(escapeText)->Unit(benchmark::kMillisecond);
BENCHMARK(formatEscapes)->Unit(benchmark::kMillisecond);
BENCHMARK(unescapeText)->Unit(benchmark::kMillisecond);
BENCHMARK(listEscapes)->Unit(benchmark::kMillisecond);
BENCHMARK(pinyin)->Unit(benchmark::kMillisecond);
BENCHMARK(icuPinyin)->Unit(benchmark::kMillisecond);

} // namespace
