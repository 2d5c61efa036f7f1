#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_data_provider.h"
#include "platform/quartz/cg_geometry.h"

class QPDF;

namespace kelvane {

class CGPDFDocument;

/// One page, owned by its document.
struct CGPDFPage {
  CGPDFDocument* document;  // borrowed: the owner
  std::size_t index;        // from 0
};

/// A PDF document opened for reading. Used by one thread at a time.
class CGPDFDocument final : public CFObject {
 public:
  /// Opens the provider's document. Throws what reading it throws (std::exception) when it is not
  /// one.
  explicit CGPDFDocument(CGDataProviderRef source);

  /// @return whether all that was read of the document so far could be read. What cannot be read is
  ///         left out without an error.
  [[nodiscard]] bool IsSound() const;

  const CFOwned<const CGDataProvider> provider;  // outlives `pdf`, which reads from it
  const std::unique_ptr<QPDF> pdf;
  std::vector<CGPDFPage> pages;

 private:
  ~CGPDFDocument() override;
};

using CGPDFDocumentRef = CGPDFDocument*;
using CGPDFPageRef = const CGPDFPage*;
enum CGPDFBox : unsigned char { kCGPDFMediaBox = 0 };

/// @return the document, owned by the caller; null for a null provider or bytes that are no PDF.
///         Throws std::bad_alloc.
CGPDFDocumentRef CGPDFDocumentCreateWithProvider(CGDataProviderRef provider);

std::size_t CGPDFDocumentGetNumberOfPages(CGPDFDocumentRef document) noexcept;

/// @param number  from 1.
/// @return the page, owned by the document; null when there is none of that number.
CGPDFPageRef CGPDFDocumentGetPage(CGPDFDocumentRef document, std::size_t number) noexcept;

/// @return the page's box in default user space, corners put in order; empty when it has none that
///         is usable.
CGRect CGPDFPageGetBoxRect(CGPDFPageRef page, CGPDFBox box);

}  // namespace kelvane
