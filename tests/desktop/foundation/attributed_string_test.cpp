// Attributed strings: random edits against a model that gives every unit its own attributes.
#include "desktop/foundation/attributed_string.hpp"

#include "bindings/foundation/attributed_string.hpp"
#include "bindings/objc/boundary.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/objc/weak.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/string.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <random>
#include <vector>

namespace {

using namespace ns::literals;
using Attributes = std::map<std::u16string, std::u16string>;

struct Unit {
    char16_t unit;
    Attributes attributes;
    friend bool operator==(const Unit&, const Unit&) = default;
};
using Units = std::vector<Unit>;

/// An attributed string of somebody else, which has a new dictionary for every unit.
struct ForeignText : objc::Kind<ForeignText, "ForeignAttributedString", ns::AttributedString> {
    using Kind::Kind;
};

ns::Dictionary dictionaryOf(const Attributes& attributes) {
    const auto made = ns::MutableDictionary::make();
    for (const auto& [name, value] : attributes) {
        made.set(ns::String::from(value), ns::String::from(name));
    }
    return made;
}

Attributes attributesOf(ns::Dictionary dictionary) {
    Attributes attributes;
    for (const objc::Object name : dictionary.allKeys()) {
        attributes[name.assume<ns::String>().utf16()] =
            dictionary.get(name).assume<ns::String>().utf16();
    }
    return attributes;
}

class ForeignTextPeer : public desktop::PlatformClass<ForeignTextPeer, ForeignText> {
public:
    static std::vector<objc::MethodRow> methods() {
        return {objc::method<"init", &ForeignTextPeer::init>(),
                objc::method<"string", &ForeignTextPeer::string>(),
                objc::method<"attributesAtIndex:effectiveRange:", &ForeignTextPeer::at>()};
    }
    static ForeignText with(Units units) {
        const auto made = ForeignText::make();
        of(made).units_ = std::move(units);
        return made;
    }

private:
    ForeignText init() { return self(); }
    [[nodiscard]] ns::String string() const {
        std::u16string text;
        for (const Unit& each : units_) {
            text += each.unit;
        }
        return ns::String::from(text);
    }
    [[nodiscard]] ns::Dictionary at(unsigned long unit, ns::Range* effective) const {
        if (effective != nullptr) {
            *effective = {unit, 1};
        }
        return dictionaryOf(units_.at(unit).attributes);
    }

    Units units_;
};

class AttributedStrings : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installStrings();
        desktop::foundation::installAttributedStrings();
        ForeignTextPeer::registerClass();
    }

    objc::Pool pool;
};

/// Goes from stretch to stretch, which must join without gaps.
Units unitsOf(ns::AttributedString text) {
    const std::u16string string = text.string().utf16();
    EXPECT_EQ(text.length(), string.size());
    Units units;
    while (units.size() < string.size()) {
        ns::Range range;
        const Attributes attributes = attributesOf(text.attributesAt(units.size(), &range));
        EXPECT_EQ(range.location, units.size());
        const unsigned long middle = range.location + range.length / 2;
        EXPECT_EQ(attributesOf(text.attributesAt(middle)), attributes);
        if (range.length == 0 || range.length > string.size() - units.size()) {
            ADD_FAILURE() << "a stretch of " << range.length;
            break;
        }
        for (unsigned long count = 0; count < range.length; ++count) {
            units.push_back({string[units.size()], attributes});
        }
    }
    return units;
}

ns::AttributedString copyOf(ns::AttributedString text) {
    return objc::Copied<ns::AttributedString>(text).autoreleased();
}

ns::AttributedString part(ns::AttributedString text, ns::Range range) {
    return text.send<"attributedSubstringFromRange:", ns::AttributedString>(range);
}

/// Changes a text and its model alike, at random.
class Edits {
public:
    explicit Edits(unsigned seed) : random_(seed) {}

    void step() {
        const ns::Range range = someRange();
        switch (below(8)) {
        case 0:
            return write(range);
        case 1:
            return writeText(range);
        case 2:
            return setAttributes(range);
        case 3:
        case 4:
            return addAttribute(range);
        case 5:
            return addAttributes(range);
        case 6:
            return removeAttribute(range);
        default:
            text = below(2) == 0 ? text.mutableCopy() : copyOf(text).mutableCopy();
        }
    }

    ns::Range someRange() {
        const std::size_t start = below(model.size() + 1);
        const std::size_t most = model.size() - start;
        return {start, below(4) == 0 ? most : below(std::min<std::size_t>(most, 9) + 1)};
    }

    objc::Strong<ns::MutableAttributedString> text = ns::MutableAttributedString::make();
    Units model;

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    std::u16string someName() { return std::u16string(1, static_cast<char16_t>(u'a' + below(4))); }
    Attributes someAttributes() {
        Attributes attributes;
        for (std::size_t count = below(4); count > 0; --count) {
            attributes[someName()] = someName();
        }
        return attributes;
    }
    std::u16string someString() {
        static constexpr std::u16string_view known{u"ab\0\n中\xD83D\xDE00\xD800\xDC00\xFEFF", 10};
        std::u16string string(below(8), u'\0');
        std::ranges::generate(string, [this] { return known[below(known.size())]; });
        return string;
    }
    auto at(std::size_t index) { return model.begin() + static_cast<std::ptrdiff_t>(index); }

    void put(ns::Range range, const Units& units) {
        model.insert(model.erase(at(range.location), at(range.location + range.length)),
                     units.begin(), units.end());
    }
    void each(ns::Range range, const std::function<void(Attributes&)>& change) {
        std::for_each(at(range.location), at(range.location + range.length),
                      [&](Unit& unit) { change(unit.attributes); });
    }

    void write(ns::Range range) {
        const std::u16string string = someString();
        text.replace(range, ns::String::from(string));
        const bool isBehind = range.length == 0 && range.location > 0;
        const Attributes inherited =
            model.empty() ? Attributes() : model[range.location - (isBehind ? 1 : 0)].attributes;
        Units units;
        for (const char16_t unit : string) {
            units.push_back({unit, inherited});
        }
        put(range, units);
    }
    void writeText(ns::Range range) {
        const std::u16string string = someString();
        Units units;
        for (const char16_t unit : string) {
            units.push_back({unit, someAttributes()});
        }
        const ns::Range own = someRange();
        switch (below(3)) {
        case 0:
            text.replace(range, ForeignTextPeer::with(units));
            break;
        case 1:
            text.replace(range, copyOf(ForeignTextPeer::with(units)));
            break;
        default:
            units.assign(at(own.location), at(own.location + own.length));
            text.replace(range, own.length == model.size() ? text : part(text, own));
        }
        put(range, units);
    }
    void setAttributes(ns::Range range) {
        const Attributes attributes = someAttributes();
        text.setAttributes(dictionaryOf(attributes), range);
        each(range, [&](Attributes& former) { former = attributes; });
    }
    void addAttribute(ns::Range range) {
        const std::u16string name = someName();
        const std::u16string value = someName();
        text.addAttribute(ns::String::from(name), ns::String::from(value), range);
        each(range, [&](Attributes& former) { former[name] = value; });
    }
    void addAttributes(ns::Range range) {
        const Attributes attributes = someAttributes();
        text.send<"addAttributes:range:">(dictionaryOf(attributes), range);
        each(range, [&](Attributes& former) {
            for (const auto& [name, value] : attributes) {
                former[name] = value;
            }
        });
    }
    void removeAttribute(ns::Range range) {
        const std::u16string name = someName();
        text.send<"removeAttribute:range:">(ns::String::from(name), range);
        each(range, [&](Attributes& former) { former.erase(name); });
    }

    std::mt19937 random_;
};

TEST_F(AttributedStrings, AreAsIfEachUnitHadItsOwnAttributes) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        Edits edits(seed);
        for (unsigned count = 0; count < 150; ++count) {
            const objc::Pool inner;
            const objc::Strong snapshot = copyOf(edits.text);
            const Units before = edits.model;
            edits.step();
            ASSERT_EQ(unitsOf(edits.text), edits.model) << seed << ", " << count;
            ASSERT_EQ(unitsOf(snapshot), before) << seed << ", " << count;
            const ns::Range range = edits.someRange();
            const auto begin = edits.model.begin() + static_cast<std::ptrdiff_t>(range.location);
            ASSERT_EQ(unitsOf(part(edits.text, range)),
                      Units(begin, begin + static_cast<std::ptrdiff_t>(range.length)));
        }
    }
}

TEST_F(AttributedStrings, AreMadeOfTextAndAttributes) {
    const auto red = ns::Dictionary::withObject(u"red"_ns, u"colour"_ns);
    EXPECT_EQ(unitsOf(ns::AttributedString::with(u"a"_ns)), (Units{{u'a', {}}}));
    EXPECT_EQ(unitsOf(ns::AttributedString::with(u"a"_ns, red)),
              (Units{{u'a', {{u"colour", u"red"}}}}));
    EXPECT_EQ(unitsOf(ns::MutableAttributedString::make()), Units());
    EXPECT_EQ(ns::AttributedString::make().string().length(), 0U);
    const auto mutableText = ns::MutableAttributedString::make<"initWithString:">(u"b"_ns);
    EXPECT_EQ(unitsOf(ns::AttributedString::make<"initWithAttributedString:">(mutableText)),
              (Units{{u'b', {}}}));
}

TEST_F(AttributedStrings, KeepHalvesOfSurrogatePairs) {
    const std::u16string halves{u'a', 0xD800, u'b', 0xDC00, 0};
    const auto text = ns::AttributedString::with(ns::String::from(halves));
    EXPECT_EQ(text.string().utf16(), halves);
    EXPECT_EQ(text.mutableCopy().string().utf16(), halves);
    const auto edited = ns::MutableAttributedString::make();
    edited.setString(text);
    edited.append(text);
    EXPECT_EQ(edited.string().utf16(), halves + halves);
    EXPECT_EQ(copyOf(edited).string().utf16(), halves + halves);
}

TEST_F(AttributedStrings, AreNotTouchedByWhatBecomesOfTheirParts) {
    const auto string = ns::MutableString::make<"initWithString:">(u"ab"_ns);
    const auto attributes = ns::MutableDictionary::make();
    const auto text = ns::MutableAttributedString::make<"initWithString:attributes:">(
        string, ns::Dictionary(attributes));
    string.append(u"c"_ns);
    attributes.set(u"red"_ns, u"colour"_ns);
    EXPECT_EQ(unitsOf(text), (Units{{u'a', {}}, {u'b', {}}}));
    text.setAttributes(attributes, {1, 1});
    attributes.remove(u"colour"_ns);
    EXPECT_EQ(unitsOf(text), (Units{{u'a', {}}, {u'b', {{u"colour", u"red"}}}}));
}

TEST_F(AttributedStrings, CanBeWrittenIntoThemselves) {
    const auto red = ns::Dictionary::withObject(u"red"_ns, u"colour"_ns);
    for (const ns::Range range : {ns::Range{0, 0}, {1, 1}, {3, 0}, {0, 3}, {2, 1}}) {
        const auto text = ns::MutableAttributedString::make<"initWithString:">(u"abc"_ns);
        text.setAttributes(red, {1, 2});
        text.append(ns::AttributedString::with(u""_ns)); // its string is one that changes
        Units model = unitsOf(text);
        const Units former = model;
        const auto start = model.begin() + static_cast<std::ptrdiff_t>(range.location);
        model.insert(model.erase(start, start + static_cast<std::ptrdiff_t>(range.length)),
                     former.begin(), former.end());
        text.replace(range, ns::AttributedString(text));
        EXPECT_EQ(unitsOf(text), model) << range.location;
        const std::u16string whole = text.string().utf16();
        text.replace(range, text.string());
        EXPECT_EQ(text.string().utf16(),
                  std::u16string(whole).replace(range.location, range.length, whole));
    }
}

TEST_F(AttributedStrings, LendAttributesUntilThePoolEnds) {
    const auto text = ns::MutableAttributedString::make<"initWithString:">(u"abc"_ns);
    text.setAttributes(dictionaryOf({{u"colour", u"red"}}), {0, 3});
    const ns::Dictionary lent = text.attributesAt(1);
    text.replace({0, 3}, ns::AttributedString::with(u"d"_ns));
    EXPECT_EQ(attributesOf(lent), (Attributes{{u"colour", u"red"}}));
}

TEST_F(AttributedStrings, TellStretchesAsLongAsTheyAre) {
    const auto red = ns::Dictionary::withObject(u"red"_ns, u"colour"_ns);
    const auto text = ns::MutableAttributedString::make<"initWithString:">(u"abcdef"_ns);
    const auto stretchAt = [text](unsigned long unit) {
        ns::Range range;
        text.attributesAt(unit, &range);
        return range;
    };
    text.setAttributes(red, {1, 2});
    text.setAttributes(dictionaryOf({{u"colour", u"red"}}), {3, 1});
    EXPECT_EQ(stretchAt(2), (ns::Range{1, 3}));
    text.replace({2, 0}, u"xyz"_ns);
    EXPECT_EQ(stretchAt(5), (ns::Range{1, 6}));
    text.send<"removeAttribute:range:">(u"colour"_ns, ns::Range{0, 9});
    EXPECT_EQ(stretchAt(5), (ns::Range{0, 9}));
}

TEST_F(AttributedStrings, AreEqualWithEqualUnits) {
    const auto red = ns::Dictionary::withObject(u"red"_ns, u"colour"_ns);
    const auto text = ns::AttributedString::with(u"ab"_ns, red);
    EXPECT_TRUE(text.isEqual(text.mutableCopy()));
    EXPECT_EQ((text.send<"hash", unsigned long>()),
              (text.mutableCopy().send<"hash", unsigned long>()));
    EXPECT_FALSE(text.isEqual(ns::AttributedString::with(u"ab"_ns)));
    EXPECT_FALSE(text.isEqual(ns::AttributedString::with(u"ac"_ns, red)));
    EXPECT_TRUE(copyOf(text) == text);
}

TEST_F(AttributedStrings, LetGoOfAttributesThatNobodyHasAnyMore) {
    const auto text = ns::MutableAttributedString::make<"initWithString:">(u"ab"_ns);
    std::vector<objc::Weak<objc::Object>> values;
    for (unsigned count = 0; count < 1000; ++count) {
        const objc::Pool inner;
        const auto value = ns::MutableDictionary::make();
        value.set(u"a"_ns, ns::String::from(std::u16string(1, static_cast<char16_t>(count + 1))));
        values.emplace_back(value);
        text.addAttribute(u"value"_ns, value, {count % 2, 1});
    }
    const auto alive =
        std::ranges::count_if(values, [](const auto& value) { return static_cast<bool>(value); });
    EXPECT_LT(alive, 150);
    EXPECT_TRUE(values.back());
}

/// The exception's name; empty without one.
std::string nameOfRaised(const std::function<void()>& body) {
    try {
        body();
    } catch (...) {
        return objc::describeCurrentException().name;
    }
    return {};
}

TEST_F(AttributedStrings, RaiseBeyondTheText) {
    constexpr unsigned long huge = std::numeric_limits<unsigned long>::max();
    const auto text = ns::MutableAttributedString::make<"initWithString:">(u"abc"_ns);
    for (const ns::Range range :
         {ns::Range{4, 0}, {0, 4}, {3, 1}, {huge, 1}, {1, huge}, {huge, huge}}) {
        const std::function<void()> bodies[] = {
            [&] { text.replace(range, u"x"_ns); },
            [&] { text.replace(range, ns::AttributedString::with(u"x"_ns)); },
            [&] { text.setAttributes(nullptr, range); },
            [&] { text.addAttribute(u"a"_ns, u"b"_ns, range); },
            [&] { text.send<"addAttributes:range:">(dictionaryOf({}), range); },
            [&] { text.send<"removeAttribute:range:">(u"a"_ns, range); },
            [&] { part(text, range); },
            [&] { part(copyOf(text), range); },
        };
        for (const auto& body : bodies) {
            EXPECT_EQ(nameOfRaised(body), "NSRangeException") << range.location;
        }
    }
    for (const unsigned long unit : {3UL, 4UL, huge}) {
        EXPECT_EQ(nameOfRaised([&] { text.attributesAt(unit); }), "NSRangeException") << unit;
    }
    EXPECT_EQ(unitsOf(text), (Units{{u'a', {}}, {u'b', {}}, {u'c', {}}}));
}

TEST_F(AttributedStrings, RefuseNothing) {
    const auto text = ns::MutableAttributedString::make<"initWithString:">(u"abc"_ns);
    const std::function<void()> bodies[] = {
        [] { ns::AttributedString::with(nullptr); },
        [] { ns::AttributedString::make<"initWithAttributedString:">(ns::AttributedString()); },
        [&] {
            text.addAttribute(nullptr, u"a"_ns, {0, 1});
        },
        [&] {
            text.addAttribute(u"a"_ns, nullptr, {0, 1});
        },
        [&] {
            text.send<"addAttributes:range:">(ns::Dictionary(), ns::Range{0, 1});
        },
    };
    for (const auto& body : bodies) {
        EXPECT_EQ(nameOfRaised(body), "NSInvalidArgumentException");
    }
    text.append(nullptr);
    text.replace({0, 1}, ns::String());
    EXPECT_EQ(unitsOf(text), (Units{{u'b', {}}, {u'c', {}}}));
    text.setString(nullptr);
    EXPECT_EQ(text.length(), 0U);
}

TEST_F(AttributedStrings, TakeManyStretches) {
    constexpr unsigned long length = 400'000;
    const auto string = ns::String::from(std::u16string(length, u'x'));
    const auto text = ns::MutableAttributedString::make<"initWithString:">(string);
    const auto red = ns::Dictionary::withObject(u"red"_ns, u"colour"_ns);
    for (unsigned long unit = 0; unit < length; unit += 2) {
        text.setAttributes(red, {unit, 1});
    }
    const auto copy = copyOf(text);
    text.send<"removeAttribute:range:">(u"colour"_ns, ns::Range{0, length});
    for (const unsigned long unit : {0UL, 1UL, 123'456UL, length - 1}) {
        EXPECT_EQ(copy.attributesAt(unit).count(), unit % 2 == 0 ? 1U : 0U);
    }
    ns::Range range;
    EXPECT_EQ(text.attributesAt(9, &range).count(), 0U);
    EXPECT_EQ(range, (ns::Range{0, length}));
}

} // namespace
