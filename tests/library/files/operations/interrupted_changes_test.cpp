// Changes that are killed or refused half way, at each of their system calls.
#include "library/files/operations/item_changes.hpp"

#include "tests/support/system_calls.hpp"
#include "tests/support/temporary_folder.hpp"

namespace {

using namespace wentra::files;
using support::Fault;
namespace fs = std::filesystem;

using Change = Failure (*)(const std::string& source, const std::string& destination);

/// What is seen of an entry: a file's text, or that of the file in a folder; "" where it is not
/// whole.
std::string seen(const fs::path& path) {
    std::ifstream file(fs::is_directory(path) ? path / "in" : path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return text.size() == 200000 ? text.substr(0, 1) : "";
}

/// A source and a destination, and what a change left of them.
class Scene {
public:
    Scene(bool sourceIsFolder, bool targetIsFolder) {
        folder_.write(sourceIsFolder ? "new/in" : "new", std::string(200000, 'n'));
        folder_.write(targetIsFolder ? "old/in" : "old", std::string(200000, 'o'));
    }
    [[nodiscard]] std::string at(const char* name) const { return folder_.path() / name; }
    [[nodiscard]] std::string source() const { return seen(at("new")); }
    [[nodiscard]] std::string destination() const { return seen(at("old")); }
    /// Whether the contents are whole somewhere.
    [[nodiscard]] bool holds(const std::string& contents) const {
        for (const auto& entry : fs::directory_iterator(folder_.path())) {
            if (seen(entry.path()) == contents) {
                return true;
            }
        }
        return false;
    }
    [[nodiscard]] std::size_t leftovers() const {
        const auto entries = fs::directory_iterator(folder_.path());
        return static_cast<std::size_t>(std::count_if(begin(entries), end(entries), [](auto& each) {
            return each.path().filename() != "old" && each.path().filename() != "new";
        }));
    }

private:
    support::TemporaryFolder folder_;
};

/// Calls `judge` with what each fault at each call left behind; the number of calls there are.
template <class Judge>
int atEachCall(Change change, Fault fault, bool sourceIsFolder, bool targetIsFolder, Judge judge) {
    for (int place = 0;; ++place) {
        SCOPED_TRACE(place);
        const Scene scene(sourceIsFolder, targetIsFolder);
        const auto status = support::withFault(
            place, fault, [&] { _exit(change(scene.at("new"), scene.at("old")) == 0 ? 0 : 1); });
        if (!status) {
            EXPECT_EQ(scene.destination(), "n"); // nothing happened to it
            return place;
        }
        judge(scene, *status);
        if (testing::Test::HasFailure()) {
            return place;
        }
    }
}

constexpr bool kinds[][2]{{false, false}, {true, true}, {false, true}, {true, false}};

TEST(InterruptedCopies, LeaveTheSourceAndAWholeDestination) {
    for (const auto& [sourceIsFolder, targetIsFolder] : kinds) {
        const int calls =
            atEachCall(&replaceByCopy, Fault::killed, sourceIsFolder, targetIsFolder,
                       [](const Scene& scene, int) {
                           EXPECT_EQ(scene.source(), "n");
                           EXPECT_TRUE(scene.destination() == "o" || scene.destination() == "n");
                       });
        EXPECT_GT(calls, 10);
    }
}

TEST(InterruptedMoves, LoseNothing) {
    for (const auto& [sourceIsFolder, targetIsFolder] : kinds) {
        const int calls =
            atEachCall(&replaceByMove, Fault::killed, sourceIsFolder, targetIsFolder,
                       [](const Scene& scene, int) {
                           EXPECT_TRUE(scene.holds("n"));
                           EXPECT_TRUE(scene.destination() == "o" || scene.destination() == "n");
                       });
        EXPECT_GT(calls, 3);
    }
}

class RefusedChanges : public testing::Test {
protected:
    void SetUp() override {
        if (!support::detail::canRefuse) {
            GTEST_SKIP() << "needs the registers of another processor";
        }
    }
};

TEST_F(RefusedChanges, KeepWhatWasThereWhenACopyFails) {
    for (const auto& [sourceIsFolder, targetIsFolder] : kinds) {
        atEachCall(&replaceByCopy, Fault::refused, sourceIsFolder, targetIsFolder,
                   [](const Scene& scene, int status) {
                       EXPECT_EQ(scene.source(), "n");
                       EXPECT_TRUE(scene.destination() == "o" || scene.destination() == "n");
                       if (WEXITSTATUS(status) == 0) {
                           EXPECT_EQ(scene.destination(), "n");
                       }
                   });
    }
}

TEST_F(RefusedChanges, LoseNothingWhenAMoveFails) {
    for (const auto& [sourceIsFolder, targetIsFolder] : kinds) {
        atEachCall(&replaceByMove, Fault::refused, sourceIsFolder, targetIsFolder,
                   [](const Scene& scene, int status) {
                       EXPECT_TRUE(scene.holds("n"));
                       EXPECT_TRUE(scene.destination() == "o" || scene.destination() == "n");
                       if (WEXITSTATUS(status) == 0) {
                           EXPECT_EQ(scene.destination(), "n");
                       }
                   });
    }
}

TEST_F(RefusedChanges, LeaveNothingBehindWhenTheDiskIsFull) {
    int failed = 0;
    atEachCall(&replaceByCopy, Fault::refused, true, false, [&](const Scene& scene, int status) {
        failed += WEXITSTATUS(status);
        if (scene.destination() == "o") {
            EXPECT_EQ(scene.leftovers(), 0U);
        }
    });
    EXPECT_GT(failed, 5);
}

} // namespace
