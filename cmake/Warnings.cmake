# The one place that says which warnings the project's own code is held to.

option(TACTIX_WERROR "Treat warnings as errors" OFF)

add_library(tactix_warnings INTERFACE)
target_compile_options(tactix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Woverloaded-virtual
  -Wnon-virtual-dtor $<$<BOOL:${TACTIX_WERROR}>:-Werror>)

function(tactix_use_warnings target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tactix_warnings>)
endfunction()
