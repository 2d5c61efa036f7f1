#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>

namespace kelvane {

/// A library that is loaded with the first call of one of its functions: a process that never calls
/// one is spared the loading. It is never unloaded: threads may still be using it when a process
/// ends.
class LateLibrary {
 public:
  /// @param file  its file's name, as the loader searches it; stays the caller's.
  constexpr explicit LateLibrary(const char* file) : file_(file) {}

  /// @return a function of it; loads it if need be. For any number of threads.
  /// @throw std::runtime_error  the library, or the function, is not there; says which.
  void* Find(const char* function);

  /// @return whether it is installed; loads it if need be.
  bool IsThere() { return Load() != nullptr; }

 private:
  void* Load();

  const char* file_;
  std::atomic<void*> handle_ = nullptr;
};

/// A function's name as a parameter of a template.
template <std::size_t size>
struct FunctionName {
  // NOLINTNEXTLINE(google-explicit-constructor): from a literal
  constexpr FunctionName(const char (&literal)[size]) { std::copy_n(literal, size, text); }

  char text[size];
};

/// Where a function of such a library is, from its first call on.
template <LateLibrary& library, FunctionName name, class Pointer>
class LateAddress {
 protected:
  static Pointer Get() {
    const Pointer function = found_.load(std::memory_order_acquire);
    return function != nullptr ? function : Find();
  }

 private:
  static Pointer Find() {
    const auto function = reinterpret_cast<Pointer>(library.Find(name.text));
    found_.store(function, std::memory_order_release);
    return function;
  }

  static inline std::atomic<Pointer> found_ = nullptr;
};

/// A function of such a library. Its first call throws std::runtime_error where it is not there.
template <LateLibrary& library, FunctionName name, class Pointer>
class LateFunction;

template <LateLibrary& library, FunctionName name, class Result, class... Arguments>
class LateFunction<library, name, Result (*)(Arguments...)>
    : LateAddress<library, name, Result (*)(Arguments...)> {
 public:
  Result operator()(Arguments... arguments) const { return this->Get()(arguments...); }
};

template <LateLibrary& library, FunctionName name, class Result, class... Arguments>
class LateFunction<library, name, Result (*)(Arguments..., ...)>
    : LateAddress<library, name, Result (*)(Arguments..., ...)> {
 public:
  template <class... More>
  Result operator()(Arguments... arguments, More... more) const {
    return this->Get()(arguments..., more...);
  }
};

// Only their types are used: those of pointers to functions, without the attributes that a header
// gives these.
template <class Result, class... Arguments>
auto PointerTo(Result (*function)(Arguments...)) -> Result (*)(Arguments...);
template <class Result, class... Arguments>
auto PointerTo(Result (*function)(Arguments..., ...)) -> Result (*)(Arguments..., ...);

// In a namespace, a function of C under its own name, which hides the one that would be linked.
// NOLINTBEGIN(bugprone-macro-parentheses): these are names
#define KELVANE_LATE_FUNCTION(library, function) \
  inline constexpr LateFunction<library, #function, decltype(PointerTo(::function))> function{};
// NOLINTEND(bugprone-macro-parentheses)

}  // namespace kelvane
