// Films are files that tell how long they are.
#include "desktop/replaykit/film_encoder.hpp"

#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

using desktop::FilmEncoder;

class FilmEncoding : public testing::Test {
protected:
    void add(FilmEncoder& encoder, unsigned char grey, double seconds) const {
        const std::vector<unsigned char> pixels(std::size_t{64} * 48 * 4, grey);
        encoder.add(pixels.data(), 64 * 4, seconds);
    }
    [[nodiscard]] std::string content() const {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator(stream), {}};
    }
    /// In milliseconds, as the file tells; 0 when it does not.
    [[nodiscard]] double duration() const {
        const std::string bytes = content();
        const std::size_t at = bytes.find("\x44\x89\x88"); // a number of 8 bytes
        std::uint64_t bits = 0;
        for (std::size_t i = 0; at != bytes.npos && i < 8; ++i) {
            bits = bits << 8U | static_cast<unsigned char>(bytes[at + 3 + i]);
        }
        return std::bit_cast<double>(bits);
    }
    /// Width and height of the pictures, as the first of them tells.
    [[nodiscard]] std::pair<int, int> size() const {
        const std::string bytes = content();
        const std::size_t at = bytes.find("\x9D\x01\x2A"); // a picture that stands by itself
        const auto number = [&](std::size_t from) {
            return at == bytes.npos ? 0
                                    : static_cast<unsigned char>(bytes.at(from)) |
                                          static_cast<unsigned char>(bytes.at(from + 1)) << 8;
        };
        return {number(at + 3), number(at + 5)};
    }

    support::TemporaryFolder folder;
    std::string file = folder.path() / "film.webm";
};

TEST_F(FilmEncoding, TheLastPictureIsSeenToTheEnd) {
    const auto encoder = FilmEncoder::open(file, 64, 48);
    ASSERT_TRUE(encoder);
    add(*encoder, 0, 0);
    add(*encoder, 200, 0.5);
    EXPECT_TRUE(encoder->finish(2));
    EXPECT_NEAR(duration(), 2000, 50);
}

TEST_F(FilmEncoding, PicturesThatAreNoLaterAreLeftOut) {
    const auto encoder = FilmEncoder::open(file, 65, 49); // odd ones, too
    ASSERT_TRUE(encoder);
    add(*encoder, 0, 0.5);
    add(*encoder, 100, 0.5);
    add(*encoder, 200, 0.1);
    EXPECT_TRUE(encoder->finish(0.2));
    EXPECT_NEAR(duration(), 500, 50);
    EXPECT_EQ(size(), (std::pair{64, 48}));
}

TEST_F(FilmEncoding, AFilmThatIsNotEndedIsThereNevertheless) {
    {
        const auto encoder = FilmEncoder::open(file, 64, 48);
        add(*encoder, 0, 0);
    }
    EXPECT_TRUE(content().starts_with("\x1A\x45\xDF\xA3"));
}

TEST_F(FilmEncoding, WhatCannotBeAFilmIsNone) {
    EXPECT_FALSE(FilmEncoder::open(folder.path() / "missing" / "film.webm", 64, 48));
    EXPECT_FALSE(FilmEncoder::open(file, 1, 48));
    EXPECT_FALSE(FilmEncoder::open(file, -2, 48));
}

} // namespace
