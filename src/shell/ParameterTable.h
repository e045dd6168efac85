// Where each of the effect's 65 parameters stands in params[], and what its popup values mean.
#pragma once

#include <cstdint>

constexpr int32_t kParameterCount = 65;  // the host's input layer included
constexpr int32_t kRangeCount = 3;

enum ParameterIndex : int32_t {
  kInputLayer = 0,
  kAudioLayer = 2,
  kChannel = 3,
  kScale = 5,
  kQ = 6,
  kSubBase = 7,
  kBase = 8,
  kMid = 9,
  kTreble = 10,
  kColorMapPanel = 12,
  kGradient = 13,
  kQuantize = 14,
  kQuantizeValue = 15,
  kFillSegment = 16,
  kFirstRange = 19,
  kUseCompFps = 55,
  kKeyframesPerSecond = 56,
  kCommandsRow = 57,
  kLogarithmicScale = 59,
  kShowSpectrum = 60,
  kShowSelectionRanges = 61,
  kShowOutput = 62,
  kShowColormap = 63,
};

// The rows of one range group, in their order.
enum RangeRow : int32_t {
  kRangeGroup = 0,
  kRangeActive,
  kRangeType,
  kRangeCorner1,
  kRangeCorner2,
  kRangeFalloff,
  kRangeFalloffTime,
  kRangeOutputMinMax,
  kRangeMin,
  kRangeMax,
  kRangeOutput,
  kRangeGroupEnd,
  kRowsPerRange,
};

// Index in params[] of a row of range 0, 1 or 2.
constexpr int32_t RangeParameter(int32_t range, RangeRow row) {
  return kFirstRange + kRowsPerRange * range + row;
}

// Popup values are 1-based.
enum ChannelChoice : int32_t { kChannelLeft = 1, kChannelRight = 2, kChannelMix = 3 };
enum GradientChoice : int32_t { kGradientHorizontal = 1, kGradientVertical = 2 };
enum RangeTypeChoice : int32_t { kTypeAverage = 1, kTypePeak = 2, kTypeTrigger = 3 };
enum FalloffChoice : int32_t {
  kFalloffInstant = 1,
  kFalloffLinear = 2,
  kFalloffExponential = 3,
  kFalloffIntegrate = 4,
};
enum OutputMinMaxChoice : int32_t {
  kOutput0To100 = 1,
  kOutput0To1 = 2,
  kOutputMinus1To1 = 3,
  kOutput0To360 = 4,
  kOutputMinus180To180 = 5,
  kOutputCustom = 6,
};
