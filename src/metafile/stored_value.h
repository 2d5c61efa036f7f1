#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <tuple>
#include <type_traits>

// The classic conversion has structures of its own by the same Windows names. The inline namespace
// keeps both apart in one library; whoever includes only one of them need not know.
namespace kelvane {
inline namespace metafile {

/// A number, stored little-endian in its own width.
template <class T>
concept StoredNumber = (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>) || std::is_enum_v<T>;

/// A structure whose Fields() is a tuple of references to its members, as stored, without gaps.
template <class T>
concept StoredStructure = requires(T value) {
  value.Fields();
};

/// The bytes that a T takes in a file.
template <class T>
inline constexpr std::size_t kStoredSize = sizeof(T);

template <class T, std::size_t count>
inline constexpr std::size_t kStoredSize<std::array<T, count>> = count* kStoredSize<T>;

template <class... Fields>
inline constexpr std::size_t kStoredSize<std::tuple<Fields&...>> = (kStoredSize<Fields> + ...);

template <StoredStructure T>
inline constexpr std::size_t kStoredSize<T> = kStoredSize<decltype(std::declval<T&>().Fields())>;

/// Reads a value of kStoredSize<T> bytes.
template <StoredNumber T>
constexpr void LoadStored(const unsigned char* at, T& value) {
  std::array<unsigned char, sizeof(T)> bytes{};
  std::copy_n(at, sizeof(T), bytes.begin());
  if constexpr (std::endian::native == std::endian::big) std::reverse(bytes.begin(), bytes.end());
  value = std::bit_cast<T>(bytes);
}

template <class T, std::size_t count>
constexpr void LoadStored(const unsigned char* at, std::array<T, count>& values) {
  for (T& value : values) {
    LoadStored(at, value);
    at += kStoredSize<T>;
  }
}

template <StoredStructure T>
constexpr void LoadStored(const unsigned char* at, T& structure) {
  const auto loadField = [&at](auto& field) {
    LoadStored(at, field);
    at += kStoredSize<std::remove_reference_t<decltype(field)>>;
  };
  std::apply([&](auto&... fields) { (loadField(fields), ...); }, structure.Fields());
}

}  // namespace metafile
}  // namespace kelvane
