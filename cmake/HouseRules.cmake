# The rules of the house, as far as they can be read from its files. They are used by house_library() and, with the
# list of all libraries that it writes, by cmake/check_includes.cmake.

# house_find_includes(OUT file ...) gives what the files include, each as "FILE<INCLUDE".
function(house_find_includes out)
  set(found "")
  foreach(file ${ARGN})
    file(STRINGS ${file} lines REGEX "^[ \t]*#[ \t]*include[ \t]*[\"<]")
    foreach(line ${lines})
      string(REGEX REPLACE "^[^\"<]*[\"<]([^\">]*).*$" "\\1" include "${line}")
      list(APPEND found "${file}<${include}")
    endforeach()
  endforeach()
  set(${out} "${found}" PARENT_SCOPE)
endfunction()

# house_refuse_paths_up(file ...) stops where a file includes by a path that leads out of its library.
function(house_refuse_paths_up)
  house_find_includes(found ${ARGN})
  foreach(entry ${found})
    string(REGEX REPLACE "<.*" "" file "${entry}")
    string(REGEX REPLACE ".*<" "" include "${entry}")
    if("/${include}/" MATCHES "/\\.\\./")
      message(FATAL_ERROR "${file} includes \"${include}\": a file is included as FOLDER/FILE, "
                          "and its folder named under DEPENDS.")
    endif()
  endforeach()
endfunction()

# house_compare_includes(OUT name declared known file ...) compares what the files include with the libraries declared.
# `known`: the names of all libraries. The result is a list of complaints, empty where all is well: each library that is
# included must be declared, each that is declared must be included.
function(house_compare_includes out name declared known)
  house_find_includes(found ${ARGN})
  set(complaints "")
  set(included "")
  foreach(entry ${found})
    if(entry MATCHES "^(.*)<([^/]+)/" AND NOT CMAKE_MATCH_2 STREQUAL name AND CMAKE_MATCH_2 IN_LIST known)
      list(APPEND included ${CMAKE_MATCH_2})
      if(NOT CMAKE_MATCH_2 IN_LIST declared)
        list(APPEND complaints "${name} does not name ${CMAKE_MATCH_2}, which ${CMAKE_MATCH_1} includes")
      endif()
    endif()
  endforeach()
  foreach(other ${declared})
    if(NOT other IN_LIST included)
      list(APPEND complaints "${name} names ${other} and includes nothing of it")
    endif()
  endforeach()
  set(${out} "${complaints}" PARENT_SCOPE)
endfunction()
