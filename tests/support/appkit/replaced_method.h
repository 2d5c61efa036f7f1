#pragma once

#include <stdexcept>

#include <objc/runtime.h>

namespace kelvane::test {

/// Another implementation of a class's method, for as long as the object lives.
/// @tparam Result, Arguments  of the method, `self` and the selector among the arguments.
template <class Result, class... Arguments>
class ReplacedMethod {
 public:
  using Implementation = Result (*)(Arguments...);

  /// Throws std::runtime_error when there is no such method.
  ReplacedMethod(const char* className, SEL selector, Implementation replacement)
      : method_(class_getInstanceMethod(objc_getClass(className), selector)) {
    if (method_ == nullptr) throw std::runtime_error("no such method");
    original_ = method_setImplementation(method_, CastTo<IMP>(replacement));
  }
  ReplacedMethod(const ReplacedMethod&) = delete;
  ReplacedMethod& operator=(const ReplacedMethod&) = delete;
  ~ReplacedMethod() { method_setImplementation(method_, original_); }

  [[nodiscard]] Implementation Original() const { return CastTo<Implementation>(original_); }

 private:
  // By way of the type that stands for any function.
  template <class To, class From>
  static To CastTo(From function) {
    return reinterpret_cast<To>(reinterpret_cast<void (*)()>(function));
  }

  Method method_;
  IMP original_ = nullptr;
};

}  // namespace kelvane::test
