// Opaque pictures as PNG files, row by row, however tall they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace desktop {

/// Packs by zlib at its quickest and does not filter: flat interfaces get no smaller by it. One
/// thread at a time.
class PngWriter {
public:
    /// For a picture of that many pixels, which must be some.
    PngWriter(std::uint32_t width, std::uint32_t height);
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter();

    /// The next row from the top: `width` pixels in BGRA, of which alpha is not looked at.
    void add(const unsigned char* row);
    /// The file, once it has all rows.
    [[nodiscard]] std::vector<unsigned char> finish();

private:
    struct Stream;

    void deflateAll(int flush);

    std::vector<unsigned char> png_;
    std::vector<unsigned char> row_;
    std::vector<unsigned char> packed_;
    std::unique_ptr<Stream> stream_;
};

} // namespace desktop
