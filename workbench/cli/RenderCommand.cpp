// The render command.
#include "workbench/cli/RenderCommand.h"

#include <algorithm>
#include <deque>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "workbench/Failure.h"
#include "workbench/audio/AudioDecoder.h"
#include "workbench/cli/Interruption.h"
#include "workbench/cli/LoudestFrame.h"
#include "workbench/cli/OrderedWork.h"
#include "workbench/cli/Progress.h"
#include "workbench/cli/Stage.h"
#include "workbench/export/FrameNames.h"
#include "workbench/export/NewMovie.h"
#include "workbench/export/PngFiles.h"

namespace {

bool IsMovie(const RenderOptions& options) {
  return options.out.extension() == ".mov";
}

// Refuses names that don't fit the job, before any work is done.
void CheckOut(const RenderOptions& options) {
  const std::string out = options.out.string();
  if (IsMovie(options)) {
    RequireMovies(options.out);
    RequireTarget(options.out);
    return;
  }
  if (options.out.extension() != ".png") {
    throw UsageFailure("--out " + out + ": the file's name has to end in .png or .mov.");
  }
  const FrameNames names(options.out);
  const FrameSpan frames = options.frames.value_or(FrameSpan{});
  if (!names.HasNumber() && frames.first != frames.last) {
    throw UsageFailure("--out " + out +
                       ": several frames need their numbers in their names, such as %05d.png.");
  }
  RequireTarget(names.NameOf(frames.first));
}

void RequireReachable(const FrameSpan& frames, const Layer& layer) {
  for (const int64_t frame : {frames.first, frames.last}) {
    if (LayerTickOfFrame(layer, frame)) continue;
    throw UsageFailure("--frames: a comp at this frame rate can't reach so far as frame " +
                       std::to_string(frame) + ". Use a number closer to 0.");
  }
}

FrameSize RenderedSize(const Comp& comp, uint32_t downsample) {
  const auto rounded = [downsample](int32_t side) {
    return static_cast<int32_t>((static_cast<uint32_t>(side) + downsample - 1) / downsample);
  };
  return {rounded(comp.width), rounded(comp.height)};
}

std::unique_ptr<FrameOutput> OpenOutput(const RenderOptions& options, const Comp& comp,
                                        const FrameSize& size) {
  if (!IsMovie(options)) return std::make_unique<PngFiles>(FrameNames(options.out));
  return NewMovie(options.out, size.width, size.height, comp.timeScale, comp.timeStep);
}

// What one thread works with, frame after frame.
struct Bench {
  explicit Bench(const FrameSize& size) : world(size.width, size.height) {}

  OutputWorld world;
  std::vector<PF_Pixel8> room;
  FramePixels pixels;
  std::string encoded;
};

FramePixels PixelsOf(const OutputWorld& world) {
  return {world.Row(0).data(), world.RowBytes(), world.Width(), world.Height()};
}

struct RenderJob {
  Stage& stage;
  const RenderOptions& options;
  FrameSpan frames;
  FrameSize size;
};

void RenderAll(const RenderJob& job, const Interruption& interruption, ProgressLine& progress,
               FrameOutput& output) {
  const FrameSpan frames = job.frames;
  const int64_t count = frames.last - frames.first + 1;
  const auto workers = static_cast<int>(std::min<int64_t>(job.options.threads, count));
  std::deque<Bench> benches;
  for (int i = 0; i < workers; ++i) benches.emplace_back(job.size);
  const auto bench = [&benches](int worker) -> Bench& {
    return benches[static_cast<size_t>(worker)];
  };
  OrderedWork work;
  work.make = [&](int worker, int64_t frame) {
    interruption.Check();
    Bench& own = bench(worker);
    job.stage.Session().RenderFrame(job.stage.Instance(), frame, own.world, job.options.downsample);
    own.pixels = LayOver(job.options.ground, PixelsOf(own.world), own.room);
    own.encoded = output.Encode(own.pixels);
  };
  work.take = [&](int worker, int64_t frame) {
    output.Add(frame, bench(worker).pixels, bench(worker).encoded);
    progress.Show("Frame " + std::to_string(frame - frames.first + 1) + " of " +
                  std::to_string(count));
  };
  RunInOrder(frames.first, frames.last, workers, work);
}

std::string SummaryOf(const FrameSpan& frames, const FrameSize& size,
                      const RenderOptions& options) {
  const std::string first = std::to_string(frames.first);
  const bool isOne = frames.first == frames.last;
  return (isOne ? "Frame " + first : "Frames " + first + " to " + std::to_string(frames.last)) +
         ", " + std::to_string(size.width) + " x " + std::to_string(size.height) +
         " pixels\nWritten to " + options.out.string() + "\n";
}

}  // namespace

int RunRender(const StageOptions& stageOptions, const RenderOptions& options) {
  CheckOut(options);
  const auto sound = std::make_shared<const AudioClip>(DecodeAudioFile(options.audio));
  Stage stage(stageOptions, options.audio.filename().string(), sound);
  const Layer& layer = stage.Instance().EffectLayer();
  const int64_t loudest = LoudestFrame(*sound, layer);
  const FrameSpan frames = options.frames.value_or(FrameSpan{loudest, loudest});
  RequireReachable(frames, layer);
  const FrameSize size = RenderedSize(stage.ProjectComp(), options.downsample);
  const Interruption interruption;
  const std::unique_ptr<FrameOutput> output = OpenOutput(options, stage.ProjectComp(), size);
  {
    ProgressLine progress(stageOptions.quiet);
    RenderAll({stage, options, frames, size}, interruption, progress, *output);
  }
  for (const std::string& message : stage.Session().Messages()) std::cerr << message << '\n';
  stage.Finish([&output] { output->Publish(); });
  if (!stageOptions.quiet) std::cout << SummaryOf(frames, size, options);
  return 0;
}
