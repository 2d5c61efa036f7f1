#pragma once

#include <memory>
#include <string>

#include "platform/corefoundation/cf_data.h"

namespace kelvane::bench {

/// A finished document, to be made again by the libraries alone: its streams deflated, its objects
/// made and written by the PDF library, its faces cut down to the same glyphs. Nothing is read,
/// drawn or measured.
class LibrariesAlone {
 public:
  /// @param characters  of the text in Arial, which is all the text there may be.
  LibrariesAlone(const CFData& document, const std::u32string& characters);
  ~LibrariesAlone();
  LibrariesAlone(const LibrariesAlone&) = delete;
  LibrariesAlone& operator=(const LibrariesAlone&) = delete;

  /// Makes it. Throws std::runtime_error when it becomes much smaller than the document was.
  void MakeDocument() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace kelvane::bench
