// Opens a media file through FFmpeg, shut off from everything but the file's own bytes.
#include "workbench/audio/MediaReader.h"

#include <algorithm>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/Failure.h"

extern "C" {
#include <libavutil/opt.h>
}

namespace {

// Some demuxers recover when they are asked again; one that never does must not keep us.
constexpr int kMostRefusalsInARow = 1000;

double Seconds(int64_t time, AVRational timeBase) {
  return time == AV_NOPTS_VALUE ? 0 : static_cast<double>(time) * av_q2d(timeBase);
}

std::vector<double> StreamSeconds(const AVFormatContext& format) {
  std::vector<double> seconds;
  for (unsigned i = 0; i < format.nb_streams; ++i)
    seconds.push_back(Seconds(format.streams[i]->duration, format.streams[i]->time_base));
  return seconds;
}

// The whole file's length, if it doesn't stem from the bit rate or from time stamps found so far.
double StatedFileSeconds(const AVFormatContext& format) {
  if (format.duration_estimation_method != AVFMT_DURATION_FROM_STREAM) return 0;
  return std::max(0.0, Seconds(format.duration, {1, AV_TIME_BASE}));
}

}  // namespace

MediaReader::MediaReader(const std::filesystem::path& path) : file(path) {
  av_log_set_level(AV_LOG_QUIET);
  Open(path);
  // Taken before ChooseSound, which lets FFmpeg fill in guesses for what the header leaves out.
  const std::vector<double> stated = StreamSeconds(*format);
  ChooseSound();
  statedSeconds = soundIndex < stated.size() ? std::max(0.0, stated[soundIndex]) : 0;
  // ASF states one length for the whole file, and FFmpeg passes it on as that of each stream.
  isLengthOfSound = statedSeconds > 0 && std::string_view(format->iformat->name) != "asf";
  if (statedSeconds == 0) statedSeconds = StatedFileSeconds(*format);
  if (isLengthOfSound) SkipOtherStreams();
}

void MediaReader::Open(const std::filesystem::path& path) {
  AVFormatContext* context = avformat_alloc_context();
  if (context == nullptr) throw std::bad_alloc();
  context->pb = file.Io();
  // With no protocol allowed, nothing that the file refers to can be opened.
  av_opt_set(context, "protocol_whitelist", "none", 0);
  // The name only helps to tell apart formats that have no mark of their own. On failure FFmpeg
  // frees the context and clears the pointer.
  const int result = avformat_open_input(&context, path.string().c_str(), nullptr, nullptr);
  format.reset(context);
  file.RequireReadable();
  if (result < 0)
    throw JobFailure(
        "can't be read as sound or video; it is of another kind, damaged, or cut off. Try another "
        "copy, or convert it to WAV or FLAC.");
}

void MediaReader::ChooseSound() {
  avformat_find_stream_info(format.get(), nullptr);
  file.RequireReadable();
  const int index = av_find_best_stream(format.get(), AVMEDIA_TYPE_AUDIO, -1, -1, &decoder, 0);
  if (index == AVERROR_DECODER_NOT_FOUND)
    throw JobFailure(
        "its sound is coded in a way that can't be decoded. Convert it to WAV or FLAC.");
  if (index < 0) throw JobFailure("holds no sound. Give a file that has an audio track.");
  soundIndex = static_cast<unsigned>(index);
}

void MediaReader::SkipOtherStreams() {
  for (unsigned i = 0; i < format->nb_streams; ++i)
    if (i != soundIndex) format->streams[i]->discard = AVDISCARD_ALL;
}

bool MediaReader::ReadPacket(AVPacket& packet) {
  int refusals = 0;
  for (;;) {
    av_packet_unref(&packet);
    const int result = av_read_frame(format.get(), &packet);
    file.RequireReadable();
    if (result == AVERROR_EOF) return false;
    if (result >= 0) {
      NoteReach(packet);
      if (packet.stream_index == static_cast<int>(soundIndex)) return true;
      refusals = 0;
    } else if (avio_feof(file.Io()) != 0) {
      return false;
    } else if (++refusals > kMostRefusalsInARow) {
      throw JobFailure("is damaged behind byte " + std::to_string(avio_tell(file.Io())) +
                       ". Try another copy.");
    }
  }
}

void MediaReader::NoteReach(const AVPacket& packet) {
  if (packet.pts == AV_NOPTS_VALUE) return;
  const AVRational timeBase = format->streams[packet.stream_index]->time_base;
  const double end = Seconds(packet.pts, timeBase) + Seconds(packet.duration, timeBase);
  reachSeconds = std::max(reachSeconds, end);
}

double MediaReader::HeldSeconds(double decodedSeconds) const {
  // The picture of a film may go on behind its sound, so a length of the whole file is measured
  // against all streams.
  return isLengthOfSound ? decodedSeconds : std::max(decodedSeconds, reachSeconds);
}
