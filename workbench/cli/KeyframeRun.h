// What a run of Apply has written, on its way to a file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/cli/Stage.h"
#include "workbench/export/KeyframeTable.h"

using KeyframeWriter = std::string (*)(const KeyframeTable&);

// The form that the end of the file's name asks for. Throws UsageFailure, which names the option,
// where it is none of them.
KeyframeWriter WriterFor(const char* option, const std::filesystem::path& file);

// The keyframes of one run, as an instance has them. Throws JobFailure where one is on no output.
KeyframeTable TableOf(Stage& stage, std::vector<WrittenKeyframe> written);

// Throws UsageFailure where a run would go on for hours: nothing stops it once it has begun.
void RequireBoundedRun(const Comp& comp);
