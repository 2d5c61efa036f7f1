# kelvane_headers(TARGET BASE_DIR headers...)
# Whoever links TARGET finds its headers below BASE_DIR. KELVANE_CHECK_HEADERS lets the target
# all_verify_interface_header_sets compile each of them alone.
function(kelvane_headers target base_dir)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${base_dir} FILES ${ARGN})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ${KELVANE_CHECK_HEADERS})
endfunction()
