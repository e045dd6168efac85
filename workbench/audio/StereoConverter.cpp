// Conversion through libswresample, with mixes of our own where its own would lose level or refuse.
#include "workbench/audio/StereoConverter.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "workbench/Failure.h"

namespace {

// A resampler's filter grows with the ratio of the rates; outside these bounds, which no sound
// card leaves, a forged header would cost gigabytes.
constexpr int kLowestRateHz = 1000;
constexpr int kHighestRateHz = 3'000'000;

// Long frames are converted in pieces, so that the room for the result stays small.
constexpr int kFramesPerPiece = 16384;

// Mixes one channel to both sides. libswresample's own mix would take 3 dB off.
constexpr std::array<double, kClipChannels> kMonoToBothSides = {1, 1};

// Mixes channels of unknown place: even ones to the left, odd ones to the right, at their mean.
std::vector<double> AlternatingMix(int channels) {
  const auto count = static_cast<size_t>(channels);
  std::vector<double> matrix(2 * count, 0.0);
  for (size_t i = 0; i < count; ++i) {
    const size_t side = i % 2;
    const size_t onThisSide = (count + 1 - side) / 2;
    matrix[side * count + i] = 1.0 / static_cast<double>(onThisSide);
  }
  return matrix;
}

AVChannelLayout DefaultLayout(int channels) {
  AVChannelLayout layout = {};
  av_channel_layout_default(&layout, channels);
  return layout;
}

}  // namespace

StereoConverter::StereoConverter(TakeFrames take) : takeFrames(std::move(take)) {}

void StereoConverter::Convert(const AVFrame& frame) {
  const Form frameForm = FormOf(frame);
  if (resampler == nullptr || frameForm != form) {
    Flush();
    resampler = MakeResampler(frameForm);
    form = frameForm;
  }
  const auto sampleFormat = static_cast<AVSampleFormat>(frame.format);
  const bool isPlanar = av_sample_fmt_is_planar(sampleFormat) != 0;
  const int planeCount = isPlanar ? form.channels : 1;
  const int bytesPerStep = av_get_bytes_per_sample(sampleFormat) * (isPlanar ? 1 : form.channels);
  std::vector<const uint8_t*> planes(frame.extended_data, frame.extended_data + planeCount);
  for (int first = 0; first < frame.nb_samples; first += kFramesPerPiece) {
    const int count = std::min(kFramesPerPiece, frame.nb_samples - first);
    ConvertPiece(planes.data(), count, swr_get_out_samples(resampler.get(), count));
    for (const uint8_t*& plane : planes) plane += ptrdiff_t{count} * bytesPerStep;
  }
}

void StereoConverter::Flush() {
  if (resampler == nullptr) return;
  while (ConvertPiece(nullptr, 0, kFramesPerPiece) > 0) {
  }
}

StereoConverter::Form StereoConverter::FormOf(const AVFrame& frame) {
  const bool saysPlaces = frame.ch_layout.order == AV_CHANNEL_ORDER_NATIVE;
  return {.sampleFormat = frame.format,
          .rateHz = frame.sample_rate,
          .channels = frame.ch_layout.nb_channels,
          .speakers = saysPlaces ? frame.ch_layout.u.mask : 0};
}

ResamplerOwner StereoConverter::MakeResampler(const Form& form) {
  if (form.rateHz < kLowestRateHz || form.rateHz > kHighestRateHz)
    throw JobFailure("states a rate of " + std::to_string(form.rateHz) +
                     " samples a second, which can't be converted. Export it again at 44100 Hz.");
  ResamplerOwner made;
  if (form.channels == 1) {
    made = TryResampler(form, DefaultLayout(1), kMonoToBothSides);
  } else if (form.channels == 2) {
    made = TryResampler(form, DefaultLayout(2), {});
  } else if (form.channels > 2) {
    AVChannelLayout layout = DefaultLayout(form.channels);
    if (form.speakers != 0) av_channel_layout_from_mask(&layout, form.speakers);
    made = TryResampler(form, layout, {});
    if (made == nullptr) made = TryResampler(form, layout, AlternatingMix(form.channels));
  }
  if (made == nullptr)
    throw JobFailure("has " + std::to_string(form.channels) +
                     " channels, which can't be mixed to stereo. Export it as stereo.");
  return made;
}

ResamplerOwner StereoConverter::TryResampler(const Form& form, AVChannelLayout layout,
                                             std::span<const double> matrix) {
  AVChannelLayout stereo = DefaultLayout(kClipChannels);
  SwrContext* context = nullptr;
  swr_alloc_set_opts2(&context, &stereo, AV_SAMPLE_FMT_S16, kClipSampleRateHz, &layout,
                      static_cast<AVSampleFormat>(form.sampleFormat), form.rateHz, 0, nullptr);
  ResamplerOwner made(context);
  if (made == nullptr) return nullptr;
  if (!matrix.empty() && swr_set_matrix(made.get(), matrix.data(), form.channels) < 0)
    return nullptr;
  if (swr_init(made.get()) < 0) return nullptr;
  return made;
}

int StereoConverter::ConvertPiece(const uint8_t* const* planes, int frameCount, int room) {
  converted.resize(static_cast<size_t>(std::max(room, 0)) * kClipChannels);
  auto* out = reinterpret_cast<uint8_t*>(converted.data());
  // The samples are only read; the interface predates const on both levels.
  auto* const in = const_cast<const uint8_t**>(planes);
  const int made = room < 0 ? room : swr_convert(resampler.get(), &out, room, in, frameCount);
  if (made < 0) throw JobFailure("can't be resampled to 44100 Hz. Export it again at that rate.");
  takeFrames(converted.data(), made);
  return made;
}
