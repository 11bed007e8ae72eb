# What is written from the style descriptions, into the build folder.

set(VX_STYLE_GENERATOR ${PROJECT_SOURCE_DIR}/tools/generate_style.py)
set(VX_STYLE_ENUMERATIONS
    ${PROJECT_SOURCE_DIR}/host/api/VtxEnumerations.h ${PROJECT_SOURCE_DIR}/host/api/VtxUtilGeometry.h
    ${PROJECT_SOURCE_DIR}/host/api/VtxUtilStreamtrace.h)
file(GLOB VX_STYLE_DEPENDS CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/style/*.toml ${VX_STYLE_GENERATOR} ${PROJECT_SOURCE_DIR}/tools/vxstyle/*.py)
list(APPEND VX_STYLE_DEPENDS ${VX_STYLE_ENUMERATIONS})

# vx_generate_style(what output) writes one file ("vocabulary", "reference") when a description changes. To be called in
# the folder of the target that the file is a source of.
function(vx_generate_style what output)
  cmake_path(GET output FILENAME name)
  add_custom_command(OUTPUT ${output}
      COMMAND ${Python3_EXECUTABLE} -B ${VX_STYLE_GENERATOR} ${what} --style ${PROJECT_SOURCE_DIR}/style
          --enumerations ${VX_STYLE_ENUMERATIONS} --output ${output}
      COMMAND ${CMAKE_COMMAND} -E touch ${output}
      DEPENDS ${VX_STYLE_DEPENDS}
      COMMENT "Writing ${name} from the style descriptions"
      VERBATIM)
endfunction()

# The reference page is kept in docs/; `style_reference` writes it anew.
add_custom_target(style_reference
    COMMAND ${Python3_EXECUTABLE} -B ${VX_STYLE_GENERATOR} reference --style ${PROJECT_SOURCE_DIR}/style
        --enumerations ${VX_STYLE_ENUMERATIONS} --output ${PROJECT_SOURCE_DIR}/docs/style-reference.md
    COMMENT "Writing docs/style-reference.md"
    VERBATIM)

# The property sets are written while configuring, because which files there are follows from the descriptions.
# Headers are then included as "propertymanager/generated/FrameEditPropertiesGenerated.h".
set(VX_GENERATED_ROOT ${PROJECT_BINARY_DIR}/generated)
set(VX_PROPERTY_SETS "")
foreach(number 1 2 3 4)
  list(APPEND VX_PROPERTY_SETS ${VX_GENERATED_ROOT}/propertymanager/generated/PropertySets${number}.cpp)
endforeach()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${VX_STYLE_DEPENDS})
foreach(written "sets;propertymanager/generated" "walk;tests/PropertySetWalk.h")
  list(GET written 0 what)
  list(GET written 1 output)
  execute_process(COMMAND ${Python3_EXECUTABLE} -B ${VX_STYLE_GENERATOR} ${what} --style ${PROJECT_SOURCE_DIR}/style
          --enumerations ${VX_STYLE_ENUMERATIONS} --output ${VX_GENERATED_ROOT}/${output}
      RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "The style descriptions in style/ are wrong, see above")
  endif()
endforeach()
