# The two products. The dialogs library is linked against nothing of the kernel: its VtxUtil symbols are found in the
# process that loads it.

set(VX_DIALOG_LAYERS vx_property vx_toolbox vx_sdk vx_styleproperties vx_propertymanager vx_propertysets vx_propertybindings vx_ui vx_managers
    vx_dialogs)

# vx_add_shared(name LAYERS layer... PUBLIC target... PRIVATE target...)
function(vx_add_shared name)
  cmake_parse_arguments(arg "" "" "LAYERS;PUBLIC;PRIVATE" ${ARGN})
  set(objects "")
  foreach(layer ${arg_LAYERS})
    get_target_property(type ${layer} TYPE)
    if(type STREQUAL OBJECT_LIBRARY)
      list(APPEND objects $<TARGET_OBJECTS:${layer}>)
    endif()
  endforeach()
  if(NOT objects)
    return()
  endif()
  add_library(${name} SHARED ${objects})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX VERSION ${PROJECT_VERSION} SOVERSION 0)
  target_include_directories(${name} PUBLIC
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src> $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/host>
      $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vxsdkdialogsx>)
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
endfunction()

vx_add_shared(vxsdkdialogsx_qt LAYERS ${VX_DIALOG_LAYERS} PUBLIC Qt6::Widgets Boost::headers)
vx_add_shared(vxkernel LAYERS vx_kernel PRIVATE ${VTK_LIBRARIES})
