# Configures the house in SOURCE and checks its include lines; one of both must fail, with MESSAGE.
file(REMOVE_RECURSE ${BINARY})
execute_process(
  COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BINARY} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER} -DHOUSE_CMAKE=${HOUSE_CMAKE}
  RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE words)
if(result EQUAL 0)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -DHOUSE=${BINARY}/house.txt -P ${HOUSE_CMAKE}/check_includes.cmake
    RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE words)
endif()
string(REGEX REPLACE "[ \n]+" " " words "${words}")  # long messages are broken into lines
string(FIND "${words}" "${MESSAGE}" place)
if(result EQUAL 0 OR place EQUAL -1)
  message(FATAL_ERROR "Expected: ${MESSAGE}\nStatus ${result}: ${words}")
endif()
