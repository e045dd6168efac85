// What a user does in a panel, read from a file with one event a line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "AE_EffectUI.h"

// The most instances of the effect that a script may speak of.
inline constexpr int32_t kMostInstances = 64;

struct ScriptEvent {
  enum class Kind {
    kClick,
    kDrag,
    kRelease,
    kMove,
    kKey,
    kDraw,
    kSnapshot,
    kCalls,
    kFrame,
    kAnswer,
    kInstance
  };

  Kind kind = Kind::kDraw;
  int line = 0;                        // in the file, from 1
  PF_Point point{};                    // of a pointer's event, in the row
  PF_Modifiers modifiers = 0;          //
  A_long clicks = 1;                   // of a click
  std::filesystem::path file;          // of a snapshot, of calls or of a frame
  std::optional<int64_t> frame;        // the number of a frame; none: the loudest one
  std::optional<PF_PixelFloat> color;  // of an answer to the colour picker; none: cancelled
  int32_t number = 1;                  // of an instance, 1 to kMostInstances; the code of a key
};

// played   the kinds of events that the script may hold
// Throws JobFailure, which names the file and the line, where a line is no such event.
//
//   click X Y [shift] [alt] [ctrl] [double]     drag, release and move X Y [shift] [alt] [ctrl]
//   draw      snapshot FILE.png      pick R G B, each 0 to 255      cancel      instance N
//   frame FILE.png [N]    calls FILE.txt    key CODE [shift] [alt] [ctrl]
//
// A # and all behind it is a comment.
std::vector<ScriptEvent> ReadEventScript(const std::filesystem::path& path,
                                         std::span<const ScriptEvent::Kind> played);
