// Reading and writing messages within bounds.
#include "desktop/viewer/page_connection.hpp"

#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/websocket.hpp>

namespace desktop::viewer {
namespace {

namespace websocket = boost::beast::websocket;
using Failure = boost::beast::error_code;

/// A picture for the pasteboard is the largest thing that a page sends.
constexpr std::size_t longestMessage = std::size_t{24} << 20U;
/// Pictures are few, for they are acknowledged; this is for everything else.
constexpr std::size_t mostWaitingBytes = std::size_t{64} << 20U;
constexpr std::size_t mostUnhandled = 64;

} // namespace

void PageConnection::accept(const HttpRequest& request) {
    stream_.next_layer().expires_never(); // the stream below has its own times
    stream_.set_option(websocket::stream_base::timeout::suggested(boost::beast::role_type::server));
    stream_.read_message_max(longestMessage);
    stream_.auto_fragment(false); // a frame goes out at once, not in pieces of 4 KB
    stream_.async_accept(request, [self = shared_from_this()](Failure failure) {
        if (failure) {
            self->listener_.closed(self->number_);
            return;
        }
        self->isOpen_ = true;
        self->listener_.opened(self->number_);
        self->read();
    });
}

void PageConnection::read() {
    isReading_ = true;
    stream_.async_read(buffer_, [self = shared_from_this()](Failure failure, std::size_t) {
        self->isReading_ = false;
        if (failure) {
            self->end();
        } else {
            self->received();
        }
    });
}

void PageConnection::received() {
    if (!stream_.got_text()) {
        close(websocket::close_code::unknown_data);
        return;
    }
    ++unhandled_;
    listener_.said(number_, boost::beast::buffers_to_string(buffer_.data()));
    buffer_.consume(buffer_.size());
    if (unhandled_ < mostUnhandled) {
        read();
    }
}

void PageConnection::handled() {
    --unhandled_;
    if (!isReading_ && isOpen_ && !isClosing_) {
        read();
    }
}

void PageConnection::send(Outgoing message) {
    if (!isOpen_ || isClosing_) {
        return;
    }
    outgoingBytes_ += message.bytes.size();
    outgoing_.push_back(std::move(message));
    if (outgoingBytes_ > mostWaitingBytes) {
        end();
    } else if (outgoing_.size() == 1) {
        write();
    }
}

void PageConnection::write() {
    stream_.binary(outgoing_.front().isBinary);
    const auto& bytes = outgoing_.front().bytes;
    stream_.async_write(boost::asio::buffer(bytes),
                        [self = shared_from_this()](Failure failure, std::size_t) {
                            if (failure) {
                                self->end();
                                return;
                            }
                            self->outgoingBytes_ -= self->outgoing_.front().bytes.size();
                            self->outgoing_.pop_front();
                            if (!self->outgoing_.empty()) {
                                self->write();
                            }
                        });
}

void PageConnection::close(unsigned short code) {
    if (!std::exchange(isOpen_, false)) {
        return;
    }
    isClosing_ = true;
    listener_.closed(number_);
    // Without a close frame within the suggested time, the stream is closed by itself.
    stream_.async_close({code}, [self = shared_from_this()](Failure) {});
}

void PageConnection::end() {
    if (std::exchange(isOpen_, false)) {
        listener_.closed(number_);
    }
    isClosing_ = true;
    stream_.next_layer().close();
}

} // namespace desktop::viewer
