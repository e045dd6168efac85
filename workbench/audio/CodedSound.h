// The seam to the codecs: sound and video files as frames of a clip.
#pragma once

#include <filesystem>

#include "workbench/audio/AudioClip.h"

// Hands on the best audio stream of `path` piece by piece, as DecodeAudioFile describes it.
//
// take   may throw
// Throws JobFailure without the file's name; for every file where there are no codecs.
void DecodeCodedSound(const std::filesystem::path& path, const TakeFrames& take);
