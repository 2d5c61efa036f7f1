#include "platform/pdf/pdf_image.h"

#include <cstddef>
#include <memory>
#include <string>

#include <qpdf/Buffer.hh>

#include "platform/quartz/cg_image_rows.h"

namespace kelvane {
namespace {

QPDFObjectHandle Name(const char* name) {
  return QPDFObjectHandle::newName(name);
}

QPDFObjectHandle Integer(std::size_t value) {
  return QPDFObjectHandle::newInteger(static_cast<long long>(value));
}

QPDFObjectHandle Yes() {
  return QPDFObjectHandle::newBool(true);
}

/// Provided bytes that the document stores as they are, with whoever keeps them alive. The library
/// sees them but does not own them.
struct ProvidedStream {
  explicit ProvidedStream(CGDataProviderRef source)
      : provider(CFShare(source)),
        bytes(source->Provide()),
        buffer(const_cast<unsigned char*>(bytes.View().data()), bytes.View().size()) {}

  CFOwned<const CGDataProvider> provider;
  CGProvidedBytes bytes;
  Buffer buffer;  // only read
};

}  // namespace

QPDFObjectHandle PdfImages::Add(const CGImage& image) {
  const auto known = stored_.find(image.serial);
  if (known != stored_.end()) return known->second;
  return stored_.emplace(image.serial, Store(image)).first->second;
}

// One after the other, so that the bytes of image and mask do not take memory at the same time.
QPDFObjectHandle PdfImages::Store(const CGImage& image) {
  auto dictionary = QPDFObjectHandle::newDictionary();
  dictionary.replaceKey("/Type", Name("/XObject"));
  dictionary.replaceKey("/Subtype", Name("/Image"));
  dictionary.replaceKey("/Width", Integer(image.width));
  dictionary.replaceKey("/Height", Integer(image.height));
  dictionary.replaceKey("/BitsPerComponent", Integer(image.bitsPerComponent));
  if (image.interpolate) dictionary.replaceKey("/Interpolate", Yes());
  if (image.isMask) {
    dictionary.replaceKey("/ImageMask", Yes());
  } else {
    dictionary.replaceKey("/ColorSpace", ColorSpaceOf(image));
  }
  if (image.mask != nullptr) {
    QPDFObjectHandle mask = Add(*image.mask);
    if (mask.isNull()) return mask;
    dictionary.replaceKey(image.mask->isMask ? "/Mask" : "/SMask", mask);
  }
  return StoreData(image, dictionary);
}

// Rows without padding are deflated from where they are.
QPDFObjectHandle PdfImages::StoreData(const CGImage& image, const QPDFObjectHandle& dictionary) {
  if (image.encoding == CGImage::Encoding::kJpeg) {
    const auto file = std::make_shared<ProvidedStream>(image.provider.get());
    if (file->bytes.View().empty()) return QPDFObjectHandle::newNull();
    return writer_.AddEncodedStream(dictionary, "/DCTDecode", {file, &file->buffer});
  }
  CGImageRows rows(image);
  if (!rows.AreWhole()) return QPDFObjectHandle::newNull();
  return writer_.AddSharedStream(dictionary, rows.Packed());
}

QPDFObjectHandle PdfImages::ColorSpaceOf(const CGImage& image) {
  if (image.indexed == nullptr) return Name(image.components == 1 ? "/DeviceGray" : "/DeviceRGB");
  const auto& table = image.indexed->table;
  return writer_.AddSharedObject(QPDFObjectHandle::newArray(
      {Name("/Indexed"), Name("/DeviceRGB"), Integer(table.size() / 3 - 1),
       QPDFObjectHandle::newString(std::string(table.begin(), table.end()))}));
}

}  // namespace kelvane
