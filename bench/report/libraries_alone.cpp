#include "report/libraries_alone.h"

#include <map>
#include <set>
#include <span>
#include <stdexcept>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

#include "base/deflater.h"
#include "platform/fonts/font_registry.h"
#include "platform/quartz/cg_font_subset.h"

namespace kelvane::bench {
namespace {

/// Makes the objects of one document again in another.
class Objects {
 public:
  explicit Objects(QPDF& pdf) : pdf_(pdf) {}

  void Promise(QPDFObjectHandle original) {
    made_[original.getObjGen()] =
        original.isStream() ? pdf_.newStream() : QPDFObjectHandle::newReserved(&pdf_);
  }

  void Make(QPDFObjectHandle original) {
    QPDFObjectHandle& made = made_.at(original.getObjGen());
    if (original.isStream()) {
      made.replaceDict(Direct(original.getDict()));
    } else {
      pdf_.replaceReserved(made, Direct(original));
    }
  }

  [[nodiscard]] QPDFObjectHandle At(const QPDFObjectHandle& original) const {
    return made_.at(original.getObjGen());
  }

 private:
  QPDFObjectHandle Any(const QPDFObjectHandle& original) {
    return original.isIndirect() ? At(original) : Direct(original);
  }

  QPDFObjectHandle Direct(QPDFObjectHandle original) {
    if (original.isDictionary()) {
      auto made = QPDFObjectHandle::newDictionary();
      for (const std::string& key : original.getKeys())
        made.replaceKey(key, Any(original.getKey(key)));
      return made;
    }
    if (original.isArray()) {
      auto made = QPDFObjectHandle::newArray();
      for (int i = 0; i < original.getArrayNItems(); ++i)
        made.appendItem(Any(original.getArrayItem(i)));
      return made;
    }
    if (original.isName()) return QPDFObjectHandle::newName(original.getName());
    if (original.isInteger()) return QPDFObjectHandle::newInteger(original.getIntValue());
    if (original.isReal()) return QPDFObjectHandle::newReal(original.getRealValue());
    if (original.isString()) return QPDFObjectHandle::newString(original.getStringValue());
    return QPDFObjectHandle::newNull();
  }

  QPDF& pdf_;
  std::map<QPDFObjGen, QPDFObjectHandle> made_;
};

}  // namespace

struct LibrariesAlone::Parts {
  struct Stream {
    QPDFObjectHandle original;
    std::string data;  // inflated
  };

  std::string file;
  QPDF document;
  std::vector<QPDFObjectHandle> objects;
  std::vector<Stream> streams;
  CGFontRef font = nullptr;
  std::set<CGGlyph> glyphs;
};

LibrariesAlone::LibrariesAlone(const CFData& document, const std::u32string& characters)
    : parts_(std::make_unique<Parts>()) {
  parts_->file.assign(document.bytes.begin(), document.bytes.end());
  parts_->document.processMemoryFile("document", parts_->file.data(), parts_->file.size());
  parts_->objects = parts_->document.getAllObjects();
  for (QPDFObjectHandle object : parts_->objects) {
    if (!object.isStream()) continue;
    const auto data = object.getStreamData();
    parts_->streams.push_back(
        {object, {reinterpret_cast<const char*>(data->getBuffer()), data->getSize()}});
  }
  if (characters.empty()) return;
  FontRegistry& fonts = FontRegistry::Shared();
  const FontStyle& style = fonts.Style(fonts.FindByFamily("Arial"), false, false, MayTravelInPart);
  const Typeface& face = *style.Face().typeface;
  parts_->font = face.Font();
  for (const char32_t character : characters) {
    if (const auto glyph = face.GlyphFor(character)) parts_->glyphs.insert(*glyph);
  }
}

LibrariesAlone::~LibrariesAlone() = default;

void LibrariesAlone::MakeDocument() const {
  if (parts_->font != nullptr) SubsetOf(*parts_->font, {.glyphs = parts_->glyphs});

  QPDF pdf;
  pdf.emptyPDF();
  Objects objects(pdf);
  for (const QPDFObjectHandle& object : parts_->objects)
    objects.Promise(object);
  for (const QPDFObjectHandle& object : parts_->objects)
    objects.Make(object);

  Deflater deflater;
  std::vector<DeflatedBytes> deflated;  // which stays until all is written
  deflated.reserve(parts_->streams.size());
  for (const Parts::Stream& stream : parts_->streams) {
    deflated.push_back(deflater.Deflate(
        {reinterpret_cast<const unsigned char*>(stream.data.data()), stream.data.size()}));
    objects.At(stream.original)
        .replaceStreamData(
            std::make_shared<Buffer>(deflated.back().bytes.get(), deflated.back().size),
            QPDFObjectHandle::newName("/FlateDecode"), QPDFObjectHandle::newNull());
  }
  QPDFObjectHandle trailer = parts_->document.getTrailer();
  for (const char* key : {"/Root", "/Info"})
    pdf.getTrailer().replaceKey(key, objects.At(trailer.getKey(key)));

  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.forcePDFVersion("1.4");
  writer.setObjectStreamMode(qpdf_o_disable);
  writer.setStreamDataMode(qpdf_s_preserve);
  writer.setDeterministicID(true);
  writer.write();
  const auto made = writer.getBufferSharedPointer();
  if (made->getSize() < parts_->file.size() * 9 / 10) {
    throw std::runtime_error("the libraries alone made less than the whole document");
  }
}

}  // namespace kelvane::bench
