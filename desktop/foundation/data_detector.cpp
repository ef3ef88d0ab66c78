// The detector's class, and results that know their link.
#include "desktop/foundation/data_detector.hpp"

#include "bindings/foundation/data_detector.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/error_encoding.hpp"
#include "desktop/foundation/link_detection.hpp"
#include "desktop/foundation/percent_encoding.hpp"

#include <array>

namespace desktop::foundation {
namespace {

struct LinkResultKind
    : objc::Kind<LinkResultKind, "WentraLinkCheckingResult", ns::TextCheckingResult> {
    using Kind::Kind;
};

class LinkResult : public PlatformClass<LinkResult, LinkResultKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"range", &LinkResult::range>(),
            objc::method<"URL", &LinkResult::url>(),
            objc::method<"resultType", &LinkResult::type>(),
        };
    }

    static LinkResultKind with(const DetectedLink& link) {
        const auto result = LinkResultKind::make();
        of(result).range_ = link.range;
        of(result).url_ = urlOf(ns::String::from(link.url));
        return result;
    }
    [[nodiscard]] ns::Url url() const { return url_; }

private:
    static ns::Url urlOf(ns::String text) {
        return ns::Url::withString(ns::String::fromUtf8(percentEncodedBeyondAscii(text.utf8())));
    }
    [[nodiscard]] ns::Range range() const { return range_; }
    [[nodiscard]] ns::TextCheckingType type() const { return ns::TextCheckingType::link; }

    ns::Range range_{};
    objc::Strong<ns::Url> url_;
};

class DataDetector : public PlatformClass<DataDetector, ns::DataDetector> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"dataDetectorWithTypes:error:", &DataDetector::with>(),
            objc::method<"matchesInString:options:range:", &DataDetector::matches>(),
        };
    }

private:
    static ns::DataDetector with(Class, ns::TextCheckingType types, id*) {
        return types == ns::TextCheckingType::link ? ns::DataDetector::make() : nullptr;
    }
    [[nodiscard]] ns::Array matches(ns::String text, unsigned long, ns::Range range) const {
        const auto results = ns::MutableArray::make();
        const std::u16string units = text.utf16();
        for (DetectedLink link :
             detectLinks(std::u16string_view(units).substr(range.location, range.length))) {
            link.range.location += range.location;
            if (const auto result = LinkResult::with(link); LinkResult::of(result).url()) {
                results.add(result);
            }
        }
        return results;
    }
};

} // namespace

void registerDataDetector() {
    LinkResult::registerClass();
    DataDetector::registerClass();
}

} // namespace desktop::foundation
