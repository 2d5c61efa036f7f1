# Run by CPack after it has installed each component into a folder of its own: adds what Debian wants in a package, and
# finds out what the programs in it depend on. CPack would do the latter, but also call ldconfig from scripts.

set(source ${CMAKE_CURRENT_LIST_DIR})
set(work ${CPACK_TEMPORARY_DIRECTORY}/work)
file(MAKE_DIRECTORY ${work}/debian)
file(TOUCH ${work}/debian/control)

# Runs a program in the work folder and leaves what it printed in `output`.
function(kelvane_run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${work} COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE)
  set(output "${output}" PARENT_SCOPE)
endfunction()

# The name and the time of the file stay out, so that the same input gives the same bytes.
function(kelvane_compress file compressed)
  execute_process(COMMAND gzip -9nc ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${source}/changelog.in ${work}/changelog @ONLY)
foreach(component IN ITEMS LIBRARY DEVELOPMENT CONVERTER)
  string(TOLOWER ${component} folder)
  set(documents ${CPACK_TEMPORARY_DIRECTORY}/${folder}/usr/share/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME})
  file(COPY ${source}/copyright DESTINATION ${documents})
  kelvane_compress(${source}/../CHANGELOG.md ${documents}/changelog.gz)
  kelvane_compress(${work}/changelog ${documents}/changelog.Debian.gz)
endforeach()

file(GLOB pages ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man*/*)
foreach(page IN LISTS pages)
  kelvane_compress(${page} ${page}.gz)
  file(REMOVE ${page})
endforeach()

file(GLOB library ${CPACK_TEMPORARY_DIRECTORY}/library/usr/lib/*/libkelvane.so.${CPACK_PACKAGE_VERSION})
file(GLOB converter ${CPACK_TEMPORARY_DIRECTORY}/converter/usr/bin/*)

# Fails when the library exports more or less than the list says.
configure_file(${source}/symbols.in ${work}/symbols.in @ONLY)
kelvane_run(dpkg-gensymbols -c4 -p${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} -v${CPACK_PACKAGE_VERSION}
  -P${CPACK_TEMPORARY_DIRECTORY}/library -e${library} -I${work}/symbols.in -O${work}/symbols)

set(shlibs ${work}/shlibs)
file(WRITE ${shlibs} "libkelvane ${CPACK_KELVANE_ABI} \
${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (>= ${CPACK_PACKAGE_VERSION})\n")
cmake_path(GET library PARENT_PATH library_folder)
foreach(component IN ITEMS library converter)
  set(mark ${CPACK_TEMPORARY_DIRECTORY}/${component}/DEBIAN)  # by which dpkg-shlibdeps knows the root of a package
  file(MAKE_DIRECTORY ${mark})
  kelvane_run(dpkg-shlibdeps -O -L${shlibs} -l${library_folder} ${${component}})
  string(TOUPPER ${component} COMPONENT)
  string(REGEX REPLACE "^shlibs:Depends=" "" CPACK_DEBIAN_${COMPONENT}_PACKAGE_DEPENDS "${output}")
  file(REMOVE_RECURSE ${mark})
endforeach()
string(APPEND CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS ", ${CPACK_KELVANE_LOADED_LIBRARIES}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (= ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${work}/symbols ${shlibs} ${source}/triggers)
