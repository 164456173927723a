# The warnings that the project's own code is built with.

option(TACTIX_WERROR "Treat warnings as errors" OFF)

add_library(tactix_warnings INTERFACE)
target_compile_options(tactix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Woverloaded-virtual
  -Wnon-virtual-dtor $<$<BOOL:${TACTIX_WERROR}>:-Werror>)

# GCC 12 takes a literal plus a temporary std::string for an overlapping copy when it optimises (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tactix_warnings INTERFACE -Wno-restrict)
endif()

function(tactix_use_warnings target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tactix_warnings>)
endfunction()
