// Every record of a metafile, decoded and read to its last element.

#include "metafile/emf/emf_record_iterator.h"
#include "support/emf_decoders.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  [[maybe_unused]] static volatile std::size_t sum = 0;
  kelvane::EmfRecordIterator records({data, size});
  while (auto record = records.Next())
    sum = kelvane::test::DecodeEmfRecord(record->type, record->bytes);
  return records.Offset() <= size ? 0 : 1;
}
