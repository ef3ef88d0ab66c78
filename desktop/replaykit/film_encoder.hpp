// Pictures as a film that browsers play: VP8 in a WebM file.
#pragma once

#include <memory>
#include <string>

namespace desktop {

/// Writes a film to a file. One thread at a time, any.
class FilmEncoder {
public:
    /// Of pictures of that size in pixels, of which odd last rows and columns are left out. Null
    /// when the file cannot be written or the size is none of a film.
    static std::unique_ptr<FilmEncoder> open(const std::string& file, int width, int height);

    FilmEncoder(const FilmEncoder&) = delete;
    FilmEncoder& operator=(const FilmEncoder&) = delete;
    /// Without `finish`, the file lacks its index and its length, and still plays.
    ~FilmEncoder();

    /// Adds a picture, in BGRA with rows `stride` bytes apart, that is seen from `seconds` after
    /// the beginning on. One that is no later than the last is left out.
    void add(const unsigned char* pixels, int stride, double seconds);
    /// Shows the last picture up to `seconds`, and ends the file. False when something of the film
    /// could not be written.
    bool finish(double seconds);

private:
    struct Machinery;

    explicit FilmEncoder(std::unique_ptr<Machinery> machinery);

    std::unique_ptr<Machinery> machinery_;
};

} // namespace desktop
