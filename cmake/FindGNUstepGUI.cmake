# GNUstep's AppKit, by its own gnustep-config. Gives the target GNUstep::GUI and the variable GNUstepGUI_FOUND.

find_program(GNUstepGUI_CONFIG gnustep-config)
mark_as_advanced(GNUstepGUI_CONFIG)
set(GNUstepGUI_HEADERS "")
set(GNUstepGUI_OPTIONS "")
if(GNUstepGUI_CONFIG)
  execute_process(COMMAND ${GNUstepGUI_CONFIG} --variable=GNUSTEP_SYSTEM_HEADERS
    OUTPUT_VARIABLE GNUstepGUI_HEADERS OUTPUT_STRIP_TRAILING_WHITESPACE)
  execute_process(COMMAND ${GNUstepGUI_CONFIG} --objc-flags
    OUTPUT_VARIABLE GNUstepGUI_OPTIONS OUTPUT_STRIP_TRAILING_WHITESPACE)
  separate_arguments(GNUstepGUI_OPTIONS UNIX_COMMAND "${GNUstepGUI_OPTIONS}")
  # What decides over the binary interface; warnings, optimisation and the folders of a user are no business of ours.
  list(FILTER GNUstepGUI_OPTIONS INCLUDE REGEX "^-(D|f|pthread)")
  list(FILTER GNUstepGUI_OPTIONS EXCLUDE REGEX "^-(DGSWARN|DGSDIAGNOSE|fPIC)$")
  list(REMOVE_DUPLICATES GNUstepGUI_OPTIONS)
endif()
find_path(GNUstepGUI_INCLUDE_DIR AppKit/NSPDFImageRep.h HINTS "${GNUstepGUI_HEADERS}")
find_library(GNUstepGUI_LIBRARY gnustep-gui)
find_library(GNUstepGUI_BASE_LIBRARY gnustep-base)
mark_as_advanced(GNUstepGUI_INCLUDE_DIR GNUstepGUI_LIBRARY GNUstepGUI_BASE_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(GNUstepGUI REQUIRED_VARS
  GNUstepGUI_LIBRARY GNUstepGUI_BASE_LIBRARY GNUstepGUI_INCLUDE_DIR GNUstepGUI_OPTIONS)

if(GNUstepGUI_FOUND AND NOT TARGET GNUstep::GUI)
  add_library(GNUstep::GUI INTERFACE IMPORTED)
  set_target_properties(GNUstep::GUI PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${GNUstepGUI_INCLUDE_DIR}"
    INTERFACE_COMPILE_OPTIONS "$<$<COMPILE_LANGUAGE:OBJCXX>:${GNUstepGUI_OPTIONS}>"
    INTERFACE_LINK_LIBRARIES "${GNUstepGUI_LIBRARY};${GNUstepGUI_BASE_LIBRARY};objc")
endif()
