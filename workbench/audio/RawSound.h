// Sound without a header: frames as a clip holds them, in a file that ends in .pcm.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/audio/AudioClip.h"

inline constexpr const char* kRawSoundExtension = ".pcm";

// Hands on the frames of `path`, which are 4 bytes each: left and right, 16 bits with a sign, the
// low byte first.
//
// take   may throw
// Throws JobFailure without the file's name: no file or none that can be read, a size that is no
// multiple of 4, no frames at all.
void ReadRawSound(const std::filesystem::path& path, const TakeFrames& take);

// The bytes of frames first .. first + count - 1, as ReadRawSound takes them.
std::string RawSoundBytes(const AudioClip& clip, int64_t first, int32_t count);
