// Whole files as bytes. File names are UTF-8. Nothing here throws.
#pragma once

#include <string>
#include <string_view>

namespace quor {

// Reads the whole file; false (and bytes empty) when it cannot be opened or read.
bool LeseDateiBytes(const std::string& pfad, std::string& bytes);

// Creates or replaces the file with exactly these bytes; false on any failure.
bool SchreibeDateiBytes(const std::string& pfad, std::string_view bytes);

// True for an existing file that is not a directory.
bool DateiExistiert(const std::string& pfad);

} // namespace quor
