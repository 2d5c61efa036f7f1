#pragma once

#include <cstddef>

#include "frontends/inspection/field_writer.h"
#include "metafile/emfplus/emfplus_object.h"

namespace kelvane {

/// Writes a line for each EMF+ record of a metafile.
class EmfPlusDump {
 public:
  /// @param fields  borrowed; between two lines.
  explicit EmfPlusDump(FieldWriter& fields) : fields_(fields) {}

  /// Adds the records of a comment, when it is one of EMF+.
  /// @param offset  of the comment's record. @param record  that record, read to behind its size.
  void AddComment(std::size_t offset, ByteView record);

 private:
  void AddRecord(const EmfPlusRecord& record);
  void AddObject(const EmfPlusRecord& record);

  FieldWriter& fields_;
  EmfPlusObjectAssembler objects_;
};

}  // namespace kelvane
