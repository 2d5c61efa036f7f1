#include <string>
#include <vector>

#include <libdeflate.h>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "base/deflater.h"
#include "conversion.h"
#include "inputs.h"
#include "report/goals.h"

namespace kelvane::bench {
namespace {

constexpr int kRuns = 7;

/// The pixels of the one image on the page, as they are before they are deflated.
std::string PixelsIn(const CFData& document) {
  QPDF pdf;
  pdf.processMemoryFile("document", reinterpret_cast<const char*>(document.bytes.data()),
                        document.bytes.size());
  QPDFObjectHandle page = pdf.getAllPages().at(0);
  for (const auto& [name, image] : page.getKey("/Resources").getKey("/XObject").getDictAsMap()) {
    const auto data = QPDFObjectHandle(image).getStreamData();
    return {reinterpret_cast<const char*>(data->getBuffer()), data->getSize()};
  }
  return {};
}

Finding AgainstDeflate() {
  const std::vector<unsigned char> metafile = Photo(4000, 3000);
  const std::string pixels = PixelsIn(*ConvertAsWindows(metafile));
  std::vector<unsigned char> room(pixels.size() * 2);
  libdeflate_compressor* compressor = libdeflate_alloc_compressor(Deflater::kQuick);
  const auto deflate = [&] {
    libdeflate_zlib_compress(compressor, pixels.data(), pixels.size(), room.data(), room.size());
  };
  const Series ratio = SideBySide([&] { ConvertAsWindows(metafile); }, deflate, kRuns);
  libdeflate_free_compressor(compressor);
  return {"whole conversion of a photo of 4,000 by 3,000 pixels : deflating them alone", ratio,
          kRuns, 1.5};
}

Finding GrowthWithStrips() {
  constexpr std::size_t kStrips = 10000;
  const std::vector<unsigned char> strips = Strips(kStrips);
  const std::vector<unsigned char> twice = Strips(2 * kStrips);
  return {"time of 20,000 strips of a picture : of 10,000",
          SideBySide([&] { ConvertAsWindows(twice); }, [&] { ConvertAsWindows(strips); }, kRuns),
          kRuns, 2.2};
}

}  // namespace

std::vector<Finding> Bitmaps() {
  return {AgainstDeflate(), GrowthWithStrips()};
}

}  // namespace kelvane::bench
