#pragma once

#include <cstdint>
#include <unordered_map>

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// The images of a document (ISO 32000-1, 8.9). Only their numbers are kept, so their bytes go as
/// soon as nobody else has them.
class PdfImages {
 public:
  /// @param writer  of the document; borrowed.
  explicit PdfImages(PdfWriter& writer) : writer_(writer) {}

  /// @return the image as an XObject, its mask included: the same one for the same image, whose
  ///         provider is asked only once, and for one of equal bytes; null when a provider fell
  ///         short. Throws as the writer and the provider do.
  QPDFObjectHandle Add(const CGImage& image);

 private:
  QPDFObjectHandle Store(const CGImage& image);
  QPDFObjectHandle StoreData(const CGImage& image, const QPDFObjectHandle& dictionary);
  QPDFObjectHandle ColorSpaceOf(const CGImage& image);

  PdfWriter& writer_;
  std::unordered_map<std::uint64_t, QPDFObjectHandle> stored_;  // by serial
};

}  // namespace kelvane
