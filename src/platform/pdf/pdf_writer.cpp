#include "platform/pdf/pdf_writer.h"

#include <array>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include <qpdf/Buffer.hh>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "base/unicode.h"
#include "platform/pdf/pdf_number.h"

namespace kelvane {
namespace {

constexpr std::size_t kObjectRoom = 256;  // bytes that most objects stay below, their streams apart

constexpr const char* kDeflated = "/FlateDecode";

// By mode (ISO 32000-1, tables 136 and 137).
constexpr std::array<const char*, kCGBlendModes> kBlendModeNames = {
    "/Normal",     "/Multiply",   "/Screen",    "/Overlay",   "/Darken",     "/Lighten",
    "/ColorDodge", "/ColorBurn",  "/SoftLight", "/HardLight", "/Difference", "/Exclusion",
    "/Hue",        "/Saturation", "/Color",     "/Luminosity"};

class ConsumerPipeline final : public Pipeline {
 public:
  explicit ConsumerPipeline(CGDataConsumer& consumer)
      : Pipeline("consumer", nullptr), consumer_(consumer) {}

  void write(const unsigned char* data, std::size_t length) override {
    consumer_.Write({data, length});
  }
  void finish() override {}

 private:
  CGDataConsumer& consumer_;
};

/// A stream's bytes, which the library sees but does not own.
struct DeflatedStream {
  explicit DeflatedStream(DeflatedBytes deflated)
      : bytes(std::move(deflated)), buffer(bytes.bytes.get(), bytes.size) {}

  DeflatedBytes bytes;
  Buffer buffer;
};

}  // namespace

PdfWriter::PdfWriter() {
  // Not even an empty document can be read when memory runs out, and it must not be mended then.
  pdf_.setAttemptRecovery(false);
  pdf_.setSuppressWarnings(true);  // which would be printed
  pdf_.emptyPDF();
  auto information = QPDFObjectHandle::newDictionary();
  information.replaceKey("/Producer", QPDFObjectHandle::newString("kelvane " KELVANE_VERSION));
  pdf_.getTrailer().replaceKey("/Info", pdf_.makeIndirectObject(information));
}

PdfWriter::~PdfWriter() = default;

void PdfWriter::AddInformation(std::string_view key, std::u16string_view text) {
  if (text.empty()) return;
  auto information = pdf_.getTrailer().getKey("/Info");
  information.replaceKey(std::string(key), QPDFObjectHandle::newUnicodeString(ToUTF8(text)));
}

std::shared_ptr<Buffer> PdfWriter::Deflate(std::span<const unsigned char> data) {
  const auto stream = std::make_shared<DeflatedStream>(deflater_.Deflate(data));
  return {stream, &stream->buffer};
}

void PdfWriter::Fill(QPDFObjectHandle stream, const std::shared_ptr<Buffer>& data,
                     const char* filter) {
  stream.replaceStreamData(data, QPDFObjectHandle::newName(filter), QPDFObjectHandle::newNull());
  storedBytes_ += data->getSize();
}

QPDFObjectHandle PdfWriter::AddStream(std::string_view data) {
  auto stream = pdf_.newStream();
  Fill(stream, Deflate({reinterpret_cast<const unsigned char*>(data.data()), data.size()}),
       kDeflated);
  return stream;
}

QPDFObjectHandle PdfWriter::AddSharedStream(const QPDFObjectHandle& dictionary,
                                            std::span<const unsigned char> data) {
  return AddEncodedStream(dictionary, kDeflated, Deflate(data));
}

// Equal data deflates to equal bytes, so the stored streams themselves tell whether one is new.
QPDFObjectHandle PdfWriter::AddEncodedStream(QPDFObjectHandle dictionary, const char* filter,
                                             const std::shared_ptr<Buffer>& data) {
  const auto bytesOf = [](Buffer& buffer) {
    return std::string_view(reinterpret_cast<const char*>(buffer.getBuffer()), buffer.getSize());
  };
  const std::string& layout = *layouts_.insert(dictionary.unparse() + filter).first;
  // Either may be alike in all of thousands: patterns differ in their colours, or in their image.
  const std::hash<std::string_view> hashOf;
  const std::size_t hash = 31 * hashOf(bytesOf(*data)) + hashOf(layout);
  const auto [first, last] = streams_.equal_range(hash);
  for (auto known = first; known != last; ++known) {
    if (known->second.layout == &layout && bytesOf(*known->second.data) == bytesOf(*data)) {
      return known->second.stream;
    }
  }
  auto stream = pdf_.newStream();
  ShareEntries(dictionary);
  stream.replaceDict(dictionary);
  Fill(stream, data, filter);
  streams_.emplace(hash, StoredStream{&layout, data, stream});
  return stream;
}

void PdfWriter::ShareEntries(QPDFObjectHandle dictionary) {
  constexpr std::size_t kMostEntries = 4096;
  for (const std::string& key : dictionary.getKeys()) {
    QPDFObjectHandle value = dictionary.getKey(key);
    if (value.isIndirect()) continue;
    const std::string text = value.unparse();
    if (const auto known = entries_.find(text); known != entries_.end()) {
      dictionary.replaceKey(key, known->second);
    } else if (entries_.size() < kMostEntries) {
      entries_.emplace(text, value);
    }
  }
}

QPDFObjectHandle PdfWriter::AddSharedObject(QPDFObjectHandle object) {
  const auto [entry, isNew] = objects_.try_emplace(object.unparse());
  if (isNew) {
    if (object.isDictionary()) ShareEntries(object);
    entry->second = AddObject(object);
  }
  return entry->second;
}

QPDFObjectHandle PdfWriter::AddGraphicsState(const CGCompositing& compositing) {
  const auto [entry, isNew] = graphicsStates_.try_emplace(compositing);
  if (isNew) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/BM", QPDFObjectHandle::newName(kBlendModeNames[compositing.mode]));
    dictionary.replaceKey("/CA", PdfNumber(compositing.alpha));
    dictionary.replaceKey("/ca", PdfNumber(compositing.alpha));
    entry->second = AddObject(dictionary);
  }
  return entry->second;
}

PdfFont& PdfWriter::FontFor(CGFontRef font) {
  const auto [entry, isNew] = fontIndexes_.try_emplace(font, fonts_.size());
  if (isNew) fonts_.emplace_back(font, AddObject(QPDFObjectHandle::newDictionary()));
  return fonts_[entry->second];
}

QPDFObjectHandle PdfWriter::AddForm(const CGPDFPage& page) {
  const DocumentPage key(page.document->pdf->getUniqueId(), page.index);
  const auto known = forms_.find(key);
  return known != forms_.end() ? known->second : forms_.emplace(key, CopyOf(page)).first->second;
}

QPDFObjectHandle PdfWriter::CopyOf(const CGPDFPage& page) {
  const QPDFObjectHandle source = page.document->pdf->getAllPages()[page.index];
  constexpr bool kApplyRotation = false;
  auto form =
      pdf_.copyForeignObject(QPDFPageObjectHelper(source).getFormXObjectForPage(kApplyRotation));
  // The library joins the page's streams for the form and leaves the result as it is.
  const auto content = form.getRawStreamData();
  Fill(form, Deflate({content->getBuffer(), content->getSize()}), kDeflated);
  return form;
}

void PdfWriter::AdoptContent(QPDFObjectHandle page, const CGPDFPage& source) {
  // Only indirect objects can be copied between documents, and these two may be direct or
  // inherited.
  QPDF& document = *page.getOwningQPDF();
  QPDF& sourceDocument = *source.document->pdf;
  QPDFPageObjectHelper helper(sourceDocument.getAllPages()[source.index]);
  auto parts = QPDFObjectHandle::newDictionary();
  for (const char* key : {"/Contents", "/Resources"}) {
    parts.replaceKey(key, helper.getAttribute(key, false));
  }
  auto copy = document.copyForeignObject(sourceDocument.makeIndirectObject(parts));
  for (const std::string& key : copy.getKeys())
    page.replaceKey(key, copy.getKey(key));
}

QPDFObjectHandle PdfWriter::AddPage(const CGRect& mediaBox) {
  auto page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
  page.replaceKey("/MediaBox", PdfBox(mediaBox));
  page.replaceKey("/Resources", QPDFObjectHandle::newDictionary());
  pdf_.addPage(pdf_.makeIndirectObject(page), false);
  return pdf_.getAllPages().back();
}

void PdfWriter::Write(CGDataConsumer& consumer) {
  for (PdfFont& font : fonts_)
    font.Finish(*this);
  consumer.Expect(storedBytes_ + pdf_.getObjectCount() * kObjectRoom);
  ConsumerPipeline pipeline(consumer);
  QPDFWriter writer(pdf_);
  writer.setOutputPipeline(&pipeline);
  writer.forcePDFVersion("1.4");
  writer.setObjectStreamMode(qpdf_o_disable);
  writer.setStreamDataMode(qpdf_s_preserve);
  writer.setDeterministicID(true);
  writer.write();
  // The library goes on without an object that it cannot read, even when only memory ran out.
  if (pdf_.anyWarnings()) throw std::runtime_error("the document lost some of its objects");
  consumer.Commit();
}

}  // namespace kelvane
