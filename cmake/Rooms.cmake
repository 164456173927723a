# A room is a folder, and every source file in it is built.

function(tactix_glob result)
  file(GLOB found CONFIGURE_DEPENDS LIST_DIRECTORIES false ${ARGN})
  set(${result} ${found} PARENT_SCOPE)
endfunction()

function(tactix_glob_tree result)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS LIST_DIRECTORIES false ${ARGN})
  set(${result} ${found} PARENT_SCOPE)
endfunction()

# Building a precompiled header takes seconds, so it is worth it only for a target with many sources.
function(tactix_precompile target)
  if(TACTIX_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND TACTIX_CCACHE)
      target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
  endif()
endfunction()

# Headers with Q_OBJECT must be among the sources: moc finds only those that lie beside a source of the same name.
function(tactix_use_qt target)
  set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON AUTOUIC ON)
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS)
  target_link_libraries(${target} PRIVATE Qt6::Widgets)
endfunction()

# A shared library must be linked with everything it needs, except under a sanitizer, whose runtime is in the program
# only.
function(tactix_use_export target)
  string(TOUPPER ${target} prefix)
  if(BUILD_SHARED_LIBS)
    target_compile_definitions(${target} PRIVATE ${prefix}_BUILDING)
    if(UNIX AND NOT APPLE AND NOT TACTIX_SANITIZE)
      target_link_options(${target} PRIVATE LINKER:-z,defs)
    endif()
  else()
    target_compile_definitions(${target} PUBLIC ${prefix}_STATIC)
  endif()
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

# Turns a text file into a source that defines `std::string_view function()` in the given namespace.
function(tactix_embed_text target input function)
  get_filename_component(stem ${input} NAME_WE)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/Embedded${stem}.cpp)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -D INPUT=${input} -D OUTPUT=${output} -D FUNCTION=${function}
            -P ${PROJECT_SOURCE_DIR}/cmake/EmbedText.cmake
    DEPENDS ${input} ${PROJECT_SOURCE_DIR}/cmake/EmbedText.cmake
    COMMENT "Embedding ${stem}"
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()
