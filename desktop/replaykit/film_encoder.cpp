// Converting, compressing and packing pictures with FFmpeg's libraries.
#include "desktop/replaykit/film_encoder.hpp"

#include "desktop/drawing/handle.hpp"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

#include <cmath>

namespace desktop {
namespace {

constexpr AVRational millisecond{1, 1000};

void freeContext(AVCodecContext* context) { avcodec_free_context(&context); }
void freeFrame(AVFrame* frame) { av_frame_free(&frame); }
void freePacket(AVPacket* packet) { av_packet_free(&packet); }

void closeFile(AVFormatContext* container) {
    avio_closep(&container->pb);
    avformat_free_context(container);
}

using Container = Handle<AVFormatContext, closeFile>;
using Encoder = Handle<AVCodecContext, freeContext>;
using Frame = Handle<AVFrame, freeFrame>;
using Packet = Handle<AVPacket, freePacket>;
using Converter = Handle<SwsContext, sws_freeContext>;

/// Quick rather than small: the application has the processor first.
Encoder openEncoder(const AVCodec* codec, int width, int height) {
    constexpr std::int64_t bitsPerSecond = 6'000'000;
    constexpr int mostPicturesBetweenWholeOnes = 150;
    Encoder encoder(avcodec_alloc_context3(codec));
    encoder->width = width;
    encoder->height = height;
    encoder->pix_fmt = AV_PIX_FMT_YUV420P;
    encoder->time_base = millisecond;
    encoder->bit_rate = bitsPerSecond;
    encoder->gop_size = mostPicturesBetweenWholeOnes;
    encoder->thread_count = 1;
    av_opt_set(encoder->priv_data, "deadline", "realtime", 0);
    av_opt_set(encoder->priv_data, "cpu-used", "12", 0);
    av_opt_set(encoder->priv_data, "lag-in-frames", "0", 0);
    av_opt_set(encoder->priv_data, "crf", "12", 0);
    return avcodec_open2(encoder.get(), codec, nullptr) == 0 ? std::move(encoder) : nullptr;
}

Container openContainer(const std::string& file, const AVCodecContext& encoder) {
    AVFormatContext* made = nullptr;
    avformat_alloc_output_context2(&made, nullptr, "webm", file.c_str());
    if (made == nullptr) {
        return nullptr;
    }
    Container container(made);
    container->flags |= AVFMT_FLAG_FLUSH_PACKETS; // what is written is there, whatever follows
    AVStream* stream = avformat_new_stream(made, nullptr);
    stream->time_base = encoder.time_base;
    avcodec_parameters_from_context(stream->codecpar, &encoder);
    const bool isOpen = avio_open(&made->pb, file.c_str(), AVIO_FLAG_WRITE) >= 0 &&
                        avformat_write_header(made, nullptr) >= 0;
    return isOpen ? std::move(container) : nullptr;
}

Frame makeFrame(const AVCodecContext& encoder) {
    Frame frame(av_frame_alloc());
    frame->format = encoder.pix_fmt;
    frame->width = encoder.width;
    frame->height = encoder.height;
    return av_frame_get_buffer(frame.get(), 0) == 0 ? std::move(frame) : nullptr;
}

} // namespace

struct FilmEncoder::Machinery {
    Encoder encoder;
    Container container;
    Frame frame;
    Converter converter;
    Packet packet = Packet(av_packet_alloc());
    std::int64_t last = -1; ///< milliseconds of the latest picture
    bool hasFailed = false;

    /// Null ends the film.
    void encode(const AVFrame* picture) {
        hasFailed |= avcodec_send_frame(encoder.get(), picture) < 0;
        while (avcodec_receive_packet(encoder.get(), packet.get()) == 0) {
            av_packet_rescale_ts(packet.get(), encoder->time_base,
                                 container->streams[0]->time_base);
            packet->stream_index = 0;
            hasFailed |= av_write_frame(container.get(), packet.get()) < 0;
            av_packet_unref(packet.get());
        }
    }
    void encodeAt(double seconds) {
        const auto time = static_cast<std::int64_t>(std::llround(seconds * 1000));
        if (time > last) {
            frame->pts = last = time;
            encode(frame.get());
        }
    }
};

FilmEncoder::FilmEncoder(std::unique_ptr<Machinery> machinery) : machinery_(std::move(machinery)) {}

FilmEncoder::~FilmEncoder() = default;

std::unique_ptr<FilmEncoder> FilmEncoder::open(const std::string& file, int width, int height) {
    av_log_set_level(AV_LOG_ERROR);
    const AVCodec* codec = avcodec_find_encoder(AV_CODEC_ID_VP8);
    const int evenWidth = width / 2 * 2;
    const int evenHeight = height / 2 * 2;
    if (codec == nullptr || evenWidth <= 0 || evenHeight <= 0) {
        return nullptr;
    }
    auto machinery = std::make_unique<Machinery>();
    machinery->encoder = openEncoder(codec, evenWidth, evenHeight);
    if (!machinery->encoder) {
        return nullptr;
    }
    machinery->container = openContainer(file, *machinery->encoder);
    machinery->frame = makeFrame(*machinery->encoder);
    machinery->converter.reset(sws_getContext(evenWidth, evenHeight, AV_PIX_FMT_BGR0, evenWidth,
                                              evenHeight, AV_PIX_FMT_YUV420P, SWS_POINT, nullptr,
                                              nullptr, nullptr));
    if (!machinery->container || !machinery->frame || !machinery->converter) {
        return nullptr;
    }
    return std::unique_ptr<FilmEncoder>(new FilmEncoder(std::move(machinery)));
}

void FilmEncoder::add(const unsigned char* pixels, int stride, double seconds) {
    Machinery& machinery = *machinery_;
    AVFrame* frame = machinery.frame.get();
    if (av_frame_make_writable(frame) < 0) { // the encoder may still hold the former one
        machinery.hasFailed = true;
        return;
    }
    sws_scale(machinery.converter.get(), &pixels, &stride, 0, frame->height, frame->data,
              frame->linesize);
    machinery.encodeAt(seconds);
}

bool FilmEncoder::finish(double seconds) {
    Machinery& machinery = *machinery_;
    if (machinery.last >= 0) {
        machinery.encodeAt(seconds);
    }
    machinery.encode(nullptr);
    machinery.hasFailed |= av_write_trailer(machinery.container.get()) < 0;
    machinery.hasFailed |= avio_closep(&machinery.container->pb) < 0;
    return !machinery.hasFailed;
}

} // namespace desktop
