// Files that appear whole or not at all.
#pragma once

#include <filesystem>
#include <string_view>

// Makes `path` a file that holds `bytes`, in place of the file that may be there.
//
// The bytes go to a file of another name in the same folder, which then takes the name: a reader
// sees the old file or the new one, and a failure leaves the old one as it was and nothing beside
// it. Throws JobFailure: the folder is missing or may not be written to, path is a folder or a
// device, the disk is full.
void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);
