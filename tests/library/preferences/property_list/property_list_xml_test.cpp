// Tests what counts as an XML property list and what its elements mean.
#include "library/preferences/preferences.hpp"
#include "tests/library/preferences/property_list/property_list_writer.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace wentra::preferences {
namespace {

constexpr const char* marker = "<key>kqwzgs</key><true/>";

bool isXmlAccepted(const std::string& document) {
    return Preferences::parse(document).on(keys.recolour);
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string result;
    for (std::size_t index = 0; index < times; ++index) {
        result += text;
    }
    return result;
}

TEST(PropertyListXml, AcceptsWellFormedContent) {
    const char* contents[] = {
        "",
        "<key>a</key><dict/>",
        "<key>a</key><array><dict><key>b</key><array/></dict><string/></array>",
        "<!-- <key> --><?note <key>?><key>a</key><!----><true/>",
        "<key >a</key ><string\n>b</string\t>",
        "<key>a</key><true></true><key>b</key><false />",
        "<key>a</key><string note=\"a>b\" other = '\"'>b</string>",
        "<key/><string/>",
        "<key>a</key><data>\n\tAAEC Aw==\n</data><key>b</key><data/>",
        "<key>a</key><date>2024-02-29T23:59:60Z</date>",
        "<key>a</key><integer> -0x7f </integer><key>b</key><integer>18446744073709551615</integer>",
        "<key>a</key><real>-1.5e-3</real><key>b</key><real>nan</real><key>c</key><real>.5</real>",
        "<key>a&amp;b</key><string>&#x1F604;&#9;<![CDATA[<&>]]></string>",
    };
    for (const char* content : contents) {
        EXPECT_TRUE(isXmlAccepted(xmlDocument(std::string(content) + marker))) << content;
        EXPECT_TRUE(isXmlAccepted(xmlDocument(std::string(marker) + content))) << content;
    }
}

TEST(PropertyListXml, RejectsMalformedContentAnywhere) {
    const char* contents[] = {
        "text",
        "<key>a</key>",
        "<true/>",
        "<key>a</key><true/><true/>",
        "<key>a</key><unknown/>",
        "<key>a</key><key>b</key>",
        "<key>a</key><array><true/></dict>",
        "<key>a</key><dict><true/></dict>",
        "<key>a</key><dict><key>b</key></dict>",
        "<key>a</key><array><key>b</key></array>",
        "<key>a</key><string>b</strin>",
        "<key>a</key><string>b<b/></string>",
        "<key>a</key><string>&unknown;</string>",
        "<key>a</key><string>&amp</string>",
        "<key>a</key><string>&#xD800;</string>",
        "<key>a</key><string>&#0;</string>",
        "<key>a</key><string>&#x110000;</string>",
        "<key>a</key><string>&#99999999999;</string>",
        "<key>a</key><string><![CDATA[b</string>",
        "<key>a</key><string>\xC0\x80</string>",
        "<key>a</key><string>\xED\xA0\x80</string>",
        "<key>\xFF</key><string/>",
        "<key>a</key><string note>b</string>",
        "<key>a</key><string note=b>b</string>",
        "<key>a</key><stringy>b</stringy>",
        "<key>a</key><integer/>",
        "<key>a</key><integer>1.5</integer>",
        "<key>a</key><integer>0x</integer>",
        "<key>a</key><integer>18446744073709551616</integer>",
        "<key>a</key><integer>-9223372036854775809</integer>",
        "<key>a</key><real>1,5</real>",
        "<key>a</key><real>.</real>",
        "<key>a</key><real>1e</real>",
        "<key>a</key><true>1</true>",
        "<key>a</key><data>A-=</data>",
        "<key>a</key><data>A=A</data>",
        "<key>a</key><date>2024-02-29</date>",
        "<key>a</key><date>2024-02-29T23:59:5xZ</date>",
        "<!-- <key>a</key><true/>",
        "<!-- open",
        "<?open",
    };
    for (const char* content : contents) {
        EXPECT_FALSE(isXmlAccepted(xmlDocument(marker + std::string(content)))) << content;
        const std::string nested = "<key>x</key><dict>" + std::string(content) + "</dict>";
        EXPECT_FALSE(isXmlAccepted(xmlDocument(marker + nested))) << content;
    }
}

TEST(PropertyListXml, AcceptsAndRejectsWhatSurroundsTheDictionary) {
    const std::string dictionary = "<dict>" + std::string(marker) + "</dict>";
    const std::string plist = "<plist version=\"1.0\">" + dictionary + "</plist>";
    const std::pair<std::string, bool> documents[] = {
        {dictionary, true},
        {plist, true},
        {"\xEF\xBB\xBF" + plist, true},
        {"\n<!-- a --> <?xml version='1.0'?>" + plist + "\n<!-- b -->", true},
        {"<!DOCTYPE plist>" + plist, true},
        {"<!DOCTYPE plist SYSTEM \">\" '>'>" + plist, true},
        {"<!DOCTYPE plist [<!ENTITY a \"b\">]>" + plist, false},
        {"<!DOCTYPE plist SYSTEM \">" + plist, false},
        {"<plist/>", false},
        {"<plist>" + dictionary, false},
        {dictionary + "</plist>", false},
        {plist + "x", false},
        {plist + plist, false},
        {"x" + plist, false},
        {"<plist>" + dictionary + dictionary + "</plist>", false},
        {"<plist><array>" + dictionary + "</array></plist>", false},
        {"<plist><string>a</string></plist>", false},
        {plist + std::string(1, '\0'), false},
    };
    for (const auto& [document, accepted] : documents) {
        EXPECT_EQ(isXmlAccepted(document), accepted) << document;
    }
}

TEST(PropertyListXml, IsReadInTheEncodingThatItDeclares) {
    const auto declared = [](const std::string& declaration, const std::string& text) {
        const std::string content = "<dict><key>kqwzgs</key><string>" + text + "</string></dict>";
        return Preferences::parse("<?xml version=\"1.0\" " + declaration + "?>" + content)
            .text("kqwzgs");
    };
    EXPECT_EQ(declared("encoding=\"UTF-8\"", "é€"), u"é€");
    EXPECT_EQ(declared("encoding = 'utf-8' standalone='yes'", "é€"), u"é€");
    EXPECT_EQ(declared("", "é€"), u"é€");
    EXPECT_EQ(declared("encoding=\"ISO-8859-1\"", "\xE9\xE7\x80"), u"éç\u0080");
    EXPECT_EQ(declared("encoding\t=\n'iso-8859-1'", "\xE9&#xE9;"), u"éé");
    EXPECT_EQ(declared("encoding='windows-1252'", "\xE9\x80\x9F"), u"é€Ÿ");
    EXPECT_EQ(declared("encoding='US-ASCII'", "a"), u"a");
    EXPECT_EQ(declared("encoding='US-ASCII'", "é"), u"");
    EXPECT_EQ(declared("encoding='ISO-8859-77'", "a"), u"");
    EXPECT_EQ(declared("encoding=utf-8", "é"), u"é") << "nothing is declared";
}

TEST(PropertyListXml, DepthIsBounded) {
    const auto nested = [](std::size_t depth) {
        return xmlDocument(marker + ("<key>a</key>" + repeated("<array>", depth)) +
                           repeated("</array>", depth));
    };
    EXPECT_TRUE(isXmlAccepted(nested(511)));
    EXPECT_FALSE(isXmlAccepted(nested(512)));
    EXPECT_FALSE(isXmlAccepted(nested(100000)));
    EXPECT_FALSE(isXmlAccepted(xmlDocument(marker + repeated("<key>a</key><dict>", 100000))));
}

TEST(PropertyListXml, OnlyTheTopDictionaryCounts) {
    const Preferences preferences = Preferences::parse(
        xmlDocument("<key>a</key><dict><key>kqwzgs</key><true/></dict><key>kqwzdx</key><true/>"
                    "<key>kqwzgd</key><array><true/></array>"));
    EXPECT_FALSE(preferences.on(keys.recolour));
    EXPECT_TRUE(preferences.on(keys.resize));
    EXPECT_FALSE(preferences.on(keys.changeHeight));
}

TEST(PropertyListXml, ResolvesReferencesAndSections) {
    const Preferences preferences = Preferences::parse(xmlDocument(
        "<key>&#x767e;度<![CDATA[id]]></key>"
        "<string>&lt;&gt;&amp;&quot;&apos;&#x1F604;&#65;<![CDATA[&amp;]]]]><![CDATA[>]]> b</string>"
        "<key>a&amp;b</key><true/>"));
    EXPECT_EQ(preferences.text(keys.translationIdentifier), u"<>&\"'😄A&amp;]]> b");
    EXPECT_TRUE(preferences.on("a&b"));
    EXPECT_FALSE(preferences.on("a&amp;b"));
}

TEST(PropertyListXml, WrongTypesReadAsAbsent) {
    for (const char* element : {"<array><true/></array>", "<dict><key>a</key><true/></dict>",
                                "<data>AAAA</data>", "<date>2024-02-29T23:59:59Z</date>"}) {
        const Preferences preferences = Preferences::parse(xmlDocument(
            "<key>kqxydx</key><integer>5</integer><key>kqxydx</key>" + std::string(element)));
        EXPECT_FALSE(preferences.on("kqxydx")) << element;
        EXPECT_EQ(preferences.number("kqxydx"), 0) << element;
        EXPECT_EQ(preferences.text("kqxydx"), u"") << element;
    }
}

TEST(PropertyListXml, ReadsNumbersOfEveryForm) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::pair<const char*, double> numbers[] = {
        {"<integer>0x7F</integer>", 127},
        {"<integer>+5</integer>", 5},
        {"<integer>-9223372036854775808</integer>", -0x1p63},
        {"<real>0.1</real>", static_cast<double>(0.1F)},
        {"<real>3.14159274101257324</real>", static_cast<double>(3.14159274F)},
        {"<real>1e39</real>", infinity},
        {"<real>-infinity</real>", -infinity},
        {"<real>1e99999999999999999999</real>", infinity},
        {"<real>1e-99999999999999999999</real>", 0},
        {"<real>00000000000000000000000000000001.5</real>", 1.5},
        {"<real>12345678901234567890123456789e-28</real>", static_cast<double>(1.23456789F)},
        {"<real>0.00000000000000000000000000000125e30</real>", 1.25},
    };
    for (const auto& [element, number] : numbers) {
        const Preferences preferences =
            Preferences::parse(xmlDocument("<key>kqxydx</key>" + std::string(element)));
        EXPECT_EQ(preferences.number("kqxydx"), number) << element;
    }
    EXPECT_TRUE(
        std::isnan(Preferences::parse(xmlDocument("<key>a</key><real>nan</real>")).number("a")));
}

TEST(PropertyListXml, ReadsUtf16ByItsByteOrderMark) {
    const std::string document = xmlPropertyList({{"开启文字复制", true}, {"百度id", "😄"}});
    const std::u16string text = u"\uFEFF" + utf16FromUtf8(document);
    const std::string big = bigEndianUtf16(text);
    std::string little;
    for (std::size_t index = 0; index < big.size(); index += 2) {
        little += {big[index + 1], big[index]};
    }
    for (const std::string& bytes : {big, little}) {
        const Preferences preferences = Preferences::parse(bytes);
        EXPECT_TRUE(preferences.on(keys.copyOnLongPress));
        EXPECT_EQ(preferences.text(keys.translationIdentifier), u"😄");
        EXPECT_FALSE(Preferences::parse(bytes + ' ').on(keys.copyOnLongPress));
    }
}

} // namespace
} // namespace wentra::preferences
