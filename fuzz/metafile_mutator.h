#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <span>
#include <vector>

#include "metafile_frames.h"

namespace kelvane::fuzz {

/// Changes metafiles record by record. Most of what it makes is framed as well as what it was
/// given, so that a change is met by the code that reads the record and not only by the code that
/// looks for the next one.
class MetafileMutator {
 public:
  /// Changes the first `size` of `capacity` bytes in some way of its own; returns the new size.
  using MutateBytes =
      std::function<std::size_t(unsigned char* bytes, std::size_t size, std::size_t capacity)>;

  /// @param seed  decides all that the mutator does, but for what `mutateBytes` does.
  MetafileMutator(std::uint32_t seed, MutateBytes mutateBytes);

  /// @return the metafile with one to four changes, at most `most` bytes.
  ByteVector Mutate(std::span<const unsigned char> metafile, std::size_t most);

  /// @return the first metafile with some of the other's records among its own.
  ByteVector Cross(std::span<const unsigned char> metafile, std::span<const unsigned char> other,
                   std::size_t most);

 private:
  std::size_t Below(std::size_t count);  // `count` at least 1
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  void Change(Frames& frames);
  void Insert(Frames& frames, const std::vector<ByteVector>& source);
  void Erase(Frames& frames);
  void Repeat(Frames& frames);
  void Swap(Frames& frames);
  void ChangeType(Frames& frames);
  void ChangeField(Frames& frames);
  void ChangeFloat(Frames& frames);
  void ChangeBytes(Frames& frames);
  void Resize(Frames& frames);
  void Misstate(Frames& frames);
  void ChangeHeader(Frames& frames);

  ByteVector* AnyRecord(Frames& frames);  // null when there is none
  std::size_t AnyPlace(const Frames& frames);
  std::size_t AnyOffset(const ByteVector& record);
  std::uint32_t AnyValue(std::uint32_t before);

  std::mt19937 random_;
  MutateBytes mutateBytes_;
};

/// A record of every kind that playback knows, to be put into other metafiles.
const std::vector<ByteVector>& RecordLibrary();

}  // namespace kelvane::fuzz
