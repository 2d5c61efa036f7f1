#pragma once

#include <cstddef>
#include <string>

#include "frontends/conversion_options.h"
#include "platform/corefoundation/cf_data.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"
#include "players/picture/metafile.h"
#include "players/play_setting.h"
#include "players/report.h"

namespace kelvane {

/// A document on its way, a page for each metafile.
class PictureDocument {
 public:
  /// @param options  borrowed. @param setting  borrowed. @param title  empty for that of the first
  ///                 metafile. @param report  gets what is missing or only nearly there.
  PictureDocument(const ConversionOptions& options, const PlaySetting& setting,
                  std::u16string title, Report& report);

  /// Plays a metafile onto the next page; there must be a place for it. Throws when that cannot be
  /// made.
  void AddPage(const Metafile& metafile);

  /// @return whether there is no place for another page.
  [[nodiscard]] bool IsFull() const;

  /// Ends the document, which has a page. @return its bytes.
  CFOwned<CFData> Finish();

  [[nodiscard]] std::size_t Pages() const { return pages_; }
  [[nodiscard]] CGSize FirstPage() const { return firstPage_; }   // points
  [[nodiscard]] std::size_t Records() const { return records_; }  // of all metafiles

 private:
  void Begin(const Metafile& first, const CGRect& page);

  const ConversionOptions& options_;
  const PlaySetting& setting_;
  std::u16string title_;
  Report& report_;
  CFOwned<CFData> bytes_;
  CFOwned<CGDataConsumer> consumer_;
  CFOwned<CGContext> surface_;  // null before the first page
  std::size_t pages_ = 0;
  CGSize firstPage_ = {};
  std::size_t records_ = 0;
};

}  // namespace kelvane
