// Reading requests value by value, so that what stands before a mistake is known.
#include "desktop/host/request_line.hpp"

#include "desktop/foundation/text.hpp"
#include "desktop/host/lone_escapes.hpp"

#include <string_view>
#include <vector>

namespace desktop::host {
namespace {

/// Deeper values are refused: converting them takes a stack frame a level.
constexpr std::size_t deepest = 200;

/// Which byte, and what the line has up to there.
std::string placeIn(const std::string& line, std::size_t position) {
    constexpr std::size_t most = 20;
    std::size_t begin = position > most ? position - most : 0;
    while (begin < position && continuesCharacter(line[begin])) {
        ++begin;
    }
    const std::string before = line.substr(begin, position - begin);
    return "byte " + std::to_string(position) + (before.empty() ? "" : " (…" + before + ")");
}

/// The reader's own words without the place and the text read, which may be long.
std::string reasonIn(std::string words, const std::string& token) {
    for (const std::string_view endOfPlace : {"] ", "column "}) {
        if (const auto place = words.find(endOfPlace); place != std::string::npos) {
            words.erase(0, place + endOfPlace.size());
        }
    }
    words.erase(0, words.find_first_not_of("0123456789: "));
    const std::string read = "; last read: '" + token + "'";
    if (const auto at = words.find(read); at != std::string::npos) {
        words.erase(at, read.size());
    }
    return words;
}

/// Builds the value that the library reads, until the first mistake.
class Reader {
public:
    explicit Reader(std::string line) : line_(std::move(line)), escapes_(line_) {}

    Json read() {
        Json::sax_parse(line_, this);
        if (why_.empty() && !root_.is_object()) {
            why_ = "the line is not a JSON object";
        }
        if (!why_.empty()) {
            throw MalformedLine(why_, identifier());
        }
        return std::move(root_);
    }

    // What the library calls; false ends the reading.
    bool null() { return add(nullptr); }
    bool boolean(bool value) { return add(value); }
    bool number_integer(Json::number_integer_t value) { return add(value); }
    bool number_unsigned(Json::number_unsigned_t value) { return add(value); }
    bool number_float(Json::number_float_t value, const std::string&) { return add(value); }
    bool binary(const Json::binary_t&) { return false; } // JSON has none
    bool string(std::string& value) {
        escapes_.putBack(value);
        return add(std::move(value));
    }
    bool start_object(std::size_t) { return open(Json::object()); }
    bool start_array(std::size_t) { return open(Json::array()); }
    bool key(std::string& name) {
        escapes_.putBack(name);
        key_ = std::move(name);
        return true;
    }
    bool end_object() { return close(); }
    bool end_array() { return close(); }
    bool parse_error(std::size_t position, const std::string& token, const Json::exception& error) {
        const std::size_t end = std::min(position, line_.size());
        mistake_ = end - std::min(end, token.size());
        why_ = "malformed JSON at " + placeIn(line_, end) + ": " + reasonIn(error.what(), token);
        return false;
    }

private:
    Json* place(Json value) {
        if (open_.empty()) {
            root_ = std::move(value);
            return &root_;
        }
        Json& around = *open_.back();
        if (around.is_array()) {
            around.push_back(std::move(value));
            return &around.back();
        }
        return &(around[key_] = std::move(value));
    }
    bool add(Json value) {
        place(std::move(value));
        return true;
    }
    bool open(Json empty) {
        if (open_.size() == deepest) {
            why_ = "the request is nested too deeply";
            return false;
        }
        open_.push_back(place(std::move(empty)));
        return true;
    }
    bool close() {
        open_.pop_back();
        return true;
    }

    /// The one that was read, or one with which the rest of the line ends.
    [[nodiscard]] Json identifier() const {
        if (const auto found = root_.find("id"); found != root_.end() && found->is_primitive()) {
            return *found;
        }
        const std::size_t place = line_.rfind(R"("id")");
        if (place == std::string::npos || place < mistake_) {
            return nullptr;
        }
        const Json rest = Json::parse("{" + line_.substr(place), nullptr, false);
        return rest.is_object() && rest.size() == 1 && rest["id"].is_primitive() ? rest["id"]
                                                                                 : Json();
    }

    std::string line_;
    LoneEscapes escapes_;
    Json root_;
    std::vector<Json*> open_; ///< what is being read and those around it: none moves meanwhile
    std::string key_;
    std::string why_;
    std::size_t mistake_ = 0; ///< where what was read last begins
};

} // namespace

Json readRequest(const std::string& line) { return Reader(line).read(); }

} // namespace desktop::host
