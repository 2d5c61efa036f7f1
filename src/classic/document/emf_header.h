#pragma once

#include <cstdint>
#include <vector>

#include "classic/reader/geometry_types.h"

namespace kelvane {

class Reader;

/// The record that opens every metafile ([MS-EMF] 2.3.4.2).
class EMFHeader {
 public:
  /// The fields in file order, 108 bytes when every optional one is there.
  struct EnhMetaFileHeader {
    std::uint32_t iType = 0;       // 1, EMR_HEADER
    std::uint32_t nSize = 0;       // bytes of the whole record; the first drawing record follows
    RectangleL rclBounds;          // device units; makes the page box
    RectangleL rclFrame;           // 0.01 mm
    std::uint32_t dSignature = 0;  // not checked, as the next three
    std::uint32_t nVersion = 0;
    std::uint32_t nBytes = 0;
    std::uint32_t nRecords = 0;
    std::uint16_t nHandles = 0;
    std::uint16_t sReserved = 0;
    std::uint32_t nDescription = 0;    // does not size the description
    std::uint32_t offDescription = 0;  // sizes it, and decides which optional fields are there
    std::uint32_t nPalEntries = 0;
    SIZEL szlDevice;  // pixels
    SIZEL szlMillimeters;
    std::uint32_t cbPixelFormat = 0;  // optional from here on
    std::uint32_t offPixelFormat = 0;
    std::uint32_t bOpenGL = 0;
    SIZEL szlMicrometers;
  };

  /// Decodes the header at the reader's position. Throws the `int` 1, after a message on standard
  /// output, when the record there is no header, and std::bad_alloc when its description ends
  /// before it begins.
  void fillHeader(Reader& reader);

  /// @return how far `field` lies behind `base`, in bytes.
  static std::uint32_t MemOffset(const unsigned char* base, const unsigned char* field) {
    return static_cast<std::uint32_t>(field - base);
  }

  EnhMetaFileHeader fields;
  std::vector<std::uint16_t> description;  // UTF-16 units; those the data could supply

 private:
  void readOptionalFields(Reader& reader);
  void readDescription(Reader& reader);
};

/// The fixed fields of the record that closes a metafile, EMR_EOF ([MS-EMF] 2.3.4.1). Its entries
/// are not read.
struct EMFPalette {
  /// Reads the fields; the reader stands behind the record's type.
  void fillPalette(Reader& reader);

  std::uint32_t nSize = 0;
  std::uint32_t nPalEntries = 0;
  std::uint32_t offPalEntries = 0;
  std::uint32_t nSizeLast = 0;
};

}  // namespace kelvane
