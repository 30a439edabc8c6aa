# What the Windows check compiles besides the project's own targets (included from the top
# level when EXTCOMMANDS_WINDOWS_CHECK is on; the toolchain is MinGW.cmake):
#  - the sample sibling, from its own CMakeLists.txt, finding the ExtCommands package as this
#    build's targets: it sees the public headers the way a sibling built for Windows does;
#  - the export marks: every public header included as a sibling includes it, and each library
#    compiled with its own definitions, where its mark must export and every other must import.

# A Windows build links a DLL through its import library. Nothing is linked here: Qt's Linux
# libraries stand in for the import libraries that a Windows installation of Qt has.
get_directory_property(EC_IMPORTED_TARGETS DIRECTORY "${PROJECT_SOURCE_DIR}" IMPORTED_TARGETS)
foreach(imported IN LISTS EC_IMPORTED_TARGETS)
    get_target_property(type ${imported} TYPE)
    get_target_property(location ${imported} LOCATION)
    if(type STREQUAL "SHARED_LIBRARY")
        set_target_properties(${imported} PROPERTIES IMPORTED_IMPLIB "${location}")
    endif()
endforeach()

# The package, answered from this build: the same targets, headers and usage requirements that
# the installed package gives a sibling.
foreach(library IN ITEMS ExtCommands FxKernel TD_Db TD_Root)
    add_library(ExtCommands::${library} ALIAS ${library})
endforeach()
set(EC_IN_TREE_PACKAGE "${CMAKE_BINARY_DIR}/windows-check/package")
file(WRITE "${EC_IN_TREE_PACKAGE}/ExtCommandsConfig.cmake"
     "# The ExtCommands targets of the build that includes this one (the Windows check).\n")
include(CMakePackageConfigHelpers)
write_basic_package_version_file("${EC_IN_TREE_PACKAGE}/ExtCommandsConfigVersion.cmake"
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
set(ExtCommands_DIR "${EC_IN_TREE_PACKAGE}" CACHE PATH "ExtCommands package of the Windows check" FORCE)
add_subdirectory("${PROJECT_SOURCE_DIR}/samples/SampleSibling" "${CMAKE_BINARY_DIR}/samples/SampleSibling")

# Every installed public header, in one translation unit compiled as a sibling compiles it.
file(GLOB EC_PUBLIC_HEADERS CONFIGURE_DEPENDS
     "${PROJECT_SOURCE_DIR}/include/ExtCommands/*.h"
     "${PROJECT_SOURCE_DIR}/sdk/platform/include/*.h"
     "${PROJECT_SOURCE_DIR}/sdk/kernel/include/*.h")
set(EC_HEADER_INCLUDES "")
foreach(header IN LISTS EC_PUBLIC_HEADERS)
    string(APPEND EC_HEADER_INCLUDES "#include \"${header}\"\n")
endforeach()
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/windows-check/PublicHeaders.h"
     CONTENT "// Every public header of the ExtCommands package.\n${EC_HEADER_INCLUDES}")

set(EC_EXPORT_CHECK "${CMAKE_CURRENT_LIST_DIR}/ExportMarks.cpp")
add_library(WindowsCheckSiblingView OBJECT "${EC_EXPORT_CHECK}")
target_compile_definitions(WindowsCheckSiblingView PRIVATE
    EC_PUBLIC_HEADERS="${CMAKE_BINARY_DIR}/windows-check/PublicHeaders.h" EC_OWN_EXPORT_MARK="")
target_link_libraries(WindowsCheckSiblingView PRIVATE ExtCommands::ExtCommands ExtCommands::FxKernel)

# ec_check_export_mark(<library> <mark>): compiled as <library> is, <mark> exports.
function(ec_check_export_mark library mark)
    add_library(WindowsCheck${library}View OBJECT "${EC_EXPORT_CHECK}")
    target_compile_definitions(WindowsCheck${library}View PRIVATE
        $<TARGET_PROPERTY:${library},COMPILE_DEFINITIONS> EC_OWN_EXPORT_MARK="${mark}")
    target_include_directories(WindowsCheck${library}View PRIVATE
        $<TARGET_PROPERTY:${library},INCLUDE_DIRECTORIES>)
    target_link_libraries(WindowsCheck${library}View PRIVATE Qt5::Core)
endfunction()
ec_check_export_mark(TD_Root TD_ROOT_EXPORT)
ec_check_export_mark(TD_Db TD_DB_EXPORT)
ec_check_export_mark(FxKernel FX_KERNEL_EXPORT)
ec_check_export_mark(ExtCommands EXTCOMMANDS_EXPORT)
