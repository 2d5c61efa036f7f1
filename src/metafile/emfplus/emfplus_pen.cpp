#include "metafile/emfplus/emfplus_pen.h"

namespace kelvane {
inline namespace metafile {
namespace {

// PenData flags ([MS-EMFPLUS] 2.1.2.7): what is stored, in this order.
constexpr std::uint32_t kPenTransform = 0x1;
constexpr std::uint32_t kPenStartCap = 0x2;
constexpr std::uint32_t kPenEndCap = 0x4;
constexpr std::uint32_t kPenJoin = 0x8;
constexpr std::uint32_t kPenMiterLimit = 0x10;
constexpr std::uint32_t kPenStyle = 0x20;
constexpr std::uint32_t kPenDashCap = 0x40;
constexpr std::uint32_t kPenDashOffset = 0x80;
constexpr std::uint32_t kPenDashes = 0x100;
constexpr std::uint32_t kPenAlignment = 0x200;
constexpr std::uint32_t kPenCompound = 0x400;
constexpr std::uint32_t kPenCustomStartCap = 0x800;
constexpr std::uint32_t kPenCustomEndCap = 0x1000;

/// Fields that are there when their flag is.
class OptionalFields {
 public:
  /// @param bytes  borrowed.
  OptionalFields(ByteView& bytes, std::uint32_t flags) : bytes_(bytes), flags_(flags) {}

  template <class T>
  void Read(std::uint32_t flag, T& value) {
    if (Has(flag)) value = bytes_.Read<T>();
  }

  void Read(std::uint32_t flag, std::vector<float>& values) {
    if (Has(flag)) values = ReadEmfPlusList<float>(bytes_, bytes_.Read<std::uint32_t>());
  }

  /// Leaves the bytes short when the cap is none.
  void Read(std::uint32_t flag, std::optional<EmfPlusCustomLineCap>& cap) {
    if (!Has(flag)) return;
    ByteView stored = bytes_.Split(bytes_.Read<std::uint32_t>());
    cap = ReadEmfPlusCustomLineCap(stored);
    if (!cap) bytes_.Fail();
  }

 private:
  [[nodiscard]] bool Has(std::uint32_t flag) const { return (flags_ & flag) != 0; }

  ByteView& bytes_;
  std::uint32_t flags_;
};

EmfPlusPen ReadPenData(ByteView& bytes) {
  EmfPlusPen pen;
  OptionalFields fields(bytes, bytes.Read<std::uint32_t>());
  pen.unit = bytes.Read<EmfPlusUnit>();
  pen.width = bytes.Read<float>();
  fields.Read(kPenTransform, pen.transform);
  fields.Read(kPenStartCap, pen.startCap);
  fields.Read(kPenEndCap, pen.endCap);
  fields.Read(kPenJoin, pen.join);
  fields.Read(kPenMiterLimit, pen.miterLimit);
  fields.Read(kPenStyle, pen.style);
  fields.Read(kPenDashCap, pen.dashCap);
  fields.Read(kPenDashOffset, pen.dashOffset);
  fields.Read(kPenDashes, pen.dashes);
  fields.Read(kPenAlignment, pen.alignment);
  fields.Read(kPenCompound, pen.compound);
  fields.Read(kPenCustomStartCap, pen.customStartCap);
  fields.Read(kPenCustomEndCap, pen.customEndCap);
  return pen;
}

}  // namespace

std::optional<EmfPlusPen> ReadEmfPlusPen(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  bytes.Skip(sizeof(std::uint32_t));  // a type, of which there is one
  EmfPlusPen pen = ReadPenData(bytes);
  std::optional<EmfPlusBrush> brush = ReadEmfPlusBrush(bytes);
  if (!brush) return std::nullopt;
  pen.brush = *std::move(brush);
  return pen;
}

}  // namespace metafile
}  // namespace kelvane
