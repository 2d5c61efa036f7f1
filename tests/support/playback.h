#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "classic/document/emf_file.h"
#include "classic/reader/reader.h"
#include "support/bytes.h"
#include "support/metafile.h"

namespace kelvane::test {

/// A metafile's records, parsed from a block that lives as long.
class ParsedMetafile {
 public:
  /// Parses as from a file: every byte can be read. Throws what parsing throws.
  explicit ParsedMetafile(std::vector<unsigned char> bytes);

  EMFFile* operator->() { return &file_; }

 private:
  std::vector<unsigned char> block_;
  EMFFile file_;
};

/// A page to draw on by hand, traced.
class TracedPage {
 public:
  TracedPage();

  /// A fresh context, drawing on the page.
  [[nodiscard]] AbstractContext& Context() { return context_; }

  /// What was drawn so far, without the page's first line.
  [[nodiscard]] std::string Trace() const { return trace_.substr(trace_.find('\n') + 1); }

 private:
  std::string trace_;
  CFOwned<CGContext> surface_;
  AbstractContext context_;
};

/// @return the trace of the whole playback, page lines included.
std::string FullTrace(ParsedMetafile& metafile);
std::string FullTrace(const Metafile& metafile);

/// @return the trace of the playback between the page's first line and its last.
std::string Trace(ParsedMetafile& metafile);
std::string Trace(const Metafile& metafile);

/// Converts in memory as KELVANE does. Throws what the conversion throws.
std::string ConvertToPdf(const std::vector<unsigned char>& metafile);

/// @return the decoded content stream of the page that the metafile makes.
std::string PageContent(const Metafile& metafile);

/// Has `target` read itself from bytes every one of which can be read.
template <class T>
void ReadInto(T& target, const Bytes& bytes) {
  std::vector<unsigned char> block = bytes.Data();
  block.push_back(0);
  Reader reader(block.data(), static_cast<std::int32_t>(block.size()));
  target.read(reader);
}

/// Reads a structure embedded in records.
/// @param structure  what it holds before.
template <class T>
T ReadStructure(const Bytes& bytes, T structure = {}) {
  ReadInto(structure, bytes);
  return structure;
}

/// Reads a record's body, the part behind type and size, which is all that `read` sees.
template <class R, class... Arguments>
std::unique_ptr<R> ReadRecord(const Bytes& body, Arguments&&... arguments) {
  auto record = std::make_unique<R>(std::forward<Arguments>(arguments)...);
  record->size = static_cast<std::uint32_t>(8 + body.Size());
  ReadInto(*record, body);
  return record;
}

}  // namespace kelvane::test
