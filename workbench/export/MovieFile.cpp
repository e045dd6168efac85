// Encodes and writes through FFmpeg; the bytes go through a file in the making.
#include "workbench/export/MovieFile.h"

#include <algorithm>
#include <array>
#include <new>

#include "workbench/Failure.h"

namespace {

constexpr int kBufferBytes = 65536;

template <typename Object>
Object* RequireMemory(Object* object) {
  if (object == nullptr) throw std::bad_alloc();
  return object;
}

}  // namespace

MovieFile::MovieFile(const std::filesystem::path& target, int32_t width, int32_t height,
                     uint32_t scale, int32_t step)
    : file(target),
      frame(RequireMemory(av_frame_alloc())),
      packet(RequireMemory(av_packet_alloc())),
      frameTime{step, static_cast<int>(scale)} {
  av_log_set_level(AV_LOG_QUIET);
  OpenFile();
  OpenCodec(width, height);
  AVStream* stream = RequireMemory(avformat_new_stream(format.get(), nullptr));
  stream->time_base = frameTime;
  stream->avg_frame_rate = av_inv_q(frameTime);
  Require(avcodec_parameters_from_context(stream->codecpar, codec.get()), "describe its frames");
  Require(avformat_write_header(format.get(), nullptr), "begin the movie");
}

void MovieFile::OpenFile() {
  auto* const buffer = RequireMemory(static_cast<unsigned char*>(av_malloc(kBufferBytes)));
  io.reset(avio_alloc_context(buffer, kBufferBytes, 1, this, nullptr, &WriteBytes, &SeekTo));
  if (io == nullptr) {
    av_free(buffer);
    throw std::bad_alloc();
  }
  AVFormatContext* context = nullptr;
  Require(avformat_alloc_output_context2(&context, nullptr, "mov", nullptr), "make a movie");
  format.reset(context);
  format->pb = io.get();
  // Neither the time of day nor a version goes into the file: the same frames give the same bytes.
  format->flags |= AVFMT_FLAG_BITEXACT;
}

void MovieFile::OpenCodec(int32_t width, int32_t height) {
  const AVCodec* encoder = avcodec_find_encoder(AV_CODEC_ID_QTRLE);
  if (encoder == nullptr) {
    throw JobFailure(
        "FFmpeg's libraries on this system have no encoder for movies with alpha (qtrle). Render "
        "to PNG files.");
  }
  codec.reset(RequireMemory(avcodec_alloc_context3(encoder)));
  codec->width = width;
  codec->height = height;
  codec->pix_fmt = AV_PIX_FMT_ARGB;
  codec->time_base = frameTime;
  codec->framerate = av_inv_q(frameTime);
  codec->flags |= AV_CODEC_FLAG_BITEXACT;
  Require(avcodec_open2(codec.get(), encoder, nullptr), "code frames of this size");
  frame->width = width;
  frame->height = height;
  frame->format = AV_PIX_FMT_ARGB;
  Require(av_frame_get_buffer(frame.get(), 0), "hold a frame of this size");
}

void MovieFile::Add(int64_t /*number*/, const FramePixels& pixels, const std::string& /*encoded*/) {
  // The encoder may still hold the last frame.
  Require(av_frame_make_writable(frame.get()), "hold a frame of this size");
  for (int32_t y = 0; y < pixels.height; ++y) {
    void* row = frame->data[0] + ptrdiff_t{y} * frame->linesize[0];
    std::copy_n(pixels.Row(y), pixels.width, static_cast<PF_Pixel8*>(row));
  }
  frame->pts = frameCount++;
  Send(frame.get());
}

void MovieFile::Send(const AVFrame* next) {
  Require(avcodec_send_frame(codec.get(), next), "code a frame");
  for (;;) {
    const int answer = avcodec_receive_packet(codec.get(), packet.get());
    if (answer == AVERROR(EAGAIN) || answer == AVERROR_EOF) return;
    Require(answer, "code a frame");
    packet->duration = 1;
    av_packet_rescale_ts(packet.get(), frameTime, format->streams[0]->time_base);
    Require(av_write_frame(format.get(), packet.get()), "write a frame");
    av_packet_unref(packet.get());
  }
}

void MovieFile::Publish() {
  Send(nullptr);
  Require(av_write_trailer(format.get()), "end the movie");
  avio_flush(io.get());
  Require(io->error, "end the movie");
  file.Close();
  file.Publish();
}

void MovieFile::Require(int answer, const char* what) {
  if (fileFailure != nullptr) std::rethrow_exception(fileFailure);
  if (answer >= 0) return;
  std::array<char, AV_ERROR_MAX_STRING_SIZE> reason{};
  av_strerror(answer, reason.data(), reason.size());
  throw JobFailure(std::string("FFmpeg's libraries could not ") + what + " (" + reason.data() +
                   "). Choose a smaller --size or another --fps, or render to PNG files.");
}

// FFmpeg can't be thrown through: the failure waits for the call to return.
int MovieFile::WriteBytes(void* self, uint8_t* bytes, int count) {
  auto& movie = *static_cast<MovieFile*>(self);
  try {
    movie.file.Write({reinterpret_cast<const char*>(bytes), static_cast<size_t>(count)});
    return count;
  } catch (...) {
    if (movie.fileFailure == nullptr) movie.fileFailure = std::current_exception();
    return AVERROR(EIO);
  }
}

int64_t MovieFile::SeekTo(void* self, int64_t offset, int whence) {
  auto& movie = *static_cast<MovieFile*>(self);
  try {
    if (whence != SEEK_SET && whence != SEEK_CUR) return AVERROR(ENOSYS);
    const int64_t start = whence == SEEK_CUR ? movie.file.Position() : 0;
    movie.file.Seek(start + offset);
    return start + offset;
  } catch (...) {
    if (movie.fileFailure == nullptr) movie.fileFailure = std::current_exception();
    return AVERROR(EIO);
  }
}
