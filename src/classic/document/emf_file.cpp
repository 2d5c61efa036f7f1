#include "classic/document/emf_file.h"

#include <stdexcept>
#include <utility>

#include "classic/context/coordinates.h"
#include "classic/context/path_primitives.h"
#include "classic/document/record_factory.h"
#include "classic/document/record_type.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

// Declared sizes of 0 and 4 lead back to the record's own first fields, where parsing would never
// end.
bool LeadsNowhere(const Record& record, std::int64_t position, std::int64_t typeEnd) {
  return record.size == 0 || record.size == 4 || position <= typeEnd;
}

}  // namespace

void EMFFile::ParseEMFFile() {
  header.fillHeader(reader);
  reader.setToPosition(header.fields.nSize);
  while (!reader.isEnd()) {
    CheckPosition();
    std::uint32_t type = 0;
    reader.read(type);
    if (reader.isEnd()) break;
    if (type == static_cast<std::uint32_t>(RecordType::EMR_EOF)) {
      palette.fillPalette(reader);
      break;
    }
    const std::int64_t typeEnd = reader.getPosition();
    records.push_back(CreateRecordByType(type));
    if (LeadsNowhere(*records.back(), reader.getPosition(), typeEnd)) break;
  }
  reader.closeSource();
}

void EMFFile::CheckPosition() const {
  if (reader.getPosition() >= reader.bufferReaderSize()) {
    throw std::runtime_error("a record leads past the end of the metafile");
  }
  if (reader.CheckedBytes() > reader.ByteBudget()) {
    throw std::runtime_error("the records of the metafile overlap");
  }
}

OwnedRecord EMFFile::CreateRecordByType(unsigned long type) {
  OwnedRecord record = MakeRecord(static_cast<std::uint32_t>(type), arena);
  record->ReadItem(reader);
  return record;
}

void EMFFile::DrawToPDF(CFMutableDataRef data) {
  CFOwned<CGContext> surface = CreatePDFContext(data);
  if (!surface) return;
  DrawRecords(surface.get());
  ReleasePDFContext(std::move(surface));
}

void EMFFile::DrawToPage(CGContextRef surface) {
  BeginPage(surface);
  DrawRecords(surface);
  CGContextEndPage(surface);
}

void EMFFile::DrawRecords(CGContextRef surface) {
  context.context = surface;
  for (const auto& record : records)
    record->drawToPDF(context);
  DrawPath(context, kCGPathStroke);  // what the records left pending
  context.context = nullptr;
}

CFOwned<CGDataConsumer> EMFFile::CreateDataConsumer(CFMutableDataRef data) const {
  return CFOwned<CGDataConsumer>(CGDataConsumerCreateWithCFData(data));
}

CGRect EMFFile::PageBox() const {
  return GetImageBox(context, header.fields.rclBounds);
}

CFOwned<CGContext> EMFFile::CreatePDFContext(CFMutableDataRef data) const {
  const CGRect pageBox = PageBox();
  const CFOwned<CGDataConsumer> consumer = CreateDataConsumer(data);
  CFOwned<CGContext> surface(makePDFContext_(consumer.get(), &pageBox, nullptr));
  if (surface) BeginPage(surface.get());
  return surface;
}

void EMFFile::ReleasePDFContext(CFOwned<CGContext> surface) const {
  CGContextEndPage(surface.get());
  surface->Close();
}

void EMFFile::BeginPage(CGContextRef surface) const {
  constexpr CGFloat kBlack[] = {0, 0, 0, 1};
  constexpr CGFloat kWhite[] = {1, 1, 1, 1};
  const CGRect pageBox = PageBox();
  CGContextBeginPage(surface, &pageBox);
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  CGContextSetFillColorSpace(surface, rgb.get());
  CGContextSetStrokeColorSpace(surface, rgb.get());
  CGContextBeginPath(surface);
  CGContextSetStrokeColor(surface, kBlack);
  CGContextSetFillColor(surface, kWhite);
  CGContextSetTextDrawingMode(surface, kCGTextFill);
  CGContextSaveGState(surface);
}

}  // namespace kelvane
