# cmake -DHOUSE=FILE -P cmake/check_includes.cmake
#
# Compares the include lines of every library with the libraries it declares. FILE is what the configuration has written:
# one library or program a line, as NAME|folder or file|declared declared ...
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/HouseRules.cmake)

file(STRINGS ${HOUSE} house)
set(known "")
foreach(entry ${house})
  string(REGEX REPLACE "[|].*" "" name "${entry}")
  list(APPEND known ${name})
endforeach()

set(all "")
foreach(entry ${house})
  if(NOT entry MATCHES "^([^|]*)[|]([^|]*)[|]([^|]*)$")
    message(FATAL_ERROR "${HOUSE}: ${entry}")
  endif()
  set(name ${CMAKE_MATCH_1})
  set(files "${CMAKE_MATCH_2}")
  string(REPLACE " " ";" declared "${CMAKE_MATCH_3}")
  if(IS_DIRECTORY "${files}")
    file(GLOB files "${files}/*.cpp" "${files}/*.h")
  endif()
  house_compare_includes(complaints ${name} "${declared}" "${known}" ${files})
  list(APPEND all ${complaints})
endforeach()

if(all)
  string(REPLACE ";" "\n" text "${all}")
  message(FATAL_ERROR "${text}")
endif()
list(LENGTH known count)
message(STATUS "${count} libraries and programs name what they include.")
