#include "platform/pdf/pdf_group.h"

#include "platform/pdf/pdf_number.h"

namespace kelvane {

QPDFObjectHandle AddGroup(PdfWriter& writer, std::string_view content,
                          const PdfResources& resources, const CGRect& box) {
  auto form = QPDFObjectHandle::newDictionary();
  form.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  form.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  form.replaceKey("/BBox", PdfBox(box));
  form.replaceKey("/Group",
                  QPDFObjectHandle::parse("<< /S /Transparency /CS /DeviceRGB /I true >>"));
  form.replaceKey("/Resources", resources.Dictionary());
  return writer.AddSharedStream(
      form, {reinterpret_cast<const unsigned char*>(content.data()), content.size()});
}

}  // namespace kelvane
