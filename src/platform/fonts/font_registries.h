#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "platform/fonts/font_registry.h"

namespace kelvane {

/// Registries of the installed fonts and those in directories of a user's, one for each set of
/// directories. Used by any thread.
class FontRegistries {
 public:
  /// What a registry hands out may be in use for as long as there is the registry, so none is given
  /// up for another.
  static constexpr std::size_t kMost = 64;

  /// @return those of this process, which live until its end.
  static FontRegistries& Shared();

  /// @param directories  absolute paths, in any order; what is in them and below is preferred to
  ///                     what is installed. With none it is the registry of the process.
  /// @return a registry that lives as long as this object. Throws std::runtime_error rather than
  ///         make one too many.
  FontRegistry& For(const std::vector<std::string>& directories);

 private:
  std::mutex mutex_;
  std::map<std::set<std::string>, std::unique_ptr<FontRegistry>> registries_;
};

}  // namespace kelvane
