// Texts of files in each encoding, and what is no text.
#include "library/files/browser/file_reading.hpp"

#include "bindings/objc/pool.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace wentra::files {
namespace {

class FileReading : public testing::Test {
protected:
    ns::String textOf(const char* name) {
        return textOfFile(urlOf((folder_.path() / name).string()));
    }
    ns::String textOfBytes(const std::string& bytes) {
        folder_.write("text", bytes);
        return textOf("text");
    }

    const objc::Pool pool;
    support::TemporaryFolder folder_;
};

TEST_F(FileReading, KeepsAsciiAsItIs) {
    for (const std::string& bytes : {std::string(), std::string("a"), std::string("a\0b\r\n", 5),
                                     std::string(1'000'000, '~')}) {
        const ns::String text = textOfBytes(bytes);
        ASSERT_TRUE(text);
        EXPECT_TRUE(text.utf16() == std::u16string(bytes.begin(), bytes.end())) << bytes.size();
    }
}

TEST_F(FileReading, DecodesWhatIsNot) {
    EXPECT_EQ(textOfBytes(std::string(20, 'a') + "é😀").utf16(), std::u16string(20, u'a') + u"é😀");
    EXPECT_EQ(textOfBytes("\xA4\xB3\xA4\xF3").utf16(), u"こん");
    EXPECT_FALSE(textOfBytes("a\xFF\xFF"));
}

TEST_F(FileReading, FindsNoTextInWhatCannotBeRead) {
    EXPECT_FALSE(textOf("none"));
    EXPECT_FALSE(textOf("."));
    ASSERT_EQ(mkfifo((folder_.path() / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(textOf("pipe"));
    EXPECT_FALSE(textOfFile(nullptr));
}

} // namespace
} // namespace wentra::files
