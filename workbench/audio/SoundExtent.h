// Where the sound should end in a file, by the sizes that the file's own chunks state.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>

// Byte offsets from the file's start. `end` may lie behind the file's last byte: then it was cut.
struct SoundExtent {
  int64_t begin = 0;  // first byte of what the chunk holds
  int64_t end = 0;    // one behind its last
};

// Finds the chunk of a WAV, W64, CAF, AVI or ASF (WMA, WMV) file that holds the sound.
//
// bytes   any file; read from its start, left somewhere
// Nothing for other files, and where the size is a placeholder: programs that write into a pipe
// can't go back to fill it in.
std::optional<SoundExtent> FindSoundExtent(std::istream& bytes);
