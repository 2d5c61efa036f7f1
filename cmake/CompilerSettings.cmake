# How everything of ours is compiled. Those who build us get our warnings only when they ask for them.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

add_library(kelvane_settings INTERFACE)
# A product and a sum are rounded one by one, or pages would differ between processors.
target_compile_options(kelvane_settings INTERFACE -ffp-contract=off)
# What the sanitizers put between the lines makes GCC warn of the standard library's own code.
if(KELVANE_WARNINGS_AS_ERRORS AND NOT (KELVANE_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU"))
  target_compile_options(kelvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Werror)
  # Sources that are compiled together hide each other's names.
  target_compile_options(kelvane_settings INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wshadow>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 15)
  target_include_directories(kelvane_settings BEFORE INTERFACE ${CMAKE_CURRENT_LIST_DIR}/clang14)
endif()
if(KELVANE_SANITIZE)
  # Objective-C++ is always compiled by GCC, whose sanitizers do not go with those of another compiler.
  target_compile_options(kelvane_settings INTERFACE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-fsanitize=${KELVANE_SANITIZE};-fno-omit-frame-pointer;-fno-sanitize-recover=all>")
  set(KELVANE_SANITIZE_LINKING -fsanitize=${KELVANE_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Programs in C load the library, too.
    list(APPEND KELVANE_SANITIZE_LINKING -fsanitize-link-c++-runtime -lstdc++)
  endif()
  target_link_options(kelvane_settings INTERFACE ${KELVANE_SANITIZE_LINKING})
  target_compile_definitions(kelvane_settings INTERFACE KELVANE_SANITIZED)
endif()
if(KELVANE_COVERAGE)
  target_compile_options(kelvane_settings INTERFACE --coverage)
  target_link_options(kelvane_settings INTERFACE --coverage)
endif()

find_program(KELVANE_CCACHE ccache)
if(KELVANE_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${KELVANE_CCACHE})
endif()
