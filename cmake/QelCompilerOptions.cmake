# Warnings and sanitizers shared by every target of the project.
if(MSVC)
  add_compile_options(/W4 /permissive- /utf-8)
else()
  add_compile_options(-Wall -Wextra -Wpedantic)
endif()

if(QEL_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "QEL_BUILD_FUZZERS needs clang (libFuzzer), e.g. CXX=clang++-14; this is ${CMAKE_CXX_COMPILER_ID}")
  endif()
  if(NOT QEL_SANITIZE STREQUAL "")
    message(FATAL_ERROR "QEL_BUILD_FUZZERS brings its own sanitizers; leave QEL_SANITIZE empty")
  endif()
  # Coverage and sanitizers in every library, so that the fuzzers see inside them; only the
  # harnesses link libFuzzer's driver (fuzz/CMakeLists.txt).
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

if(QEL_SANITIZE STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
elseif(QEL_SANITIZE STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(NOT QEL_SANITIZE STREQUAL "")
  message(FATAL_ERROR "QEL_SANITIZE must be empty, 'address' or 'thread', not '${QEL_SANITIZE}'")
endif()
