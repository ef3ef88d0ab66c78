// Writing over files.
#include "library/utilities/file_overwriting.hpp"
#include "tests/support/host_process.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace {

using wentra::utilities::overwriteFile;

class Overwriting : public testing::Test {
protected:
    support::TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "file";
    bool write(const std::string& bytes) { return overwriteFile(file.c_str(), bytes); }
    std::string read() { return support::readFile(file); }
};

TEST_F(Overwriting, MakesTheFileAndLeavesALongerOnesTail) {
    EXPECT_TRUE(write("a longer text"));
    EXPECT_EQ(read(), "a longer text");
    EXPECT_TRUE(write("short"));
    EXPECT_EQ(read(), "shortger text");
    EXPECT_TRUE(write(""));
    EXPECT_EQ(read(), "shortger text");
}

TEST_F(Overwriting, RefusesWhatIsNoFile) {
    std::filesystem::create_directory(file);
    EXPECT_FALSE(write("text"));
    EXPECT_FALSE(overwriteFile((folder.path() / "none" / "file").c_str(), "text"));
}

TEST_F(Overwriting, DoesNotWaitForTheReaderOfAPipe) {
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(write("text"));
}

TEST_F(Overwriting, SurvivesAFullDisk) { EXPECT_TRUE(overwriteFile("/dev/full", "text")); }

} // namespace
