#include "support/png.h"

#include <string_view>

#include "base/deflater.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

void AddNumber(File& file, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8)
    file.push_back(static_cast<unsigned char>(value >> shift));
}

std::uint32_t Checksum(const File& data) {
  std::uint32_t sum = 0xFFFFFFFF;
  for (const unsigned char byte : data) {
    sum ^= byte;
    for (int bit = 0; bit < 8; ++bit)
      sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
  }
  return ~sum;
}

void AddChunk(File& file, std::string_view type, const File& content) {
  File checked(type.begin(), type.end());
  checked.insert(checked.end(), content.begin(), content.end());
  AddNumber(file, static_cast<std::uint32_t>(content.size()));
  file.insert(file.end(), checked.begin(), checked.end());
  AddNumber(file, Checksum(checked));
}

}  // namespace

std::vector<unsigned char> PngFile(const PngFields& fields,
                                   const std::vector<unsigned char>& rows) {
  File header;
  AddNumber(header, fields.width);
  AddNumber(header, fields.height);
  for (const std::uint32_t byte : {fields.bitDepth, fields.colorType, 0U, 0U, 0U})
    header.push_back(static_cast<unsigned char>(byte));
  const DeflatedBytes pixels = Deflater().Deflate(rows);
  File file = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  AddChunk(file, "IHDR", header);
  AddChunk(file, "IDAT", {pixels.View().begin(), pixels.View().end()});
  AddChunk(file, "IEND", {});
  return file;
}

}  // namespace kelvane::test
