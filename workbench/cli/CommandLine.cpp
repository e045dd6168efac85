// Options and commands.
#include "workbench/cli/CommandLine.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <iostream>

#include "workbench/Failure.h"
#include "workbench/FileName.h"
#include "workbench/cli/ApplyCommand.h"
#include "workbench/cli/DecodeCommand.h"
#include "workbench/cli/Options.h"
#include "workbench/cli/PanelCommand.h"
#include "workbench/cli/PanelOptions.h"
#include "workbench/cli/ParamsCommand.h"
#include "workbench/cli/RenderCommand.h"
#include "workbench/cli/RenderOptions.h"
#include "workbench/cli/Stage.h"

namespace {

constexpr int32_t kLargestSide = 30000;

// Two whole numbers of at least 1 with `separator` between them.
bool ParsePair(std::string_view text, char separator, int32_t& first, int32_t& second) {
  const size_t middle = text.find(separator);
  if (middle == std::string_view::npos) return false;
  const auto parse = [](std::string_view part, int32_t& number) {
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
    return error == std::errc{} && end == part.data() + part.size() && number >= 1;
  };
  return parse(text.substr(0, middle), first) && parse(text.substr(middle + 1), second);
}

FrameSize ParseSize(const std::string& text) {
  FrameSize size;
  if (!ParsePair(text, 'x', size.width, size.height) || size.width > kLargestSide ||
      size.height > kLargestSide) {
    throw UsageFailure("--size takes WxH in pixels, each 1 to 30000, such as 1920x1080, not \"" +
                       text + "\".");
  }
  return size;
}

FrameRate ParseRate(const std::string& text) {
  int32_t scale = 0;
  FrameRate rate;
  const std::string pair = text.find('/') == std::string::npos ? text + "/1" : text;
  if (!ParsePair(pair, '/', scale, rate.step)) {
    throw UsageFailure(
        "--fps takes N or N/D, whole numbers above 0, such as 25 or 30000/1001, not \"" + text +
        "\".");
  }
  rate.scale = static_cast<uint32_t>(scale);
  return rate;
}

CLI::Option* AddFile(CLI::App& command, const char* name, std::filesystem::path& target,
                     const char* help) {
  return command.add_option_function<std::string>(
      name, [&target](const std::string& text) { target = PathFromUtf8(text); }, help);
}

void AddStageOptions(CLI::App& command, StageOptions& options) {
  AddFile(command, "--plugin", options.plugin,
          "The plug-in's library; default: the one beside the workbench");
  command.add_option_function<std::string>(
      "--size", [&options](const std::string& text) { options.size = ParseSize(text); },
      "Comp and layer size, WxH; default 1920x1080");
  command.add_option_function<std::string>(
      "--fps", [&options](const std::string& text) { options.rate = ParseRate(text); },
      "Frame rate, N or N/D; default 30");
  command.add_option_function<std::string>(
      "--work-area",
      [&options](const std::string& text) { options.workArea = ParseTimeSpan(text); },
      "START:END in seconds of comp time; default: the whole sound");
  command.add_option("--layer-start", options.layerStart,
                     "Where the layer's own time 0 stands in the comp, seconds; default 0");
  command.add_option("--set", options.settings, "NAME=VALUE, sets a parameter; repeatable")
      ->take_all()
      ->allow_extra_args(false);
  AddFile(command, "--project", options.project,
          "Reads parameters and record from this file if it exists, writes them back");
  AddFile(command, "--record", options.record, "Writes the 3112 bytes of the record to this file");
  command.add_flag("--quiet", options.quiet, "No progress and no table");
}

void AddRenderOptions(CLI::App& command, RenderOptions& options) {
  const auto add = [&](const char* name, auto parse, auto& target, const char* help) {
    return command.add_option_function<std::string>(
        name, [parse, &target](const std::string& text) { target = parse(text); }, help);
  };
  AddFile(command, "AUDIO", options.audio, "Any audio or video file")->required();
  add("--frames", ParseFrames, options.frames,
      "A..B or N, numbers of the comp's frames; or loudest, the frame at the loudest moment")
      ->required();
  AddFile(command, "--out", options.out,
          "PNG files, such as frames/%05d.png with the frame's number, or a .mov")
      ->required();
  add("--downsample", ParseDownsample, options.downsample, "Renders at 1/N of the size; default 1");
  add("--over", ParseGround, options.ground,
      "checker or black: puts a ground behind the frames; default none");
  add("--threads", ParseThreads, options.threads,
      "How many frames the plug-in is sent at once; default 1");
}

void AddPanelOptions(CLI::App& command, PanelOptions& options) {
  const auto add = [&](const char* name, auto parse, auto& target, const char* help) {
    command.add_option_function<std::string>(
        name, [parse, &target](const std::string& text) { target = parse(text); }, help);
  };
  AddFile(command, "AUDIO", options.audio, "Any audio or video file; default: silence");
  AddFile(command, "--events", options.events, "What the user does, one event a line");
  AddFile(command, "--out", options.out,
          "The row, a .png or .txt file: its picture, or its drawing calls")
      ->required();
  add("--row", ParseRow, options.row, "color-map or commands; default color-map");
  add("--zoom", ParseZoom, options.zoom, "Pixels for each of the row, 1 to 8; default 1");
  add("--panel-color", ParsePanelColor, options.color,
      "R,G,B of the host's panel, each 0 to 255; default 45,45,45");
  add("--over", ParseGround, options.ground,
      "checker or black: puts a ground behind the frames of a script; default none");
  AddFile(command, "--keyframes", options.keyframes,
          "What the last run wrote: a .csv, .json or .txt file");
  AddFile(command, "--record-calls", options.recordCalls,
          "The drawing calls of the last draw, one a line");
}

void AddDecodeOptions(CLI::App& command, DecodeOptions& options) {
  AddFile(command, "AUDIO", options.audio, "Any audio or video file")->required();
  AddFile(command, "--out", options.out, "The raw sound, a .pcm file")->required();
  command.add_flag("--quiet", options.quiet, "Prints nothing");
}

int RunParams(const StageOptions& options, bool asJson) {
  Stage stage(options, "Solid", nullptr);
  const std::string text = asJson ? ParameterJson(stage) : ParameterLines(stage);
  stage.Finish();
  std::cout << text;
  return 0;
}

int RunAbout(const StageOptions& options) {
  Stage stage(options, "Solid", nullptr);
  const std::string text = stage.Session().AboutText();
  stage.Finish();
  std::cout << text << '\n';
  return 0;
}

}  // namespace

int RunCommandLine(const std::vector<std::string>& arguments) {
  CLI::App app("Runs the Delvior plug-in without its host application.", "workbench");
  app.require_subcommand(1);
  StageOptions stageOptions;
  ApplyOptions applyOptions;
  bool asJson = false;

  CLI::App* apply = app.add_subcommand("apply", "Turns a sound into keyframes");
  AddFile(*apply, "AUDIO", applyOptions.audio, "Any audio or video file")->required();
  AddFile(*apply, "--out", applyOptions.out, "The keyframes: a .csv, .json or .txt file")
      ->required();
  RenderOptions renderOptions;
  CLI::App* render = app.add_subcommand("render", "Renders the graph to pictures or a movie");
  AddRenderOptions(*render, renderOptions);
  PanelOptions panelOptions;
  CLI::App* panel = app.add_subcommand("panel", "Shows a row that the plug-in draws itself");
  AddPanelOptions(*panel, panelOptions);
  CLI::App* params = app.add_subcommand("params", "Lists the parameters");
  params->add_flag("--json", asJson, "As JSON");
  DecodeOptions decodeOptions;
  CLI::App* decode = app.add_subcommand("decode", "Turns any sound into raw sound");
  AddDecodeOptions(*decode, decodeOptions);
  CLI::App* about = app.add_subcommand("about", "Shows the About text");
  for (CLI::App* command : {apply, render, panel, params, about})
    AddStageOptions(*command, stageOptions);

  try {
    // The parser takes them from the last to the first.
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& failure) {
    if (failure.get_exit_code() == 0) return app.exit(failure);
    throw UsageFailure(std::string(failure.what()) + ". Run with --help for what there is.");
  }
  if (apply->parsed()) return RunApply(stageOptions, applyOptions);
  if (render->parsed()) return RunRender(stageOptions, renderOptions);
  if (panel->parsed()) return RunPanel(stageOptions, panelOptions);
  if (params->parsed()) return RunParams(stageOptions, asJson);
  if (decode->parsed()) return RunDecode(decodeOptions);
  return RunAbout(stageOptions);
}
