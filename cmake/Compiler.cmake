# Warnings, sanitizers and the compiler cache, the same for every target of the house.

find_program(SEIKAHYOU_CCACHE ccache)
if(SEIKAHYOU_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${SEIKAHYOU_CCACHE})
endif()

add_library(house_compiler INTERFACE)
target_compile_options(house_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in every assignment of a literal to a std::string (GCC bug 105651).
  target_compile_options(house_compiler INTERFACE -Wno-restrict)
endif()
if(MINGW)
  # What runs on an operator's machine brings everything with it but the DLLs of Windows.
  target_link_options(house_compiler INTERFACE -static)
endif()
if(SEIKAHYOU_SANITIZE)
  target_compile_options(house_compiler INTERFACE
    -fsanitize=${SEIKAHYOU_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(house_compiler INTERFACE -fsanitize=${SEIKAHYOU_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC's own manual: instrumented code confuses its search for uninitialized values.
    target_compile_options(house_compiler INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(SEIKAHYOU_FUZZ)
  # Every library tells the fuzzer which roads an input has taken.
  target_compile_options(house_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()
