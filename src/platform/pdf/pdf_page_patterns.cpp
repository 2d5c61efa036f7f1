#include "platform/pdf/pdf_page_patterns.h"

#include "platform/pdf/pdf_group.h"
#include "platform/pdf/pdf_pattern.h"
#include "platform/pdf/pdf_shading.h"

namespace kelvane {

void PdfPagePatterns::Begin(const CGRect& page) {
  page_ = page;
  uses_.clear();
}

const PdfPagePattern& PdfPagePatterns::UseOf(const CGSharedPattern& pattern) {
  const auto [entry, isNew] = uses_.try_emplace(pattern);
  PdfPagePattern& use = entry->second;
  if (isNew) {
    use.object = AddPattern(writer_, *pattern, images_);
    use.name = &resources_.NameOf(use.object, kPdfPattern);
    if (pattern->shading && !IsOpaque(*pattern->shading)) {
      use.veil = &VeilOf(*pattern->shading, pattern->matrix);
    }
  }
  return use;
}

bool PdfPagePatterns::IsVeiled(const CGSharedPattern& pattern) {
  return pattern != nullptr && pattern->shading && UseOf(pattern).veil != nullptr;
}

const std::string& PdfPagePatterns::VeilOf(const CGShading& shading,
                                           const CGAffineTransform& matrix) {
  const auto group = AddShadingGroup(writer_, {shading, matrix, page_}, PdfChannels::kAlpha);
  return resources_.NameOf(AddMaskState(writer_, group), kPdfGraphicsState);
}

}  // namespace kelvane
