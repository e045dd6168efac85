// The host's keyframe clipboard text: a head, a block for each range, an end line.
#include "workbench/export/KeyframeClipboardText.h"

#include <algorithm>
#include <cstdint>

#include "workbench/Failure.h"
#include "workbench/export/NumberText.h"

namespace {

// A frame number that is floored, so that it steps evenly through 0, and what is left of the tick.
struct FramePosition {
  int64_t frame = 0;
  int64_t ticksPastFrame = 0;
};

FramePosition PositionOf(const KeyframeRow& row, uint32_t step) {
  const int64_t tick = row.tick;
  const int64_t past = (tick % step + step) % step;
  return {(tick - past) / step, past};
}

// All keyframes of a run are whole steps apart, so all must stand equally far past their frames.
int64_t FrameOf(const KeyframeRow& row, const KeyframeTable& table) {
  if (table.step != 0 && row.scale == table.scale) {
    const FramePosition position = PositionOf(row, table.step);
    const FramePosition first = PositionOf(table.rows.front(), table.step);
    if (position.ticksPastFrame == first.ticksPastFrame) return position.frame;
  }
  throw JobFailure("cannot write the clipboard text: the keyframe of Output " +
                   std::to_string(row.range) + " at " + std::to_string(row.tick) + "/" +
                   std::to_string(row.scale) +
                   " s stands between two frames; write a .csv or .json file instead");
}

std::string Head(const KeyframeTable& table) {
  const double unitsPerSecond = static_cast<double>(table.scale) / static_cast<double>(table.step);
  return "Adobe After Effects 8.0 Keyframe Data\n\n\tUnits Per Second\t" +
         ShortestText(unitsPerSecond) + "\n\tSource Width\t" + std::to_string(table.width) +
         "\n\tSource Height\t" + std::to_string(table.height) + "\n\tSource Pixel Aspect Ratio\t" +
         ShortestText(table.sourcePixelAspect) + "\n\tComp Pixel Aspect Ratio\t" +
         ShortestText(table.compPixelAspect) + "\n\n";
}

// Nothing for a range without keyframes.
std::string Block(int range, const KeyframeTable& table) {
  std::vector<KeyframeRow> rows = RowsOfRange(table, range);
  if (rows.empty()) return {};
  // Of two keys at one time the one written later wins when they are pasted: keep their order.
  std::stable_sort(rows.begin(), rows.end(),
                   [](const KeyframeRow& a, const KeyframeRow& b) { return a.tick < b.tick; });
  std::string text =
      "Effects\tSlider Control #" + std::to_string(range) + "\tSlider #2\n\tFrame\t\n";
  for (const KeyframeRow& row : rows) {
    text += '\t' + std::to_string(FrameOf(row, table)) + '\t' + ShortestText(row.value) + "\t\n";
  }
  return text + '\n';
}

}  // namespace

std::string KeyframesAsClipboardText(const KeyframeTable& table) {
  std::string text = Head(table);
  for (int range = 1; range <= kLastRange; ++range) text += Block(range, table);
  return text + "End of Keyframe Data\n";
}
