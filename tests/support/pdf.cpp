#include "support/pdf.h"

#include <utility>

#include <qpdf/QPDFPageObjectHelper.hh>

#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {

Pdf::Pdf(std::string bytes) : bytes_(std::move(bytes)), document_(std::make_unique<QPDF>()) {
  document_->processMemoryFile("pdf", bytes_.data(), bytes_.size());
}

std::size_t Pdf::PageCount() const {
  return document_->getAllPages().size();
}

QPDFObjectHandle Pdf::Page(std::size_t index) const {
  return document_->getAllPages().at(index);
}

std::string Pdf::MediaBox(std::size_t index) const {
  return Page(index).getKey("/MediaBox").unparse();
}

std::string Pdf::Content(std::size_t index) const {
  std::string content;
  for (QPDFObjectHandle& stream : Page(index).getPageContents()) {
    const auto data = stream.getStreamData(qpdf_dl_all);
    content.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
  }
  return content;
}

namespace {

class OperationCollector final : public QPDFObjectHandle::ParserCallbacks {
 public:
  void handleObject(QPDFObjectHandle object) override {
    if (!object.isOperator()) {
      operands_ += ' ' + object.unparse();
      return;
    }
    operations.push_back({object.getOperatorValue(), std::exchange(operands_, {})});
  }
  void handleEOF() override {}

  std::vector<Operation> operations;

 private:
  std::string operands_;
};

}  // namespace

std::vector<Operation> Pdf::Operations(std::size_t index) const {
  OperationCollector collector;
  Page(index).parsePageContents(&collector);
  return std::move(collector.operations);
}

std::vector<std::vector<unsigned char>> Pdf::Images(std::size_t index) const {
  std::vector<std::vector<unsigned char>> images;
  for (auto& [name, image] : QPDFPageObjectHelper(Page(index)).getImages()) {
    const auto pixels = image.getStreamData(qpdf_dl_all);
    images.emplace_back(pixels->getBuffer(), pixels->getBuffer() + pixels->getSize());
  }
  return images;
}

std::string ComplaintsAbout(const std::string& pdfPath) {
  const ProcessResult result = Run({"qpdf", "--check", pdfPath});
  return result.status == 0 ? "" : result.output;
}

std::string TextIn(const std::string& pdfBytes) {
  const TemporaryFolder folder;
  WriteFile(folder / "text.pdf", pdfBytes);
  std::string text = Run({"pdftotext", "-raw", folder / "text.pdf", "-"}).output;
  while (text.ends_with('\n') || text.ends_with('\f'))
    text.pop_back();
  return text;
}

std::string FontsIn(const std::string& pdfBytes) {
  const TemporaryFolder folder;
  WriteFile(folder / "text.pdf", pdfBytes);
  return Run({"pdffonts", folder / "text.pdf"}).output;
}

}  // namespace kelvane::test
