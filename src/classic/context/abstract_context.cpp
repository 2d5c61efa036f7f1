#include "classic/context/abstract_context.h"

#include <utility>

namespace kelvane {

void AbstractContext::ModifyWorldTransform(std::int32_t mode, const XForm& transform) {
  switch (static_cast<TransformMode>(mode)) {
    case TransformMode::kIdentity:
      worldTransform = kIdentityTransform;
      break;
    case TransformMode::kLeftMultiply:
      worldTransform = CrossMultiply(transform, worldTransform);
      break;
    case TransformMode::kRightMultiply:
      worldTransform = CrossMultiply(worldTransform, transform);
      break;
    case TransformMode::kSet:
      SetWorldTransform(transform);
      break;
  }
}

void AbstractContext::RestoreState(std::int32_t /*relativeLevel*/) {
  if (savedTransforms.empty()) return;
  worldTransform = savedTransforms.back();
  savedTransforms.pop_back();
}

void AbstractContext::CreateObject(std::unique_ptr<Object> object, std::uint32_t index) {
  std::unique_ptr<Object>& entry = objects[index];
  Destroy(entry);
  entry = std::move(object);
}

void AbstractContext::DeleteObject(std::uint32_t index) {
  const auto entry = objects.find(index);
  if (entry != objects.end()) Destroy(entry->second);
}

bool AbstractContext::SelectObject(std::uint32_t index) {
  const auto entry = objects.find(index);
  if (entry == objects.end()) return false;
  currentObject = entry->second.get();
  return true;
}

void AbstractContext::CleanContext() {
  for (auto& [index, object] : objects)
    Destroy(object);
}

// A selection must not outlive its object.
void AbstractContext::Destroy(std::unique_ptr<Object>& entry) {
  if (entry && entry.get() == currentObject) currentObject = nullptr;
  entry.reset();
}

}  // namespace kelvane
