# The sibling SDK and the reference host to try a sibling in. `cmake --install` puts into the
# prefix:
#   bin/                           the reference host quillon-host, with what it loads beside it
#                                  as in the build's stage folder: the ExtCommands module, the
#                                  companions, messages/ and demo/
#   lib/                           the platform and kernel libraries TD_Root, TD_Db and FxKernel
#   include/ExtCommands/           the public headers (RibbonItem, the exported functions, the
#                                  don't-show-again box with its generated form, the export marks)
#   include/ExtCommands/sdk/...    the module-facing headers of the platform and kernel libraries
#                                  (never the host's side: docs/sdk.md)
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

# The public headers are reached as <ExtCommands/...>, and they use Qt's strings and lists and,
# for the message box, its widgets. In the build tree the form's header is found in its own
# folder; installed, it lies beside the header that includes it.
target_include_directories(ExtCommands INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<BUILD_INTERFACE:${EC_FORM_HEADER_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(ExtCommands INTERFACE Qt5::Widgets)

# What a sibling compiles with, carried by the targets it links: the platform's and kernel's
# headers are C++17 (CFxUIList uses std::clamp), and with GCC a sibling's inline functions that
# keep a static would become GNU unique symbols, which keep a library mapped after it is
# unloaded. Hidden visibility is the sibling's own affair (what it exports), set on its target.
target_compile_features(TD_Root PUBLIC cxx_std_17)
target_compile_features(ExtCommands INTERFACE cxx_std_17)
target_compile_options(ExtCommands INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)

# Installed, the libraries find each other in lib/, and what stands beside the host finds them
# there too. The module keeps no search path of its own (src/CMakeLists.txt): a host that loads
# it has these libraries loaded already.
file(RELATIVE_PATH EC_BIN_TO_LIB "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
set_target_properties(TD_Root TD_Db FxKernel PROPERTIES INSTALL_RPATH "$ORIGIN")
set(EC_HOST_COMPANIONS TarnCrashReportSendService TarnTaskPane QuillonQnMurmurConnector
    QuillonOmniplaneConnector QNTForgeportConnector)
set_target_properties(quillon-host ${EC_HOST_COMPANIONS} PROPERTIES
    INSTALL_RPATH "$ORIGIN/${EC_BIN_TO_LIB}")

install(TARGETS TD_Root TD_Db FxKernel EXPORT ExtCommandsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# The module is where the host looks for modules by default: in the program's folder.
install(TARGETS ExtCommands EXPORT ExtCommandsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_BINDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS quillon-host ${EC_HOST_COMPANIONS}
    LIBRARY DESTINATION ${CMAKE_INSTALL_BINDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY "${EC_STAGE_DIR}/messages" "${EC_STAGE_DIR}/demo"
    DESTINATION ${CMAKE_INSTALL_BINDIR})

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

# The Qt modules that the targets name: those their users compile and link with (Core, Gui and
# Widgets), and those the module's library needs at link time (D-Bus for the viewer outside
# Windows), which a sibling's link must be able to find.
set(EC_PACKAGE_QT_COMPONENTS Core Gui Widgets)
if(NOT WIN32)
    list(APPEND EC_PACKAGE_QT_COMPONENTS DBus)
endif()
list(JOIN EC_PACKAGE_QT_COMPONENTS " " EC_PACKAGE_QT_COMPONENTS)

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
