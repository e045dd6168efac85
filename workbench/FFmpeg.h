// FFmpeg's declarations, and an owner for each of its objects that the workbench holds.
#pragma once

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/log.h>
#include <libswresample/swresample.h>
}

// FFmpeg frees through the address of a pointer, which it then clears.
template <auto Free>
struct FFmpegDeleter {
  template <typename Object>
  void operator()(Object* object) const {
    Free(&object);
  }
};

// An I/O context's buffer may have been replaced since it was handed over, and isn't freed with it.
struct IoContextDeleter {
  void operator()(AVIOContext* io) const {
    av_freep(static_cast<void*>(&io->buffer));
    avio_context_free(&io);
  }
};

// A context that files are written through is freed otherwise than one that was opened for reading.
struct OutputFormatDeleter {
  void operator()(AVFormatContext* format) const { avformat_free_context(format); }
};

using FormatOwner = std::unique_ptr<AVFormatContext, FFmpegDeleter<avformat_close_input>>;
using OutputFormatOwner = std::unique_ptr<AVFormatContext, OutputFormatDeleter>;
using CodecOwner = std::unique_ptr<AVCodecContext, FFmpegDeleter<avcodec_free_context>>;
using PacketOwner = std::unique_ptr<AVPacket, FFmpegDeleter<av_packet_free>>;
using FrameOwner = std::unique_ptr<AVFrame, FFmpegDeleter<av_frame_free>>;
using ResamplerOwner = std::unique_ptr<SwrContext, FFmpegDeleter<swr_free>>;
using IoOwner = std::unique_ptr<AVIOContext, IoContextDeleter>;
