# house_library(NAME [DEPENDS other ...]) makes the static library of the folder src/NAME.
#
# A library sees its own headers and those of the libraries it names (and theirs below), nothing else: every
# folder is offered to the compiler through a folder of its own that holds one link to it, so an #include that
# reaches up or sideways is an error of the build, not a matter of taste.
function(house_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(${name} STATIC ${sources})
  set(window ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${window})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${window}/${name} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${window})
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE house_compiler)
endfunction()

# house_test(NAME SOURCES file ... [POSIX file ...] DEPENDS library ... [TIMEOUT seconds]) makes one test program and
# lists each of its cases with CTest. Files under POSIX fork, limit or kill processes as only such systems can; they
# are left out for Windows, where packaging/windows/check works the program instead of CTest.
function(house_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;POSIX;DEPENDS" ${ARGN})
  if(NOT WIN32)
    list(APPEND ARG_SOURCES ${ARG_POSIX})
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} GTest::gtest_main GTest::gtest house_compiler)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  if(WIN32)
    return()
  endif()
  gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT ${ARG_TIMEOUT})
endfunction()
