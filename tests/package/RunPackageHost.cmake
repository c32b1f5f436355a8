# Installs the library from BUILD_DIR into WORK_DIR/prefix, configures and builds the host
# project SOURCE_DIR against the installed package, and runs it on the sample projects.
# cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -DPROJECTS_DIR=... [-DCONFIG=...] -P RunPackageHost.cmake
foreach(var BUILD_DIR SOURCE_DIR WORK_DIR PROJECTS_DIR)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "${var} is not set")
  endif()
endforeach()

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    string(REPLACE ";" " " command "${ARGN}")
    message(FATAL_ERROR "failed (${result}): ${command}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(config_args)
if(CONFIG)
  set(config_args --config ${CONFIG})
endif()
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix ${config_args})
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build ${config_args})

# The host copies the sample projects first: opening one records settings beside it.
file(COPY ${PROJECTS_DIR}/ DESTINATION ${WORK_DIR}/projects)
find_program(host qel_package_host PATHS ${WORK_DIR}/build ${WORK_DIR}/build/${CONFIG} NO_DEFAULT_PATH REQUIRED)
run(${host} ${WORK_DIR}/projects NorthSea)
file(REMOVE_RECURSE ${WORK_DIR})
