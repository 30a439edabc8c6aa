# The sibling SDK: what a module built outside this project needs to call the ExtCommands
# module's exported ribbon interface. `cmake --install` puts into the prefix:
#   include/ExtCommands/           the public headers (RibbonItem, the exported functions, the
#                                  don't-show-again box with its generated form)
#   include/ExtCommands/sdk/...    the module-facing headers of the platform and kernel libraries
#                                  (never the host's side: docs/sdk.md)
#   lib/                           TD_Root, TD_Db, FxKernel and the ExtCommands module itself
#   lib/cmake/ExtCommands/         the package: find_package(ExtCommands) gives the imported
#                                  targets ExtCommands::ExtCommands, ExtCommands::FxKernel,
#                                  ExtCommands::TD_Db and ExtCommands::TD_Root
# A sibling is a platform module as well, so it links the platform and kernel libraries; at
# run time it finds them, and the ExtCommands module, already loaded by the host.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(EC_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ExtCommands")

# The header that AUTOUIC generates from the don't-show-again box's form is a public header:
# the box's public header holds the form by value. A multi-configuration generator keeps one
# per configuration.
get_target_property(EC_AUTOGEN_DIR ExtCommands AUTOGEN_BUILD_DIR)
get_property(EC_MULTI_CONFIG GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(EC_MULTI_CONFIG)
    set(EC_FORM_HEADER_DIR "${EC_AUTOGEN_DIR}/include_$<CONFIG>")
else()
    set(EC_FORM_HEADER_DIR "${EC_AUTOGEN_DIR}/include")
endif()

# The public headers are reached as <ExtCommands/...>, and they use Qt's strings and lists. In
# the build tree the form's header is found in its own folder; installed, it lies beside the
# header that includes it.
target_include_directories(ExtCommands INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<BUILD_INTERFACE:${EC_FORM_HEADER_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(ExtCommands INTERFACE Qt5::Core)

# Installed side by side, the libraries find each other. The module keeps no search path of its
# own (src/CMakeLists.txt): a host that loads it has these libraries loaded already.
set_target_properties(TD_Root TD_Db FxKernel PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS TD_Root TD_Db FxKernel ExtCommands EXPORT ExtCommandsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/ExtCommands"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")
install(FILES "${EC_FORM_HEADER_DIR}/ui_CDontShowAgainMessageBox.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ExtCommands)
# Only what a module sees of the platform and the kernel; the host's side stays here.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/sdk/platform/include/"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ExtCommands/sdk/platform
    FILES_MATCHING PATTERN "*.h")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/sdk/kernel/include/"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ExtCommands/sdk/kernel
    FILES_MATCHING PATTERN "*.h")

install(EXPORT ExtCommandsTargets NAMESPACE ExtCommands:: DESTINATION ${EC_PACKAGE_DIR})
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/ExtCommandsConfig.cmake.in"
    "${CMAKE_BINARY_DIR}/package/ExtCommandsConfig.cmake"
    INSTALL_DESTINATION ${EC_PACKAGE_DIR})
write_basic_package_version_file("${CMAKE_BINARY_DIR}/package/ExtCommandsConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_BINARY_DIR}/package/ExtCommandsConfig.cmake"
    "${CMAKE_BINARY_DIR}/package/ExtCommandsConfigVersion.cmake"
    DESTINATION ${EC_PACKAGE_DIR})
