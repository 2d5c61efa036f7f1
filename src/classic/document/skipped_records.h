#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "classic/playable/record.h"

namespace kelvane {

/// A record of a type that playback does not know. Skipped by its declared size.
class UnrecognizedRecord final : public Record {
 public:
  explicit UnrecognizedRecord(std::uint32_t recordType) : type(recordType) {}

  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& reader) override;

  const std::uint32_t type;
};

/// A record of a type that playback knows and leaves out on purpose.
class RecognizedButIgnoredRecord final : public Record {
 public:
  explicit RecognizedButIgnoredRecord(std::string recordName) : name(std::move(recordName)) {}

  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& /*reader*/) override {}

  const std::string name;  // of the type, "EMR_…"
};

}  // namespace kelvane
