# Debian packages of what is installed: one a component.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Kelvane developers <kelvane@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package begins with its own
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development converter)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE kelvane)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0kelvane1)  # older than what a distribution makes of the same version
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libkelvane${KELVANE_ABI})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
# Loaded, not linked, so that nothing else would find them: what text and bitmaps need, and what only PNG and TIFF do.
set(KELVANE_LOADED_LIBRARIES "libharfbuzz0b (>= 6.0), libharfbuzz-subset0 (>= 6.0), libfontconfig1 (>= 2.14), \
libfribidi0, libbrotli1, libpng16-16, libgif7")
set(KELVANE_LIBRARIES_OF_PICTURES "libcairo2, libtiff6")
# The fonts that stand in for those of Windows.
set(KELVANE_FONTS "fonts-liberation, fonts-crosextra-carlito, fonts-crosextra-caladea, fonts-dejavu-core, fonts-urw-base35")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS "${KELVANE_LIBRARIES_OF_PICTURES}, ${KELVANE_FONTS}")
set(CPACK_KELVANE_LOADED_LIBRARIES "${KELVANE_LOADED_LIBRARIES}")
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "library that turns Windows metafiles into PDF, SVG and PNG
A call turns a metafile (EMF, EMF+ or WMF) in memory into a document that looks
as Windows shows it, and reports what that lacks. Lines stay vectors, and text
stays text that can be searched and copied. Input is not trusted: whatever it
is, there is a document or an error.

This package contains the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkelvane-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Windows metafiles to PDF, SVG and PNG - development files
A call turns a metafile (EMF, EMF+ or WMF) in memory into a document that looks
as Windows shows it.

This package contains the header, which is C, and what pkg-config and CMake
need to build programs that use the library.")

set(CPACK_DEBIAN_CONVERTER_PACKAGE_NAME kelvane)
set(CPACK_DEBIAN_CONVERTER_PACKAGE_SECTION graphics)
set(CPACK_COMPONENT_CONVERTER_DESCRIPTION "turn Windows metafiles into PDF, SVG and PNG
The tool kelvane makes pages that look as Windows shows a metafile (EMF, EMF+,
WMF), of many files at once, and reports what it left out. Lines stay vectors,
and text stays text that can be searched and copied. The tool kelvaneConverter
makes simpler pages, and only PDF. Both are made for build pipelines, TeX and
document servers, and for files nobody vouches for.")

set(CPACK_KELVANE_ABI ${KELVANE_ABI})
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/../packaging/finish_staging.cmake)
include(CPack)
