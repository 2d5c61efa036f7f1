#include "players/record_id.h"

#include "metafile/container/spool_records.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emfplus/emfplus_record_type.h"
#include "metafile/wmf/wmf_record_type.h"

namespace kelvane {

std::string_view NameOf(const RecordId& record) {
  switch (record.format) {
    case RecordFormat::kEmf:
      return RecordName(record.type);
    case RecordFormat::kEmfPlus:
      return EmfPlusRecordName(record.type);
    case RecordFormat::kWmf:
      return WmfRecordName(static_cast<std::uint16_t>(record.type));
    case RecordFormat::kSpool:
      return SpoolRecordName(record.type);
  }
  return {};
}

}  // namespace kelvane
