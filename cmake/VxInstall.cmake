# Installation: both libraries, their headers and a CMake package, vxplot and its help.

include(CMakePackageConfigHelpers)
set(VX_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/vxsdkdialogsx)

install(TARGETS vxsdkdialogsx_qt vxkernel EXPORT vxsdkdialogsx
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT development)
foreach(root src host)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${root}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vxsdkdialogsx
      FILES_MATCHING PATTERN "*.h" PATTERN app EXCLUDE PATTERN view EXCLUDE)
endforeach()
install(DIRECTORY ${VX_GENERATED_ROOT}/propertymanager DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vxsdkdialogsx FILES_MATCHING PATTERN "*.h")
install(EXPORT vxsdkdialogsx NAMESPACE vxsdkdialogsx:: DESTINATION ${VX_PACKAGE_FOLDER})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/vxsdkdialogsxConfig.cmake.in
    ${PROJECT_BINARY_DIR}/vxsdkdialogsxConfig.cmake INSTALL_DESTINATION ${VX_PACKAGE_FOLDER})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vxsdkdialogsxConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vxsdkdialogsxConfig.cmake ${PROJECT_BINARY_DIR}/vxsdkdialogsxConfigVersion.cmake
    DESTINATION ${VX_PACKAGE_FOLDER})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/help DESTINATION ${CMAKE_INSTALL_DATADIR}/vxsdkdialogsx)
if(VX_BUILD_APP)
  install(TARGETS vxplot RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/resources/vxplot/vxplot.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/vxplot/vxplot.svg
      DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
