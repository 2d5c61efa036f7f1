#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "base/deflater.h"
#include "platform/pdf/cg_pdf_document.h"
#include "platform/pdf/pdf_font.h"
#include "platform/quartz/cg_data_consumer.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_value_writer.h"

namespace kelvane {

/// The objects of a document being made, and the writing of it: PDF 1.4 with a classic
/// cross-reference and nothing in it that differs between two runs. Any call may throw
/// std::bad_alloc or what the PDF library throws.
class PdfWriter {
 public:
  PdfWriter();
  ~PdfWriter();
  PdfWriter(const PdfWriter&) = delete;
  PdfWriter& operator=(const PdfWriter&) = delete;

  /// Lets the document say something of itself. An empty text is left out.
  /// @param key  with its slash: "/Title".
  void AddInformation(std::string_view key, std::u16string_view text);

  /// @param data  copied, deflated. @return the new stream.
  QPDFObjectHandle AddStream(std::string_view data);

  /// @param dictionary  what belongs to the stream but for the entries of its data; taken over.
  /// @param data        deflated. @return the stream, the same one for the same of both.
  QPDFObjectHandle AddSharedStream(const QPDFObjectHandle& dictionary,
                                   std::span<const unsigned char> data);

  /// The same of data that is stored as it is.
  /// @param filter  undoes how it was encoded.
  QPDFObjectHandle AddEncodedStream(QPDFObjectHandle dictionary, const char* filter,
                                    const std::shared_ptr<Buffer>& data);

  /// @param object  a direct one. @return it as an object of its own; the same one for an equal
  /// one.
  QPDFObjectHandle AddSharedObject(QPDFObjectHandle object);

  /// @return the graphics state that sets how marks come onto the page, the same one for the same
  /// setting.
  QPDFObjectHandle AddGraphicsState(const CGCompositing& compositing);

  /// @return `object` as an object of its own, which others refer to.
  QPDFObjectHandle AddObject(const QPDFObjectHandle& object) {
    return pdf_.makeIndirectObject(object);
  }

  /// @return the document's record of the face, made when it is first asked for. Lives as long as
  /// the writer.
  PdfFont& FontFor(CGFontRef font);

  /// @return the page of another document as a form XObject in that page's own space, the same one
  /// for the same page.
  QPDFObjectHandle AddForm(const CGPDFPage& page);

  /// Gives `page` the other document's page's own content and resources.
  static void AdoptContent(QPDFObjectHandle page, const CGPDFPage& source);

  /// @return a new last page, still without content, its resources empty.
  QPDFObjectHandle AddPage(const CGRect& mediaBox);

  /// Writes and commits the document. Throws std::system_error when the consumer cannot take it.
  void Write(CGDataConsumer& consumer);

 private:
  struct StoredStream {
    const std::string* layout;  // of `layouts_`
    std::shared_ptr<Buffer> data;
    QPDFObjectHandle stream;
  };

  using DocumentPage = std::pair<unsigned long long, std::size_t>;  // the document's number, index

  [[nodiscard]] std::shared_ptr<Buffer> Deflate(std::span<const unsigned char> data);

  /// Lets the entries of a dictionary that are no objects of their own be the same objects as equal
  /// ones of others: each number of an array would take a hundred bytes in every one of them.
  void ShareEntries(QPDFObjectHandle dictionary);

  void Fill(QPDFObjectHandle stream, const std::shared_ptr<Buffer>& data, const char* filter);
  [[nodiscard]] QPDFObjectHandle CopyOf(const CGPDFPage& page);

  QPDF pdf_;
  Deflater deflater_;
  std::size_t storedBytes_ = 0;                                 // of all streams
  std::unordered_multimap<std::size_t, StoredStream> streams_;  // shared; by a hash of all of it
  std::set<std::string> layouts_;  // of streams: dictionaries without the data's entries, filters
  std::map<std::string, QPDFObjectHandle> objects_;  // shared; as they are written
  std::map<std::string, QPDFObjectHandle> entries_;  // the same, of dictionaries
  std::map<DocumentPage, QPDFObjectHandle> forms_;
  std::map<CGCompositing, QPDFObjectHandle> graphicsStates_;
  std::map<CGFontRef, std::size_t> fontIndexes_;
  std::deque<PdfFont> fonts_;  // in the order of their first use
};

}  // namespace kelvane
