#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace kelvane::test {

/// An operator of a page's content with its operands, each after a blank: {"re", " 10 -60 20 40"}.
struct Operation {
  std::string op;
  std::string operands;
};

/// A PDF read back by an independent library.
class Pdf {
 public:
  /// Throws std::exception when the bytes are not a PDF.
  explicit Pdf(std::string bytes);

  [[nodiscard]] std::size_t PageCount() const;
  [[nodiscard]] QPDFObjectHandle Page(std::size_t index = 0) const;

  /// The page's media box, as it stands in the file: "[ 0 -50 100 0 ]".
  [[nodiscard]] std::string MediaBox(std::size_t index = 0) const;

  /// The page's content, decoded and joined.
  [[nodiscard]] std::string Content(std::size_t index = 0) const;

  /// The page's content, taken apart by the independent library.
  [[nodiscard]] std::vector<Operation> Operations(std::size_t index = 0) const;
  /// The pixels of the images among the page's resources, decoded, in order of their names.
  [[nodiscard]] std::vector<std::vector<unsigned char>> Images(std::size_t index = 0) const;

  [[nodiscard]] QPDF& Document() const { return *document_; }

 private:
  std::string bytes_;
  std::unique_ptr<QPDF> document_;
};

/// Checks a PDF with the external checker.
/// @return its complaints; empty when there are none.
std::string ComplaintsAbout(const std::string& pdfPath);

/// @return the text that an external reader finds in a document, without the line and page breaks
///         it ends with.
std::string TextIn(const std::string& pdfBytes);

/// @return what an external reader lists of a document's fonts, one a line: name, type, encoding,
///         whether it is embedded, a subset, and has a map to text.
std::string FontsIn(const std::string& pdfBytes);

}  // namespace kelvane::test
