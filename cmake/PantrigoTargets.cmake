# How every target of the project is declared: one function a kind, so that a
# folder's CMakeLists.txt says only what the folder is and what it may see.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(pantrigo_flags INTERFACE)
target_include_directories(pantrigo_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
# GCC 12 warns of overlapping copies in plain concatenations of texts (-Wrestrict) where there are none.
target_compile_options(pantrigo_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wno-restrict -Werror)
if(PANTRIGO_SANITIZE)
  # With the sanitizers' own code in between, GCC 12 takes moved variants for uninitialised; the plain build keeps that warning.
  target_compile_options(
    pantrigo_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -Wno-maybe-uninitialized)
  target_link_options(pantrigo_flags INTERFACE -fsanitize=address,undefined)
endif()

# pantrigo_library(NAME folder [LINK targets...]): a static library of all sources of one folder.
function(pantrigo_library name folder)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
  set(has_code ${sources})
  list(FILTER has_code INCLUDE REGEX "\\.cpp$")
  if(has_code)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC pantrigo_flags ${ARG_LINK})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE pantrigo_flags ${ARG_LINK})
  endif()
endfunction()

# pantrigo_test(NAME folder [LINK targets...]): one GoogleTest program of all sources of one folder, registered with CTest.
function(pantrigo_test name folder)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE pantrigo_flags ${ARG_LINK} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
endfunction()
