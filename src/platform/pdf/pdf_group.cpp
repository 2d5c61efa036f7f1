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

QPDFObjectHandle AddMaskState(PdfWriter& writer, const QPDFObjectHandle& group) {
  auto mask = QPDFObjectHandle::newDictionary();
  mask.replaceKey("/S", QPDFObjectHandle::newName("/Luminosity"));
  mask.replaceKey("/G", group);
  auto state = QPDFObjectHandle::newDictionary();
  state.replaceKey("/SMask", mask);
  return writer.AddSharedObject(state);
}

}  // namespace kelvane
