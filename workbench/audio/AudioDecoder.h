// From a sound or video file to a clip.
#pragma once

#include <filesystem>

#include "workbench/audio/AudioClip.h"

// A file of a few kilobytes can unpack to any length; longer sounds than this are refused.
constexpr double kLongestSoundSeconds = 6 * 3600;

// Decodes the best audio stream of `path` whole, resampled to 44100 Hz stereo of 16 bits; a file
// whose name ends in .pcm is taken as that already, without a header.
//
// A file of that form comes through bit for bit; one channel goes to both sides at full level; more
// than two are mixed down. Packets that can't be decoded are left out, as a player does.
// Throws JobFailure, one line that names the file: no file or none that can be read, no sound in
// it, reading that stops early, a file that was cut, no samples at all, more than `longestSeconds`,
// coded sound where this program was built without codecs.
AudioClip DecodeAudioFile(const std::filesystem::path& path,
                          double longestSeconds = kLongestSoundSeconds);
