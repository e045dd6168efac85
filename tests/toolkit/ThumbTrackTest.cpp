// Catches thumbs that leave their track, and places that don't mean the value that stands there.
#include "toolkit/ThumbTrack.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();

struct TrackCase {
  ThumbTrack track;
  int32_t first, last, thumb;
};

TEST(ThumbTrack, TracksHaveTheirEnds) {
  const TrackCase kCases[] = {
      {MakeSliderTrack(100, 18), 3, 80, 16},         // the knob's middle goes from 11 to 88
      {MakeSliderTrack(100, 5), 3, 86, 10},          // the smallest knob
      {MakeSliderTrack(100, 19), 3, 80, 17},         // half of an odd knob is cut
      {MakeSliderTrack(12, 18), 3, 3, 16},           // no room
      {MakeSliderTrack(kLeast, kLeast), 3, 3, 10},   //
      {MakeScrollTrack(100, 200, 100), 0, 50, 50},   //
      {MakeScrollTrack(100, 1000, 100), 0, 70, 30},  // the shortest thumb
      {MakeScrollTrack(20, 1000, 100), 0, 0, 20},    // not longer than the track
      {MakeScrollTrack(100, 100, 100), 0, 0, 100},   // all fits
      {MakeScrollTrack(kMost, kMost, kMost - 1), 0, 1, kMost - 1},
      {MakeScrollTrack(kLeast, kMost, kLeast), 0, 0, 0},
  };
  for (const TrackCase& c : kCases) {
    EXPECT_EQ(c.track.first, c.first) << c.first << ' ' << c.last;
    EXPECT_EQ(c.track.last, c.last) << c.first << ' ' << c.last;
    EXPECT_EQ(c.track.thumb, c.thumb) << c.first << ' ' << c.last;
  }
}

TEST(ThumbTrack, EachPlaceOfTheThumbMeansTheFractionThatPutsItThere) {
  for (int32_t length = 0; length < 130; ++length) {
    const ThumbTrack track = MakeSliderTrack(length, 16);
    for (int32_t start = track.first; start <= track.last; ++start) {
      const double fraction = track.FractionAt(start);
      EXPECT_EQ(track.ThumbStart(fraction), start) << length;
      EXPECT_TRUE(track.IsOnThumb(fraction, start) && !track.IsOnThumb(fraction, start - 1) &&
                  track.IsOnThumb(fraction, start + 13) && !track.IsOnThumb(fraction, start + 14));
    }
  }
}

TEST(ThumbTrack, WhatLiesBeyondTheTrackCountsAsItsEnd) {
  const ThumbTrack track = MakeScrollTrack(100, 200, 100);
  EXPECT_EQ(track.FractionAt(std::numeric_limits<int64_t>::min()), 0.0);
  EXPECT_EQ(track.FractionAt(std::numeric_limits<int64_t>::max()), 1.0);
  for (const double low : {-1.0, std::nan(""), -HUGE_VAL}) EXPECT_EQ(track.ThumbStart(low), 0);
  for (const double high : {1.5, HUGE_VAL}) EXPECT_EQ(track.ThumbStart(high), 50);
}

}  // namespace
