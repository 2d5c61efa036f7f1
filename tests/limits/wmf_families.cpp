#include "limits/wmf_families.h"

#include "support/containers.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

constexpr std::uint16_t kSelectObject = 0x012D;
constexpr std::uint16_t kDeleteObject = 0x01F0;

template <class Add>
File RepeatedRecords(std::size_t size, std::size_t bytes, const Add& add) {
  WindowsMetafile metafile = WindowsMetafile().Placeable(0, 0, 1024, 1024, 96);
  metafile.Record(0x020C, {1024, 1024});
  for (std::size_t i = 0; i * bytes + kFixed < size; ++i)
    add(metafile, i);
  return metafile.Build();
}

Bytes TextAt(std::size_t i) {
  return Bytes().U16(5).Each({'H', 'e', 'l', 'l', 'o', 0}).I16(Scattered(i)).I16(Scattered(i + 1));
}

File FileOfLines(std::size_t count) {
  Metafile metafile;
  for (std::size_t i = 0; i < count; ++i)
    metafile.Polyline({{Scattered(i), 1}, {3, Scattered(i + 1)}});
  return metafile.Build();
}

}  // namespace

File WmfPolygons(std::size_t size) {
  return RepeatedRecords(size, 8 + 12, [](WindowsMetafile& metafile, std::size_t i) {
    metafile.Record(0x0324, {3, Scattered(i), 1, 3, Scattered(i + 1), Scattered(i + 2), 9});
  });
}

File WmfTexts(std::size_t size) {
  return RepeatedRecords(size, 6 + 12, [](WindowsMetafile& metafile, std::size_t i) {
    metafile.Record(0x0521, TextAt(i));
  });
}

// A font of another name each, used once.
File WmfFonts(std::size_t size) {
  return RepeatedRecords(size, 30 + 8 + 18 + 8, [](WindowsMetafile& metafile, std::size_t i) {
    const Bytes font = Bytes().I16(-9).Zeros(16).U32(0x41414141U + Number(i)).U16(0);
    metafile.Record(0x02FB, font).Record(kSelectObject, {0}).Record(0x0521, TextAt(i));
    metafile.Record(kDeleteObject, {0});
  });
}

// A region of a square each, which is painted.
File WmfRegions(std::size_t size) {
  return RepeatedRecords(size, 44 + 10 + 8, [](WindowsMetafile& metafile, std::size_t i) {
    const std::int32_t left = Scattered(i);
    Bytes region = Bytes().U16(0).U16(6).U32(0).I16(36).I16(1).I16(2).I16(left).I16(0);
    region.I16(left + 9).I16(9).U16(2).U16(0).U16(9).I16(left).I16(left + 9).U16(2);
    metafile.Record(0x06FF, region).Record(0x012B, {0}).Record(kDeleteObject, {0});
  });
}

// Clips within clips, with a mark under each.
File WmfClips(std::size_t size) {
  return RepeatedRecords(size, 14 + 14, [](WindowsMetafile& metafile, std::size_t i) {
    metafile.Record(0x0416, {1000, 1000, Signed(i % 500), 0}).Record(0x041B, {4, 3, 2, 1});
  });
}

File WmfBitmaps(std::size_t size) {
  return RepeatedRecords(size, 6 + 22 + 44, [](WindowsMetafile& metafile, std::size_t i) {
    Bytes blit = Bytes().U32(kSrcCopy).U16(0).I16(1).I16(1).I16(0).I16(0).I16(9).I16(9);
    blit.I16(Scattered(i)).I16(Scattered(i + 1)).BitmapHeader({}).U32(Number(i));
    metafile.Record(0x0F43, blit);
  });
}

// A page of a hundred lines each.
File PrintedPages(std::size_t size) {
  const File page = FileOfLines(100);
  PrintJob job;
  for (std::size_t i = 0; (i + 1) * page.size() < size; ++i)
    job.Page(page);
  return job.Build();
}

// The picture in comments, again and again, and nothing else.
File OtherForms(std::size_t size) {
  constexpr std::uint32_t kPublic = 0x43494447;
  constexpr std::uint32_t kManyForms = 0x40000004;
  const File form = FileOfLines(10);
  const auto formSize = static_cast<std::uint32_t>(form.size());
  return Repeated(size, 72 + form.size(), [&](Metafile& metafile, std::size_t) {
    Bytes data = Bytes().U32(kPublic).U32(kManyForms).Rectangle(0, 0, 99, 99).U32(1);
    data.U32(0x464D4520).U32(0x10000).U32(formSize).U32(44).Append(form);
    metafile.Record(EMR_GDICOMMENT, Bytes().U32(Number(data.Size())).Append(data.Data()));
  });
}

}  // namespace kelvane::test
