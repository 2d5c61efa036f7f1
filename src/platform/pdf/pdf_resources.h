#pragma once

#include <map>
#include <string>

#include <qpdf/QPDFObjectHandle.hh>

namespace kelvane {

/// A kind of resource: where it stands, and how its names begin.
struct PdfResourceKind {
  const char* category;
  const char* prefix;
};

inline constexpr PdfResourceKind kPdfImage = {"/XObject", "/Im"};
inline constexpr PdfResourceKind kPdfForm = {"/XObject", "/Fm"};
inline constexpr PdfResourceKind kPdfFont = {"/Font", "/F"};
inline constexpr PdfResourceKind kPdfPattern = {"/Pattern", "/P"};
inline constexpr PdfResourceKind kPdfShading = {"/Shading", "/Sh"};
inline constexpr PdfResourceKind kPdfGraphicsState = {"/ExtGState", "/G"};

/// The resources of a page or a pattern: objects by the names that its content has for them (ISO
/// 32000-1, 7.8.3).
class PdfResources {
 public:
  PdfResources() : PdfResources(QPDFObjectHandle::newDictionary()) {}

  /// @param dictionary  gets an entry for each object that is named.
  explicit PdfResources(const QPDFObjectHandle& dictionary) : dictionary_(dictionary) {}

  /// @return the object's name, the same one each time; it stays as long as these resources.
  const std::string& NameOf(const QPDFObjectHandle& object, const PdfResourceKind& kind);

  [[nodiscard]] const QPDFObjectHandle& Dictionary() const { return dictionary_; }

 private:
  using Names = std::map<QPDFObjGen, std::string>;

  QPDFObjectHandle dictionary_;
  std::map<std::string, Names, std::less<>> names_;  // by category
};

}  // namespace kelvane
