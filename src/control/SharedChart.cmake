# libzantroq-chart: the control as hosts link it. It exports what exports.map lists and nothing else; the version in its soname
# counts breaks of that interface.
add_library(zantroq_chart SHARED $<TARGET_OBJECTS:chartcontrol>)
set_target_properties(zantroq_chart PROPERTIES
    OUTPUT_NAME zantroq-chart
    EXPORT_NAME chart
    SOVERSION 1
    VERSION 1.0.0
    LINK_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/exports.map
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib
    LINKER_LANGUAGE CXX)
target_include_directories(zantroq_chart INTERFACE
    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
target_link_libraries(zantroq_chart
    PUBLIC Qt6::Widgets
    PRIVATE chartqt PkgConfig::xcb)
# nodelete: Qt keeps pointers into a library that has made widgets (meta objects, icons) after the last of them has gone.
target_link_options(zantroq_chart PRIVATE
    LINKER:--version-script=${CMAKE_CURRENT_LIST_DIR}/exports.map LINKER:-z,nodelete)
if(NOT ZANTROQ_SANITIZE)
    target_link_options(zantroq_chart PRIVATE LINKER:-z,defs)
endif()
add_library(ZantroqChart::chart ALIAS zantroq_chart)

# What a host finds below the install prefix. All of it may be moved together.
include(CMakePackageConfigHelpers)
set(package_folder lib/cmake/ZantroqChart)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZantroqChartConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/ZantroqChartConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ZantroqChartConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
configure_file(${CMAKE_CURRENT_LIST_DIR}/zantroq-chart.pc.in ${CMAKE_CURRENT_BINARY_DIR}/zantroq-chart.pc @ONLY)
install(TARGETS zantroq_chart EXPORT ZantroqChartTargets LIBRARY DESTINATION lib)
install(EXPORT ZantroqChartTargets NAMESPACE ZantroqChart:: DESTINATION ${package_folder})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ZantroqChartConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/ZantroqChartConfigVersion.cmake
        DESTINATION ${package_folder})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zantroq-chart.pc DESTINATION lib/pkgconfig)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/include/zantroq DESTINATION include FILES_MATCHING PATTERN "*.h")
