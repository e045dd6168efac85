// How a row of the panel looks, as a file: painted, or as the calls that drew it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/drawbot/DrawCall.h"
#include "workbench/drawbot/PictureCanvas.h"

// Whether the name ends in .png, for a picture, or in .txt, for the calls of the last draw.
bool IsRowFile(const std::filesystem::path& path);

// Throws JobFailure for a .png where this program has no painter.
void RequirePaintable(const std::filesystem::path& path);

// The bytes of such a file. A .txt holds a line for each call and each row of an image's pixels.
//
// canvas   where the calls landed; not null for a .png
std::string RowFileBytes(const std::filesystem::path& path, const PictureCanvas* canvas,
                         const std::vector<DrawCall>& calls);
