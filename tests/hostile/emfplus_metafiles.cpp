#include <algorithm>

#include "hostile/hostile_emfplus.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr std::uint32_t kWmfImage = 1;
constexpr std::uint32_t kPlaceableImage = 2;

// Records of Windows metafiles, by their numbers.
constexpr std::uint16_t kSetWindowExt = 0x020C;
constexpr std::uint16_t kLineTo = 0x0213;
constexpr std::uint16_t kEscape = 0x0626;

PlusRecords DrawnMetafile(const Bytes& image) {
  return Joined({Object(kPlusImage, 1, image), DrawImage(1)});
}

/// A metafile that only holds another one, in a public comment.
File ContainerOf(const File& file) {
  constexpr std::uint32_t kPublic = 0x43494447;
  constexpr std::uint32_t kWindowsForm = 0x80000001;
  const auto size = static_cast<std::uint32_t>(file.size());
  Bytes data = Bytes().U32(kPublic).U32(kWindowsForm).U16(0x300).U16(0).U32(0).U32(0).U32(size);
  data.Append(file);
  const Bytes comment = Bytes().U32(static_cast<std::uint32_t>(data.Size())).Append(data.Data());
  return Metafile().Record(EMR_GDICOMMENT, comment).Build();
}

/// The sum that makes that of all words of an enhanced metafile 0.
std::uint32_t ChecksumOf(const File& file) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i + 1 < file.size(); i += 2)
    sum += file[i] | static_cast<std::uint32_t>(file[i + 1]) << 8;
  return (0x10000 - sum) & 0xFFFF;
}

/// A Windows metafile that has an enhanced one in its comments, in pieces.
File WindowsMetafileOf(const File& file) {
  constexpr std::size_t kMostInAPiece = 8192;
  constexpr std::uint32_t kComment = 15;
  constexpr std::uint32_t kFieldsSize = 34;
  const auto size = static_cast<std::uint32_t>(file.size());
  const auto pieces = static_cast<std::uint32_t>((file.size() + kMostInAPiece - 1) / kMostInAPiece);
  WindowsMetafile metafile;
  metafile.Record(kSetWindowExt, {100, 100});
  for (std::size_t at = 0; at < file.size(); at += kMostInAPiece) {
    const auto length = static_cast<std::uint32_t>(std::min(kMostInAPiece, file.size() - at));
    const auto left = static_cast<std::uint32_t>(size - at - length);
    Bytes piece = Bytes().U16(kComment).U16(kFieldsSize + length);
    piece.U32(0x43464D57).U32(1).U32(0x10000).U16(at == 0 ? ChecksumOf(file) : 0).U32(0);
    piece.U32(pieces).U32(length).U32(left).U32(size);
    const auto from = file.begin() + static_cast<std::ptrdiff_t>(at);
    metafile.Record(kEscape, piece.Append({from, from + static_cast<std::ptrdiff_t>(length)}));
  }
  return metafile.Build();
}

/// Metafiles in images, in comments and in pieces, in turns.
PlusRecords DeepInAllWays(int depth) {
  PlusRecords records = PlusRecords().FillRectangle(kBlue, {0, 0}, {9, 9});
  for (int i = 0; i < depth; ++i) {
    const File file = FileOf(records);
    switch (i % 3) {
      case 0:
        records = DrawnMetafile(ImageOf(WindowsMetafileOf(file), kWmfImage));
        break;
      case 1:
        records = DrawnMetafile(ImageOf(ContainerOf(file), kEmfImage));
        break;
      default:
        records = DrawnMetafile(ImageOf(file, kEmfImage));
        break;
    }
  }
  return records;
}

PlusRecords DeepContainers(int depth) {
  File file = FileOf(PlusRecords().FillRectangle(kBlue, {0, 0}, {9, 9}));
  for (int i = 0; i < depth; ++i)
    file = ContainerOf(file);
  return DrawnMetafile(ImageOf(file, kEmfImage));
}

/// A Windows metafile that is drawn many times.
PlusRecords RepeatedWindowsMetafile(int lines, int times) {
  WindowsMetafile metafile;
  metafile.Record(kSetWindowExt, {100, 100});
  for (int i = 0; i < lines; ++i)
    metafile.Record(kLineTo, {i % 100, i % 89});
  return Joined(
      {Object(kPlusImage, 1, ImageOf(metafile.Build(), kWmfImage)), Repeated(DrawImage(1), times)});
}

}  // namespace

std::vector<HostileEmfPlus> EmfPlusOfMetafiles() {
  return {
      {"metafiles_in_all_ways", [] { return DeepInAllWays(1000); }, kTooDeep},
      {"metafiles_in_comments", [] { return DeepContainers(1000); }, kTooDeep},
      {"a_windows_metafile_drawn_again_and_again",
       [] { return RepeatedWindowsMetafile(300, 1000); }, kTooMuchWithin},
      {"a_windows_metafile_of_no_size",
       [] { return DrawnMetafile(ImageOf(WindowsMetafile().Build(), kWmfImage)); }, kNoMetafile},
      {"a_placeable_header_cut_short",
       [] { return DrawnMetafile(Bytes().U32(2).U32(kPlaceableImage).U32(kAll).U32(0x9AC6CDD7)); },
       kNoObject},
  };
}

}  // namespace kelvane::test
