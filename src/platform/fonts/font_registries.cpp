#include "platform/fonts/font_registries.h"

#include <stdexcept>

#include "platform/fonts/fontconfig_catalog.h"

namespace kelvane {

FontRegistries& FontRegistries::Shared() {
  static auto* const kShared = new FontRegistries;  // threads may outlive static objects
  return *kShared;
}

FontRegistry& FontRegistries::For(const std::vector<std::string>& directories) {
  if (directories.empty()) return FontRegistry::Shared();
  const std::scoped_lock lock(mutex_);
  std::set<std::string> set(directories.begin(), directories.end());
  const auto known = registries_.find(set);
  if (known != registries_.end()) return *known->second;
  if (registries_.size() >= kMost) {
    throw std::runtime_error("fonts of more than " + std::to_string(kMost) +
                             " sets of directories in one process");
  }
  auto registry =
      std::make_unique<FontRegistry>([directories] { return OpenInstalledFonts(directories); });
  return *registries_.emplace(std::move(set), std::move(registry)).first->second;
}

}  // namespace kelvane
