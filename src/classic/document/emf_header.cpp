#include "classic/document/emf_header.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include "classic/reader/reader.h"

namespace kelvane {
namespace {

constexpr std::uint32_t kHeaderType = 1;

}  // namespace

void EMFHeader::fillHeader(Reader& reader) {
  reader.read(fields.iType);
  if (fields.iType != kHeaderType) {
    std::printf("Error! Found type %lu while parsing the header but the type must be %x\n",
                static_cast<unsigned long>(fields.iType), kHeaderType);
    throw 1;  // the status every caller turns into a failed conversion
  }
  reader.readAll(fields.nSize, fields.rclBounds, fields.rclFrame, fields.dSignature,
                 fields.nVersion, fields.nBytes, fields.nRecords, fields.nHandles, fields.sReserved,
                 fields.nDescription, fields.offDescription, fields.nPalEntries, fields.szlDevice,
                 fields.szlMillimeters);
  readOptionalFields(reader);
  readDescription(reader);
}

// The first threshold is where szlMillimeters begins, not where the base header ends: a description
// that starts inside it still leaves the pixel format to be read.
void EMFHeader::readOptionalFields(Reader& reader) {
  constexpr std::uint32_t kLastOffsetWithoutMicrometers = 107;
  const std::uint32_t pixelFormatThreshold =
      MemOffset(reinterpret_cast<const unsigned char*>(&fields),
                reinterpret_cast<const unsigned char*>(&fields.szlMillimeters));
  if (pixelFormatThreshold <= fields.offDescription) {
    reader.readAll(fields.cbPixelFormat, fields.offPixelFormat, fields.bOpenGL);
  }
  if (fields.offDescription > kLastOffsetWithoutMicrometers) reader.read(fields.szlMicrometers);
}

// The description is taken from where the fields end, wherever its offset points.
void EMFHeader::readDescription(Reader& reader) {
  if (fields.offDescription > fields.nSize) throw std::bad_alloc();
  const std::uint32_t declared = (fields.nSize - fields.offDescription) >> 1;
  description.resize(std::min(declared, reader.Remaining() / 2));
  WcharString text{description.data(), static_cast<std::int32_t>(description.size())};
  reader.read(text);
}

void EMFPalette::fillPalette(Reader& reader) {
  reader.readAll(nSize, nPalEntries, offPalEntries, nSizeLast);
}

}  // namespace kelvane
