#pragma once

#include <map>
#include <string>

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/pdf/pdf_image.h"
#include "platform/pdf/pdf_resources.h"
#include "platform/pdf/pdf_writer.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_pattern.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// A pattern as a page knows it. Names stay until the page ends.
struct PdfPagePattern {
  QPDFObjectHandle object;
  const std::string* name = nullptr;
  const std::string* veil = nullptr;  // the state of its alpha; null where it is opaque
};

/// The patterns of a page, made when they are first used. What makes an object throws as the
/// writer does.
class PdfPagePatterns {
 public:
  /// @param images     of the document; gains those of the patterns.
  /// @param resources  of the page; names what the patterns become.
  /// All three stay with the caller, who keeps them longer than this.
  PdfPagePatterns(PdfWriter& writer, PdfImages& images, PdfResources& resources)
      : writer_(writer), images_(images), resources_(resources) {}

  /// @param page  all that can be seen of a new page, page space.
  void Begin(const CGRect& page);

  /// @param pattern  not null. Kept with its names, so that no other can come to lie where it was.
  const PdfPagePattern& UseOf(const CGSharedPattern& pattern);

  /// @param pattern  may be null.
  [[nodiscard]] bool IsVeiled(const CGSharedPattern& pattern);

  /// @param matrix  maps the shading's space to page space.
  /// @return the name of the state that lets marks through by the shading's alpha.
  const std::string& VeilOf(const CGShading& shading, const CGAffineTransform& matrix);

 private:
  PdfWriter& writer_;
  PdfImages& images_;
  PdfResources& resources_;
  CGRect page_;
  std::map<CGSharedPattern, PdfPagePattern> uses_;
};

}  // namespace kelvane
