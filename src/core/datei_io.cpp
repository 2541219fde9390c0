#include "core/datei_io.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace quor {
namespace {

bool IstVerzeichnis(const std::string& pfad) {
  std::error_code ec;
  return std::filesystem::is_directory(std::filesystem::u8path(pfad), ec);
}

// Appends the rest of the stream; false on a read error.
bool LeseAlles(std::FILE* f, std::string& bytes) {
  char puffer[65536];
  std::size_t n = 0;
  while ((n = std::fread(puffer, 1, sizeof puffer, f)) > 0)
    bytes.append(puffer, n);
  return std::ferror(f) == 0;
}

} // namespace

bool LeseDateiBytes(const std::string& pfad, std::string& bytes) {
  bytes.clear();
  std::FILE* f = nullptr;
  bool ok = false;
  try {
    if (pfad.empty() || IstVerzeichnis(pfad)) return false;
    f = std::fopen(pfad.c_str(), "rb");
    ok = f != nullptr && LeseAlles(f, bytes);
  } catch (...) {
    ok = false; // a file too large for memory ends as a failed read
  }
  if (f != nullptr) std::fclose(f);
  if (!ok) bytes.clear();
  return ok;
}

bool SchreibeDateiBytes(const std::string& pfad, std::string_view bytes) {
  try {
    if (pfad.empty() || IstVerzeichnis(pfad)) return false;
  } catch (...) {
    return false;
  }
  std::FILE* f = std::fopen(pfad.c_str(), "wb");
  if (f == nullptr) return false;
  bool ok = bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  ok = std::fclose(f) == 0 && ok;
  return ok;
}

bool DateiExistiert(const std::string& pfad) {
  try {
    std::error_code ec;
    std::filesystem::path p = std::filesystem::u8path(pfad);
    return !pfad.empty() && std::filesystem::exists(p, ec) && !std::filesystem::is_directory(p, ec);
  } catch (...) {
    return false;
  }
}

} // namespace quor
