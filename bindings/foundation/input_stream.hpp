// NSInputStream: bytes, one part after the other.
#pragma once

#include "bindings/foundation/data.hpp"

namespace ns {

struct InputStream : objc::Kind<InputStream, "NSInputStream"> {
    using Kind::Kind;

    /// Opening it fails when there is no such file, which shows in there being nothing to read.
    static InputStream withFileAtPath(String path) {
        return sendClass<"inputStreamWithFileAtPath:", InputStream>(path);
    }
    static InputStream withData(Data data) {
        return sendClass<"inputStreamWithData:", InputStream>(data);
    }
    void open() const { send<"open">(); }
    void close() const { send<"close">(); }
    [[nodiscard]] bool hasBytesAvailable() const { return send<"hasBytesAvailable", bool>(); }
    /// How many bytes were put into the buffer: 0 at the end, -1 when reading fails.
    long read(char* buffer, unsigned long size) const {
        return send<"read:maxLength:", long>(buffer, size);
    }
};

} // namespace ns
