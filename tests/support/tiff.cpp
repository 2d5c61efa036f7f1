#include "support/tiff.h"

#include "support/bytes.h"

namespace kelvane::test {
namespace {

enum class FieldType : std::uint32_t { kShort = 3, kLong = 4 };

/// The fields of a picture, then what is too long for them, then its pixels.
class TiffDirectory {
 public:
  void Add(std::uint32_t tag, std::uint32_t value) {
    entries_.U16(tag).U16(static_cast<std::uint32_t>(FieldType::kLong)).U32(1).U32(value);
    ++count_;
  }

  /// @param offset  of the values in the file.
  void AddShorts(std::uint32_t tag, std::uint32_t count, std::uint32_t offset) {
    entries_.U16(tag).U16(static_cast<std::uint32_t>(FieldType::kShort)).U32(count).U32(offset);
    ++count_;
  }

  [[nodiscard]] Bytes File() const {
    Bytes file;
    file.Each({'I', 'I', 42, 0}).U32(8);
    return file.U16(count_).Append(entries_.Data()).U32(0);
  }

 private:
  Bytes entries_;
  std::uint32_t count_ = 0;
};

constexpr std::uint32_t kSizeOfDirectory =
    8 + 2 + 11 * 12 + 4;                                     // of as many fields as there can be
constexpr std::uint32_t kPixels = kSizeOfDirectory + 4 * 2;  // behind the depth of each sample

}  // namespace

std::vector<unsigned char> TiffFile(const TiffFields& fields,
                                    const std::vector<unsigned char>& pixels) {
  constexpr std::uint32_t kUnassociatedAlpha = 2;
  constexpr std::uint32_t kRgb = 2;
  const auto size = static_cast<std::uint32_t>(pixels.size());
  TiffDirectory directory;
  directory.Add(256, fields.width);
  directory.Add(257, fields.height);
  directory.AddShorts(258, fields.samples, kSizeOfDirectory);
  directory.Add(259, fields.compression);
  directory.Add(262, kRgb);
  if (fields.tileSide == 0) directory.Add(273, kPixels);
  directory.Add(274, fields.orientation);
  directory.Add(277, fields.samples);
  if (fields.tileSide == 0) {
    directory.Add(278, fields.height);
    directory.Add(279, size);
  } else {
    directory.Add(322, fields.tileSide);
    directory.Add(323, fields.tileSide);
    directory.Add(324, kPixels);
    directory.Add(325, size);
  }
  if (fields.samples == 4) directory.Add(338, kUnassociatedAlpha);
  Bytes file = directory.File();
  file.Zeros(kSizeOfDirectory - file.Size());
  for (int i = 0; i < 4; ++i)
    file.U16(8);
  return file.Append(pixels).Data();
}

}  // namespace kelvane::test
