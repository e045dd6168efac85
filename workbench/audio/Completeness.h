// Refuses files that were cut: half a download would otherwise pass as a short song.
#pragma once

class MediaReader;

// Compares what was decoded with every length that the file itself states.
//
// reader           read to its end
// decodedSeconds   above 0
// Throws JobFailure if clearly less was there than is stated, or if the file stops in the midst of
// an Ogg page. A file that states no length passes.
void RequireWhole(MediaReader& reader, double decodedSeconds);
