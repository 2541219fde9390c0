// Database files put together byte by byte from the record layout, independent of the program's
// own record class.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace quor::test {

// Offsets of one record kind: formula, structure (width 0 in .Q06), English and German name, CAS
// number, the i16 and the first cell.
struct RohLayout {
  int laenge, formel, struktur, strukturBreite, englisch, englischBreite, deutsch, deutschBreite, cas, nummer,
      zellen;
};

constexpr RohLayout RohQ07{950, 0, 16, 107, 123, 60, 183, 107, 290, 384, 386};
constexpr RohLayout RohQ06{776, 0, 0, 0, 16, 50, 66, 50, 116, 210, 212};

class RohSatz {
public:
  explicit RohSatz(int typ = 7, char fuellung = ' ')
      : l_(typ == 6 ? RohQ06 : RohQ07), bytes_(l_.laenge, fuellung) {
    for (int i = l_.nummer; i < l_.laenge; ++i)
      bytes_[i] = 0;
  }
  // Raw bytes (Windows-1252) at a position, nothing padded.
  RohSatz& Bytes(int offset, const std::string& b) {
    bytes_.replace(offset, b.size(), b);
    return *this;
  }
  RohSatz& Formel(const std::string& b) { return Bytes(l_.formel, b); }
  RohSatz& Struktur(const std::string& b) { return Bytes(l_.struktur, b); }
  RohSatz& Englisch(const std::string& b) { return Bytes(l_.englisch, b); }
  RohSatz& Deutsch(const std::string& b) { return Bytes(l_.deutsch, b); }
  RohSatz& CAS(const std::string& b) { return Bytes(l_.cas, b); }
  RohSatz& Nummer(int16_t n) {
    bytes_[l_.nummer] = static_cast<char>(n & 0xFF);
    bytes_[l_.nummer + 1] = static_cast<char>((static_cast<uint16_t>(n) >> 8) & 0xFF);
    return *this;
  }
  RohSatz& Zelle(int i, float x) {
    uint32_t u;
    std::memcpy(&u, &x, 4);
    for (int k = 0; k < 4; ++k)
      bytes_[l_.zellen + 4 * i + k] = static_cast<char>((u >> (8 * k)) & 0xFF);
    return *this;
  }
  float ZelleLesen(int i) const {
    uint32_t u = 0;
    for (int k = 3; k >= 0; --k)
      u = (u << 8) | static_cast<uint8_t>(bytes_[l_.zellen + 4 * i + k]);
    float x;
    std::memcpy(&x, &u, 4);
    return x;
  }
  const std::string& Roh() const { return bytes_; }
  const RohLayout& Layout() const { return l_; }

private:
  RohLayout l_;
  std::string bytes_;
};

// Header with a date and a count, then the records.
inline std::string RohDatei(int typ, int16_t anzahl, const std::vector<RohSatz>& saetze) {
  RohSatz kopf(typ);
  kopf.Formel("01.02.2003").Nummer(anzahl);
  std::string d = kopf.Roh();
  for (const RohSatz& s : saetze)
    d += s.Roh();
  return d;
}

} // namespace quor::test
