// Parses event scripts.
#include "workbench/cli/EventScript.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <string_view>

#include "workbench/Failure.h"
#include "workbench/FileName.h"

namespace {

using Kind = ScriptEvent::Kind;

constexpr std::string_view kBlanks = " \t\r\v\f";

std::string_view Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Hands out the words of a line, one after the other.
class Words {
 public:
  explicit Words(std::string_view text) : rest(Trimmed(text)) {}

  bool AreLeft() const { return !rest.empty(); }
  std::string_view Rest() const { return rest; }

  // Empty at the end of the line.
  std::string_view Take() {
    const std::string_view word = rest.substr(0, rest.find_first_of(kBlanks));
    rest = Trimmed(rest.substr(word.size()));
    return word;
  }

 private:
  std::string_view rest;
};

// What is wrong with one line, without its place.
[[noreturn]] void Refuse(const std::string& why) {
  throw JobFailure(why);
}

// A word as it is shown to the user, who may have given a file of any kind.
std::string Shown(std::string_view word) {
  constexpr size_t kMostLetters = 40;
  if (word.empty()) return "nothing";
  std::string text(word.substr(0, kMostLetters));
  std::replace(text.begin(), text.end(), '\0', '?');  // a message ends at its first zero
  return "\"" + text + (word.size() > kMostLetters ? "...\"" : "\"");
}

template <typename Number>
Number NumberFrom(std::string_view word, const char* what, Number least, Number most) {
  Number number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc{} || end != word.data() + word.size() || number < least || number > most) {
    Refuse(std::string(what) + " is a whole number from " + std::to_string(least) + " to " +
           std::to_string(most) + ", not " + Shown(word));
  }
  return number;
}

int32_t TakeNumber(Words& words, const char* what, int32_t least, int32_t most) {
  return NumberFrom(words.Take(), what, least, most);
}

void TakeModifiers(Words& words, ScriptEvent& event) {
  while (words.AreLeft()) {
    const std::string_view word = words.Take();
    if (word == "shift") {
      event.modifiers |= PF_Mod_SHIFT_KEY;
    } else if (word == "alt") {
      event.modifiers |= PF_Mod_OPT_ALT_KEY;
    } else if (word == "ctrl") {
      event.modifiers |= PF_Mod_CMD_CTRL_KEY;
    } else if (word == "double" && event.kind == Kind::kClick) {
      event.clicks = 2;
    } else {
      Refuse(Shown(word) + " is none of shift, alt and ctrl, nor double behind a click");
    }
  }
}

void TakePointer(Words& words, ScriptEvent& event) {
  event.point.h = TakeNumber(words, "X", INT32_MIN, INT32_MAX);
  event.point.v = TakeNumber(words, "Y", INT32_MIN, INT32_MAX);
  TakeModifiers(words, event);
}

void TakeKey(Words& words, ScriptEvent& event) {
  event.number = TakeNumber(words, "CODE", 0, INT32_MAX);
  TakeModifiers(words, event);
}

bool IsPicture(std::string_view name) {
  return PathFromUtf8(name).extension() == ".png";
}

// The name of a picture, which may hold blanks.
void TakePicture(std::string_view name, const char* taker, ScriptEvent& event) {
  if (!IsPicture(name)) {
    Refuse(std::string(taker) + " takes the name of a file that ends in .png, not " + Shown(name));
  }
  event.file = PathFromUtf8(name);
}

void TakeSnapshot(Words& words, ScriptEvent& event) {
  TakePicture(words.Rest(), "snapshot", event);
  words = Words({});
}

void TakeCalls(Words& words, ScriptEvent& event) {
  event.file = PathFromUtf8(words.Rest());
  if (event.file.extension() != ".txt") {
    Refuse("calls takes the name of a file that ends in .txt, not " + Shown(words.Rest()));
  }
  words = Words({});
}

// The number stands behind the name.
void TakeFrame(Words& words, ScriptEvent& event) {
  constexpr int64_t kFarthest = std::numeric_limits<int32_t>::max();
  const std::string_view rest = words.Rest();
  words = Words({});
  const size_t blank = rest.find_last_of(kBlanks);
  if (IsPicture(rest) || blank == std::string_view::npos) return TakePicture(rest, "frame", event);
  TakePicture(Trimmed(rest.substr(0, blank)), "frame", event);
  event.frame = NumberFrom(rest.substr(blank + 1), "N", -kFarthest, kFarthest);
}

void TakeColor(Words& words, ScriptEvent& event) {
  const auto channel = [&words](const char* name) {
    return static_cast<float>(TakeNumber(words, name, 0, 255)) / 255.0F;
  };
  PF_PixelFloat color{};
  color.alpha = 1.0F;
  color.red = channel("R");
  color.green = channel("G");
  color.blue = channel("B");
  event.color = color;
}

void TakeInstance(Words& words, ScriptEvent& event) {
  event.number = TakeNumber(words, "N", 1, kMostInstances);
}

void TakeNothing(Words& /*words*/, ScriptEvent& /*event*/) {}

struct EventWord {
  std::string_view word;
  Kind kind;
  void (*take)(Words& words, ScriptEvent& event);
};
constexpr std::array<EventWord, 12> kEventWords = {{
    {"click", Kind::kClick, TakePointer},
    {"drag", Kind::kDrag, TakePointer},
    {"release", Kind::kRelease, TakePointer},
    {"move", Kind::kMove, TakePointer},
    {"key", Kind::kKey, TakeKey},
    {"draw", Kind::kDraw, TakeNothing},
    {"snapshot", Kind::kSnapshot, TakeSnapshot},
    {"calls", Kind::kCalls, TakeCalls},
    {"frame", Kind::kFrame, TakeFrame},
    {"pick", Kind::kAnswer, TakeColor},
    {"cancel", Kind::kAnswer, TakeNothing},
    {"instance", Kind::kInstance, TakeInstance},
}};

bool IsAmong(std::span<const Kind> kinds, Kind kind) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

// The words for events of these kinds, as a list to be read.
std::string ListOfWords(std::span<const Kind> kinds) {
  std::string list;
  std::string_view last;
  for (const EventWord& known : kEventWords) {
    if (!IsAmong(kinds, known.kind)) continue;
    if (!last.empty()) list.append(list.empty() ? "" : ", ").append(last);
    last = known.word;
  }
  return list + " and " + std::string(last);
}

// text   without comment, not empty
ScriptEvent EventFrom(std::string_view text, std::span<const Kind> played) {
  Words words(text);
  const std::string_view word = words.Take();
  for (const EventWord& known : kEventWords) {
    if (known.word != word || !IsAmong(played, known.kind)) continue;
    ScriptEvent event;
    event.kind = known.kind;
    known.take(words, event);
    if (words.AreLeft()) Refuse(Shown(words.Rest()) + " is more than " + Shown(word) + " takes");
    return event;
  }
  Refuse(Shown(word) + " is none of " + ListOfWords(played));
}

std::string ReadText(const std::filesystem::path& path) {
  std::error_code code;
  if (std::filesystem::status(path, code).type() != std::filesystem::file_type::regular) {
    throw JobFailure(path.string() + ": there is no such file of events.");
  }
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) throw JobFailure(path.string() + ": this file of events can't be read.");
  return text.str();
}

}  // namespace

std::vector<ScriptEvent> ReadEventScript(const std::filesystem::path& path,
                                         std::span<const Kind> played) {
  std::vector<ScriptEvent> events;
  std::istringstream lines(ReadText(path));
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    const std::string_view text = Trimmed(std::string_view(line).substr(0, line.find('#')));
    if (text.empty()) continue;
    try {
      events.push_back(EventFrom(text, played));
    } catch (const JobFailure& failure) {
      throw JobFailure(path.string() + ", line " + std::to_string(number) + ": " + failure.what() +
                       ".");
    }
    events.back().line = number;
  }
  return events;
}
