#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "metafile/emf/emf_header.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emfplus/emfplus_record_type.h"

namespace kelvane {

/// What can be said of an enhanced metafile without playing it.
struct MetafileInfo {
  EmfHeader header;                   // lives as long as the file's bytes
  std::size_t bytes = 0;              // of the file
  std::vector<std::u16string> fonts;  // the faces asked for, each once, in the order of the file

  std::size_t records = 0;                                // all of them
  std::array<std::size_t, kEmfRecordTypes> countOf = {};  // by EmfRecordType
  std::size_t unknownRecords = 0;                         // of no such type

  std::size_t emfPlusRecords = 0;
  std::array<std::size_t, kEmfPlusRecordTypes> emfPlusCountOf = {};  // by type, from the first on
  std::size_t unknownEmfPlusRecords = 0;                             // of no such type
  bool isDual = false;  // whether EMF has the whole picture beside EMF+, too

  EmfEnd end{};               // what ended the records
  std::size_t endOffset = 0;  // where that was, in bytes from the start of the file
};

/// @return nothing when the bytes do not begin with the header of an enhanced metafile.
std::optional<MetafileInfo> Inspect(std::span<const unsigned char> file);

}  // namespace kelvane
