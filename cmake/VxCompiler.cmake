# What every target of ours is compiled with. Use vx_compile_options(target) on targets that vx_add_layer does not make.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET default)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

find_program(VX_CCACHE ccache)
if(VX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${VX_CCACHE})
endif()
find_program(VX_MOLD mold)
if(VX_MOLD)
  add_link_options(-fuse-ld=mold)
endif()
if(VX_SANITIZE)
  add_compile_options(-fsanitize=${VX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=${VX_SANITIZE})
endif()

add_library(vx_compile_options INTERFACE)
target_compile_definitions(vx_compile_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII BOOST_BIND_GLOBAL_PLACEHOLDERS BOOST_ALL_NO_LIB)
target_compile_options(vx_compile_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${VX_WARNINGS_AS_ERRORS}>:-Werror> -fpch-preprocess)
# Of sources that are compiled as parts of one, GCC takes the anonymous namespaces for those of a header.
target_compile_options(vx_compile_options INTERFACE $<$<BOOL:${CMAKE_UNITY_BUILD}>:-Wno-subobject-linkage>)
# Optimising, GCC 12 warns of what std::string and std::vector do inside (its bugs 105329, 105651 and 105562).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(vx_compile_options INTERFACE
      $<$<CONFIG:Release>:-Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-maybe-uninitialized>)
endif()

function(vx_compile_options target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vx_compile_options>)
endfunction()
