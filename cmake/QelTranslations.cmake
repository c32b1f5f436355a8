# qel_add_translations(target TS_FILES ts... SOURCE_DIRS dir... RESOURCE_PREFIX prefix)
#
# The translations of a target. Every build first refreshes the .ts files from the C++ sources
# below SOURCE_DIRS with lupdate: a text added to the code appears in them as unfinished, a text
# gone from the code is dropped (-no-obsolete), and no source locations are written, so that
# the files in git change only where a text changed. lupdate writes into a copy in the build
# tree; the .ts file in the source tree is replaced only when its content differs. lrelease
# then turns each .ts file into a .qm file, embedded in the target under RESOURCE_PREFIX.
#
# With QEL_LUPDATE_ON_BUILD=OFF (a read-only source tree, a packaging build) the .qm files are
# made from the .ts files as they are.
#
# The target gets two properties for the translation tests: QEL_LUPDATE_LIST, the lupdate list
# file (include folders and sources), and QEL_TS_FILES, the absolute .ts paths.
option(QEL_LUPDATE_ON_BUILD "Refresh the .ts translation sources from the code during the build" ON)

function(qel_add_translations target)
  cmake_parse_arguments(ARG "" "RESOURCE_PREFIX" "TS_FILES;SOURCE_DIRS" ${ARGN})
  set(work_dir ${CMAKE_CURRENT_BINARY_DIR}/.lupdate)
  file(MAKE_DIRECTORY ${work_dir})

  set(sources "")
  foreach(dir IN LISTS ARG_SOURCE_DIRS)
    get_filename_component(dir ${dir} ABSOLUTE)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${dir}/*.cpp ${dir}/*.h)
    list(APPEND sources ${found})
  endforeach()
  list(REMOVE_DUPLICATES sources)
  list(SORT sources)

  # Includes written the way the code writes them ("QelMfc0/colour/ColorMap.h", "QelBase/...",
  # "pages/EntryPage.h") let lupdate find each class's declaration and so its translation context.
  set(list_text "-I${PROJECT_SOURCE_DIR}\n-I${PROJECT_SOURCE_DIR}/suite\n")
  foreach(dir IN LISTS ARG_SOURCE_DIRS)
    get_filename_component(dir ${dir} ABSOLUTE)
    string(APPEND list_text "-I${dir}\n")
  endforeach()
  foreach(source IN LISTS sources)
    string(APPEND list_text "${source}\n")
  endforeach()
  set(list_file ${work_dir}/${target}_sources.lst)
  file(CONFIGURE OUTPUT ${list_file} CONTENT "${list_text}" @ONLY)

  set(qm_files "")
  set(ts_paths "")
  foreach(ts IN LISTS ARG_TS_FILES)
    get_filename_component(ts_abs ${ts} ABSOLUTE)
    get_filename_component(ts_name ${ts} NAME_WE)
    list(APPEND ts_paths ${ts_abs})
    set(qm ${CMAKE_CURRENT_BINARY_DIR}/${ts_name}.qm)
    set(qm_depends ${ts_abs})
    if(QEL_LUPDATE_ON_BUILD)
      set(work_ts ${work_dir}/${ts_name}.ts)
      set(stamp ${work_ts}.stamp)
      add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E copy ${ts_abs} ${work_ts}
        COMMAND Qt6::lupdate -silent -no-obsolete -locations none @${list_file} -ts ${work_ts}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${work_ts} ${ts_abs}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${sources} ${ts_abs} ${list_file} Qt6::lupdate
        COMMENT "Refreshing ${ts_name}.ts from the sources"
        VERBATIM)
      list(APPEND qm_depends ${stamp})
    endif()
    add_custom_command(OUTPUT ${qm}
      COMMAND Qt6::lrelease -silent ${ts_abs} -qm ${qm}
      DEPENDS ${qm_depends} Qt6::lrelease
      COMMENT "Compiling ${ts_name}.qm"
      VERBATIM)
    list(APPEND qm_files ${qm})
  endforeach()

  qt_add_resources(${target} ${target}_translations
    PREFIX ${ARG_RESOURCE_PREFIX}
    BASE ${CMAKE_CURRENT_BINARY_DIR}
    FILES ${qm_files})
  set_target_properties(${target} PROPERTIES
    QEL_LUPDATE_LIST ${list_file}
    QEL_TS_FILES "${ts_paths}")
endfunction()
