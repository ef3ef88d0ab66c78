// Reading the two levels of the compact unwind table.
#include "device/emulation/unwind_info.hpp"

#include "device/emulation/refusal.hpp"

#include <algorithm>
#include <map>

namespace emulation {
namespace {

struct Header {
    std::uint32_t version, encodings, encodingCount, personalities, personalityCount, index,
        indexCount;
};
struct IndexEntry {
    std::uint32_t start, page, handlers;
};
struct Row {
    std::uint32_t start, encoding;
};
struct PageHeader {
    std::uint32_t kind;
    std::uint16_t rows, rowCount, encodings, encodingCount;
};
enum : std::uint32_t { regularPage = 2, compressedPage = 3 };

class Table {
public:
    explicit Table(Bytes bytes) : bytes_(bytes), header_(valueAt<Header>(bytes, 0)) {
        if (header_.version != 1 || header_.indexCount == 0) {
            throw Refusal("a compact unwind table of another version");
        }
        for (std::uint32_t i = 0; i + 1 < header_.indexCount; ++i) {
            readEntry(index(i), index(i + 1));
        }
        end_ = index(header_.indexCount - 1).start;
        std::ranges::sort(rows_, {}, &Row::start);
        if (!rows_.empty() && rows_.back().start > end_) {
            throw Refusal("a compact unwind table that ends before its last function");
        }
    }

    [[nodiscard]] std::vector<FrameRow> frames() const {
        std::vector<FrameRow> found;
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            const std::uint32_t next = i + 1 < rows_.size() ? rows_[i + 1].start : end_;
            if (rows_[i].encoding != 0 && next != rows_[i].start) {
                found.push_back(frame(rows_[i], next));
            }
        }
        return found;
    }

private:
    [[nodiscard]] IndexEntry index(std::uint32_t number) const {
        return valueAt<IndexEntry>(bytes_, header_.index + number * sizeof(IndexEntry));
    }

    void readEntry(const IndexEntry& entry, const IndexEntry& next) {
        if (entry.page != 0) {
            readPage(entry.page, entry.start);
        }
        if (next.handlers < entry.handlers) {
            throw Refusal("a compact unwind table whose handlers are out of order");
        }
        for (std::uint32_t at = entry.handlers; at < next.handlers; at += sizeof(Row)) {
            const auto [function, table] = valueAt<Row>(bytes_, at);
            handlers_[function] = table;
        }
    }

    void readPage(std::uint32_t page, std::uint32_t start) {
        const auto header = valueAt<PageHeader>(
            bytes_, page); // a regular one lacks the last two fields, which are not used then
        if (rows_.size() + header.rowCount > bytes_.size() / 4) {
            throw Refusal("a compact unwind table whose pages overlap");
        }
        for (std::uint32_t i = 0; i < header.rowCount; ++i) {
            rows_.push_back(row(header, page, start, i));
        }
    }

    [[nodiscard]] Row row(const PageHeader& header, std::uint32_t page, std::uint32_t start,
                          std::uint32_t number) const {
        const std::uint32_t rows = page + header.rows;
        if (header.kind == regularPage) {
            return valueAt<Row>(bytes_, rows + number * sizeof(Row));
        }
        if (header.kind != compressedPage) {
            throw Refusal("an unknown page of the compact unwind table");
        }
        const auto packed = valueAt<std::uint32_t>(bytes_, rows + number * 4);
        return {start + (packed & 0xFFFFFFU), encoding(header, page, packed >> 24U)};
    }

    /// First come the encodings that all pages share.
    [[nodiscard]] std::uint32_t encoding(const PageHeader& header, std::uint32_t page,
                                         std::uint32_t number) const {
        return valueAt<std::uint32_t>(bytes_, number < header_.encodingCount
                                                  ? header_.encodings + 4 * number
                                                  : page + header.encodings +
                                                        4 * (number - header_.encodingCount));
    }

    [[nodiscard]] FrameRow frame(const Row& row, std::uint32_t next) const {
        FrameRow found{row.start, next - row.start, row.encoding, {}};
        if (const std::uint32_t number = row.encoding >> 28U & 3U; number != 0) {
            found.personality =
                valueAt<std::uint32_t>(bytes_, header_.personalities + 4 * (number - 1));
            found.handlers = handlersOf(row.start);
        }
        return found;
    }

    [[nodiscard]] std::uint32_t handlersOf(std::uint32_t function) const {
        const auto found = handlers_.find(function);
        if (found == handlers_.end()) {
            throw Refusal("a function that handles exceptions without a table of handlers");
        }
        return found->second;
    }

    Bytes bytes_;
    Header header_;
    std::vector<Row> rows_;
    std::map<std::uint32_t, std::uint32_t> handlers_; // by function
    std::uint32_t end_ = 0;
};

} // namespace

std::vector<FrameRow> readUnwindInfo(Bytes table) { return Table(table).frames(); }

} // namespace emulation
