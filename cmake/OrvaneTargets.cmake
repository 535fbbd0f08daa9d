# The flags every target is built with, and the one way to declare a source folder as a library.

find_program(ORVANE_CCACHE ccache)
if(ORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ORVANE_CCACHE})
endif()

add_library(orvane_flags INTERFACE)
target_compile_features(orvane_flags INTERFACE cxx_std_20)
target_compile_options(orvane_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
  -Wunused -Wextra-semi -Werror)
# Texts are QString literals: an implicit cast from char would read Chinese as Latin-1 without a word.
target_compile_definitions(orvane_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_NO_CONTEXTLESS_CONNECT QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(ORVANE_SANITIZE)
  target_compile_options(orvane_flags INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all -fno-omit-frame-pointer -g1 -O0)
  target_link_options(orvane_flags INTERFACE -fsanitize=address,undefined,float-cast-overflow)
endif()

# orvane_library(NAME LINKS target... ) takes every .cpp, .h and .ui of the current folder.
function(orvane_library NAME)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h *.ui *.qrc)
  if(NOT sources)
    add_library(${NAME} INTERFACE)
    return()
  endif()
  add_library(${NAME} STATIC ${sources})
  target_include_directories(${NAME} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE orvane_flags)
  set_target_properties(${NAME} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
endfunction()
