// Where a thumb stands on its track, and which value a place on the track means: along one axis.
#pragma once

#include <cstdint>

// Logical pixels from the control's near end; `first` and `last` are near edges of the thumb.
//
//     |   first                last          |
//     |   [thumb]--------------[thumb]       |
//     0                                   length
//
// A track without room has last equal to first.
struct ThumbTrack {
  int32_t first = 0;
  int32_t last = 0;
  int32_t thumb = 0;

  // The thumb's near edge; a fraction outside 0 to 1 counts as the nearer end, NaN as 0.
  int32_t ThumbStart(double fraction) const;
  // 0 to 1 for a near edge anywhere; 0 on a track without room.
  double FractionAt(int64_t thumbStart) const;
  bool IsOnThumb(double fraction, int32_t place) const;
};

// length, cross   of the slider, along its track and across it
ThumbTrack MakeSliderTrack(int32_t length, int32_t cross);

// The thumb is to the track as the view is to the content, but not too short to be taken hold of.
// A content that fits gives a thumb as long as the track.
ThumbTrack MakeScrollTrack(int32_t length, int32_t content, int32_t view);
