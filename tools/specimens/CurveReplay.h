// Replays a script of events in the curve editor.
#pragma once

#include <filesystem>

// Begins with a curve that is 0.0 all along, drawn freehand. The language is the workbench's
// without what only its rows have: frames, answers and instances.
//
// folder   where the pictures go, at scale 2; is made
// Prints the cursor of each move and the path of each picture. Throws JobFailure and
// std::filesystem::filesystem_error; a script with a line that is no event plays no part of itself.
void ReplayInCurveEditor(const std::filesystem::path& script, const std::filesystem::path& folder);
