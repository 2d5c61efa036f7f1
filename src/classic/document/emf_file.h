#pragma once

#include <cstdint>
#include <vector>

#include "classic/context/abstract_context.h"
#include "classic/document/emf_header.h"
#include "classic/document/record_factory.h"
#include "classic/playable/record.h"
#include "classic/reader/reader.h"
#include "platform/corefoundation/cf_data.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// Makes the surface that a document is drawn on, as CGPDFContextCreate does. Who starts a
/// conversion chooses it, so that playback knows no output.
using PDFContextMaker = CGContextRef (*)(CGDataConsumerRef consumer, const CGRect* mediaBox,
                                         CFDictionaryRef auxiliaryInfo);

/// A metafile on its way to a page: parsed whole into records first, then played back. Used once,
/// by one thread.
class EMFFile {
 public:
  /// @param block           the metafile, borrowed; must outlive the EMFFile.
  /// @param size            as for BufferReader.
  /// @param makePDFContext  for DrawToPDF, the only one that calls it.
  EMFFile(const unsigned char* block, std::int32_t size, PDFContextMaker makePDFContext = nullptr)
      : reader(block, size), makePDFContext_(makePDFContext) {}

  /// Reads the header and every record up to EMR_EOF or the end of the data. Throws the `int` 1
  /// when the data does not start with a header, std::bad_alloc, and std::runtime_error when a
  /// record or the header leads past the end of the data, or when records overlap so much that
  /// reading them would take out of all proportion long.
  void ParseEMFFile();

  /// Appends the records to `data` as a PDF document of one page. When no document can be made (no
  /// data object, a page without area) nothing is appended. Throws std::exception, and then `data`
  /// is as it was.
  void DrawToPDF(CFMutableDataRef data);

  /// Plays the records onto a page of any surface.
  /// @param surface  borrowed.
  void DrawToPage(CGContextRef surface);

  /// @return the record for `type`, read from the reader, which then stands at the record's end.
  OwnedRecord CreateRecordByType(unsigned long type);

  Reader reader;
  EMFHeader header;
  RecordArena arena;
  std::vector<OwnedRecord> records;  // in file order
  EMFPalette palette;
  AbstractContext context;

 private:
  [[nodiscard]] CGRect PageBox() const;
  [[nodiscard]] CFOwned<CGDataConsumer> CreateDataConsumer(CFMutableDataRef data) const;

  /// @return a surface whose one page is begun; null when no document can be made.
  [[nodiscard]] CFOwned<CGContext> CreatePDFContext(CFMutableDataRef data) const;

  /// Ends the page and with it the document.
  void ReleasePDFContext(CFOwned<CGContext> surface) const;

  void BeginPage(CGContextRef surface) const;
  void DrawRecords(CGContextRef surface);
  void CheckPosition() const;

  PDFContextMaker makePDFContext_;
};

}  // namespace kelvane
