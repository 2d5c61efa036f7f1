#pragma once

namespace kelvane {

/// The functions of a library that is loaded when it is needed, as long as all that were asked for
/// are there. It is never unloaded: threads may still be using it when a process ends.
class LoadedFunctions {
 public:
  /// @param library  its file's name.
  explicit LoadedFunctions(const char* library);

  /// @param function  null when it is not there.
  template <class Function>
  void Get(Function& function, const char* name) {
    function = reinterpret_cast<Function>(Find(name));
    areAllThere_ = areAllThere_ && function != nullptr;
  }

  [[nodiscard]] bool AreAllThere() const { return areAllThere_; }

 private:
  void* Find(const char* name) const;

  void* library_;  // null when it is not installed
  bool areAllThere_ = true;
};

}  // namespace kelvane
