#include "platform/pdf/pdf_resources.h"

namespace kelvane {

const std::string& PdfResources::NameOf(const QPDFObjectHandle& object,
                                        const PdfResourceKind& kind) {
  Names& names = names_[kind.category];
  const auto [entry, isNew] = names.try_emplace(object.getObjGen());
  if (isNew) {
    entry->second = kind.prefix + std::to_string(names.size());
    if (!dictionary_.hasKey(kind.category)) {
      dictionary_.replaceKey(kind.category, QPDFObjectHandle::newDictionary());
    }
    dictionary_.getKey(kind.category).replaceKey(entry->second, object);
  }
  return entry->second;
}

}  // namespace kelvane
