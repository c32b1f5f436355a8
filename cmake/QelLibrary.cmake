# qel_library(target HEADER_DIR dir): the common set-up of every shared library of the project.
# - an export header <dir>/<target>Export.h with <TARGET>_EXPORT, generated into the build tree;
# - hidden visibility, so that a class or function without the export macro fails to link here
#   and not first on Windows;
# - include folders for the build tree and for the installed package;
# - the version, and the install rules for the library and its public headers (the headers of
#   the library's source folder, keeping its sub-folders, below include/<dir>).
include(GenerateExportHeader)
include(GNUInstallDirs)

set(QEL_GENERATED_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)

# A shared library or plugin must resolve every symbol it uses when it is linked, as on
# Windows; sanitizer builds leave their runtime's symbols to the program.
function(qel_no_undefined_symbols target)
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND QEL_SANITIZE STREQUAL "" AND NOT QEL_BUILD_FUZZERS)
    target_link_options(${target} PRIVATE LINKER:--no-undefined)
  endif()
endfunction()

function(qel_library target)
  cmake_parse_arguments(ARG "" "HEADER_DIR;SOURCE_ROOT" "" ${ARGN})
  generate_export_header(${target}
    BASE_NAME ${target}
    EXPORT_FILE_NAME ${QEL_GENERATED_INCLUDE_DIR}/${ARG_HEADER_DIR}/${target}Export.h)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    EXPORT_NAME ${target}
    LINKER_LANGUAGE CXX)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${ARG_SOURCE_ROOT}>
    $<BUILD_INTERFACE:${QEL_GENERATED_INCLUDE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  qel_no_undefined_symbols(${target})
  add_library(QelMfc0::${target} ALIAS ${target})

  install(TARGETS ${target} EXPORT QelMfc0Targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY ${ARG_SOURCE_ROOT}/${ARG_HEADER_DIR}/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ARG_HEADER_DIR}
    FILES_MATCHING PATTERN "*.h"
    PATTERN "designer" EXCLUDE)
  install(FILES ${QEL_GENERATED_INCLUDE_DIR}/${ARG_HEADER_DIR}/${target}Export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ARG_HEADER_DIR})
endfunction()
