# Toolchain of the Windows check: the MinGW-w64 cross compiler, compiling every translation unit
# that a Windows build compiles, with the definitions and include folders CMake gives it there.
# Nothing is linked (there are no Qt libraries for Windows on a Linux machine): the link steps
# only mark their outputs (NoLink.cmake). Qt is the Linux installation: its headers are the same
# for every target, and its code generators (moc, uic, rcc, lrelease) write portable C++.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Every warning is an error: a Windows branch that rots fails the check.
set(CMAKE_CXX_FLAGS_INIT "-Wall -Wextra -Werror")
# One failing library must not hide the errors of the targets that use it: their code
# generators run without waiting for it.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)
set(CMAKE_USER_MAKE_RULES_OVERRIDE_CXX "${CMAKE_CURRENT_LIST_DIR}/NoLink.cmake")

# Qt is found where Debian installs it, not below a Windows sysroot.
if(NOT DEFINED Qt5_DIR)
    execute_process(COMMAND qmake -query QT_INSTALL_LIBS OUTPUT_VARIABLE EC_QT_LIBS
                    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(NOT EC_QT_LIBS)
        set(EC_QT_LIBS /usr/lib/x86_64-linux-gnu)
    endif()
    set(Qt5_DIR "${EC_QT_LIBS}/cmake/Qt5" CACHE PATH "Qt 5's package folder")
endif()
# ActiveQt exists only in Qt for Windows: the check has a declaration-only stand-in.
set(Qt5AxContainer_DIR "${CMAKE_CURRENT_LIST_DIR}/Qt5AxContainer" CACHE PATH
    "Stand-in package of ActiveQt's container classes for the Windows check")

set(EXTCOMMANDS_WINDOWS_CHECK ON CACHE BOOL "Compile for Windows without linking")
