include(${CMAKE_CURRENT_LIST_DIR}/HouseRules.cmake)

# Every library and program of the house with its files and what it declares, for the check of include lines.
set(HOUSE_LIST ${CMAKE_BINARY_DIR}/house.txt)
file(WRITE ${HOUSE_LIST} "")

# house_library(NAME [CALCULATION] [DEPENDS other ...]) makes the static library of the folder src/NAME.
#
# A library sees its own headers and those of the libraries it names (and theirs below), nothing else: every
# folder is offered to the compiler through a folder of its own that holds one link to it, so an #include that
# reaches up or sideways is an error of the build, not a matter of taste. The configuration stops where a library names
# one that does not stand yet (the house is built from the ground up, so nothing can go round in a circle), where one of the
# calculations names another, and where a file includes by a path that leads out of its folder. The test house.includes
# compares what is included with what is declared.
function(house_library name)
  cmake_parse_arguments(ARG "CALCULATION" "" "DEPENDS" ${ARGN})
  house_check_dependencies(${name} "${ARG_CALCULATION}" ${ARG_DEPENDS})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  house_refuse_paths_up(${sources})
  add_library(${name} STATIC ${sources})
  if(ARG_CALCULATION)
    set_property(GLOBAL APPEND PROPERTY HOUSE_CALCULATIONS ${name})
  endif()
  set(window ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${window})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${window}/${name} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${window})
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE house_compiler)
  house_enter(${name} ${CMAKE_CURRENT_SOURCE_DIR} ${ARG_DEPENDS})
endfunction()

# house_check_dependencies(NAME CALCULATION other ...) stops where `name` may not depend on one of the others.
function(house_check_dependencies name calculation)
  get_property(calculations GLOBAL PROPERTY HOUSE_CALCULATIONS)
  foreach(other ${ARGN})
    if(NOT TARGET ${other})
      message(FATAL_ERROR "${name} names ${other}, which does not stand yet: "
                          "a library names only libraries below it in src/CMakeLists.txt.")
    endif()
    if(calculation AND other IN_LIST calculations)
      message(FATAL_ERROR "${name} names ${other}: calculations do not see each other. "
                          "What they share moves to a floor below them.")
    endif()
  endforeach()
endfunction()

# house_enter(NAME PLACE other ...) puts a library or program on the list for the check of include lines. PLACE: its
# folder, or its one file.
function(house_enter name place)
  list(JOIN ARGN " " declared)
  file(APPEND ${HOUSE_LIST} "${name}|${place}|${declared}\n")
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
