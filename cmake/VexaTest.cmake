# GoogleTest is built from Debian's sources with the tests' own compiler, so that it serves native and Windows programs.
if(VEXA_TESTS)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  set(gtest_disable_pthreads ${WIN32} CACHE BOOL "" FORCE)
  if(WIN32)
    # The win32-threads flavour of MinGW-w64 lacks what one part of GoogleTest needs; a header of this folder, which must
    # come before GoogleTest's own, replaces that part.
    include_directories(BEFORE ${CMAKE_SOURCE_DIR}/tests/support/mingw)
  endif()
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()

# One test program a folder of src/. SOURCES are its files, DEPENDS the libraries under test.
function(vexa_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} vexa_test_support gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# Compiles files of cases into a test program, so that it needs no files beside it on any platform: OUTPUT, which the
# program includes, holds a row with topic and content for each.
function(vexa_embed_cases target output pattern)
  file(GLOB case_files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${pattern})
  set(embedded "")
  foreach(case_file ${case_files})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${case_file})
    get_filename_component(topic ${case_file} NAME_WE)
    file(READ ${case_file} content)
    string(APPEND embedded "{\"${topic}\", R\"CASES(${content})CASES\"},\n")
  endforeach()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${output} CONTENT "@embedded@" @ONLY)
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
