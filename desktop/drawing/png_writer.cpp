// The chunks of a PNG file around what zlib packs.
#include "desktop/drawing/png_writer.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <zlib.h>

namespace desktop {
namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::size_t bytesPerPixel = 4;

void appendBigEndian(Bytes& bytes, std::uint32_t number) {
    for (const int shift : {24, 16, 8, 0}) {
        bytes.push_back(static_cast<unsigned char>(number >> static_cast<unsigned>(shift)));
    }
}

/// A chunk of a PNG file: length, name, content, checksum over name and content.
void appendChunk(Bytes& png, std::string_view name, std::span<const unsigned char> content) {
    appendBigEndian(png, static_cast<std::uint32_t>(content.size()));
    const std::size_t start = png.size();
    png.insert(png.end(), name.begin(), name.end());
    png.insert(png.end(), content.begin(), content.end());
    const auto checksum = crc32_z(crc32_z(0, nullptr, 0), png.data() + start, png.size() - start);
    appendBigEndian(png, static_cast<std::uint32_t>(checksum));
}

} // namespace

struct PngWriter::Stream {
    Stream() { deflateInit(&z, Z_BEST_SPEED); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
    ~Stream() { deflateEnd(&z); }

    z_stream z{};
};

PngWriter::PngWriter(std::uint32_t width, std::uint32_t height)
    : row_(1 + std::size_t{width} * 3), packed_(std::size_t{1} << 18U),
      stream_(std::make_unique<Stream>()) {
    constexpr std::array<unsigned char, 8> signature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    constexpr std::array<unsigned char, 5> eightBitColour{8, 2, 0, 0, 0};
    png_.assign(signature.begin(), signature.end());
    Bytes header;
    appendBigEndian(header, width);
    appendBigEndian(header, height);
    header.insert(header.end(), eightBitColour.begin(), eightBitColour.end());
    appendChunk(png_, "IHDR", header);
    stream_->z.next_out = packed_.data();
    stream_->z.avail_out = static_cast<uInt>(packed_.size());
}

PngWriter::~PngWriter() = default;

void PngWriter::add(const unsigned char* row) {
    // First comes the kind of filter, which is none.
    for (auto* to = row_.data() + 1; to != row_.data() + row_.size();
         to += 3, row += bytesPerPixel) {
        to[0] = row[2];
        to[1] = row[1];
        to[2] = row[0];
    }
    stream_->z.next_in = row_.data();
    stream_->z.avail_in = static_cast<uInt>(row_.size());
    deflateAll(Z_NO_FLUSH);
}

/// Full and last buffers become chunks.
void PngWriter::deflateAll(int flush) {
    z_stream& z = stream_->z;
    int status = Z_OK;
    while (status == Z_OK && (z.avail_in > 0 || flush == Z_FINISH)) {
        status = deflate(&z, flush);
        if (z.avail_out == 0 || status == Z_STREAM_END) {
            appendChunk(png_, "IDAT", std::span(packed_).first(packed_.size() - z.avail_out));
            z.next_out = packed_.data();
            z.avail_out = static_cast<uInt>(packed_.size());
        }
    }
}

std::vector<unsigned char> PngWriter::finish() {
    deflateAll(Z_FINISH);
    appendChunk(png_, "IEND", {});
    return std::move(png_);
}

} // namespace desktop
