#include <cstddef>
#include <string>
#include <vector>

#include "conversion.h"
#include "inputs.h"
#include "report/deflate_alone.h"
#include "report/goals.h"
#include "report/png_data_alone.h"

namespace kelvane::bench {
namespace {

using Metafile = std::vector<unsigned char>;

constexpr int kFormatRuns = 7;
constexpr std::size_t kSize = 10'000'000;

Finding AgainstDeflate(const std::string& what, const Metafile& metafile, std::string_view format,
                       DeflateAlone alone) {
  return {what,
          SideBySide([&] { ConvertAsWindowsTo(format, metafile); }, [&] { alone.Deflate(); },
                     kFormatRuns),
          kFormatRuns, 2};
}

Finding ToPdf(const std::string& name, const Metafile& metafile) {
  return AgainstDeflate("10 MB of polylines of " + name + " to PDF : deflating its content alone",
                        metafile, "pdf", DeflateAlone(ContentOf(*ConvertAsWindows(metafile))));
}

std::string BytesOf(const CFData& document) {
  return {document.bytes.begin(), document.bytes.end()};
}

Finding ToSvg(const Metafile& metafile) {
  return AgainstDeflate("the same to SVG : deflating that alone", metafile, "svg",
                        DeflateAlone({BytesOf(*ConvertAsWindowsTo("svg", metafile))}));
}

Finding ToPng() {
  const Metafile photo = Photo(2000, 1500);
  PngDataAlone alone(BytesOf(*ConvertAsWindowsTo("png", photo)));
  return {
      "a photo of 2,000 by 1,500 pixels to PNG : deflating the rows of the PNG alone",
      SideBySide([&] { ConvertAsWindowsTo("png", photo); }, [&] { alone.Deflate(); }, kFormatRuns),
      kFormatRuns, 2};
}

}  // namespace

std::vector<Finding> FormatsAndOutputs() {
  std::vector<Finding> findings;
  const struct {
    const char* name;
    Metafile (*make)(std::size_t bytes);
  } formats[] = {{"EMF", PointLists}, {"EMF+", PointListsOfEmfPlus}, {"WMF", PointListsOfWmf}};
  for (const auto& [name, make] : formats) {
    const Metafile metafile = make(kSize);
    findings.push_back(ToPdf(name, metafile));
    findings.push_back(ToSvg(metafile));
  }
  findings.push_back(ToPng());
  return findings;
}

}  // namespace kelvane::bench
