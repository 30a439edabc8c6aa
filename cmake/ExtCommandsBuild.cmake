# Shared build settings: output layout, sanitizers and helpers for modules and tests.

# Everything runs from one folder, the way the host is installed: the program, its kernel
# libraries, the modules, the companion libraries and the "messages" tree side by side.
set(EC_STAGE_DIR "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${EC_STAGE_DIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${EC_STAGE_DIR}")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_BUILD_RPATH "$ORIGIN")
if(NOT WIN32)
    # Search paths go in as RUNPATH, which serves only the object's own needs. An old-style RPATH
    # of a program would also be searched for the libraries that its modules load by file name,
    # and the host's companion folder would no longer be the only place companions come from.
    add_link_options(LINKER:--enable-new-dtags)
endif()

# The platform's module file suffix: "NAME.tx" is what the dynamic linker looks for.
set(EC_MODULE_SUFFIX ".tx")

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_compile_options(-Wall -Wextra -Wno-unused-parameter)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # A GNU-unique symbol pins a shared object in memory for good; modules must unload.
    add_compile_options(-fno-gnu-unique)
endif()

option(EXTCOMMANDS_SANITIZE "Build with AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer" OFF)
if(EXTCOMMANDS_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(EXTCOMMANDS_SANITIZE=1)
endif()

option(EXTCOMMANDS_COVERAGE "Build with gcc's coverage counters (scripts/coverage)" OFF)
if(EXTCOMMANDS_COVERAGE)
    # Every program and library counts its lines and branches; each process adds its counts to
    # the .gcda files beside the objects when it exits or unloads a library, so the module's
    # counts come from the test programs and from every host they start alike.
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        message(FATAL_ERROR "EXTCOMMANDS_COVERAGE needs gcc (gcovr reads gcc's counters)")
    endif()
    add_compile_options(--coverage)
    # The counters' runtime is linked into every library; kept out of their exports, so that a
    # module exports what it exports in every build (tests/build checks the list).
    add_link_options(--coverage LINKER:--exclude-libs,libgcov.a)
endif()

option(EXTCOMMANDS_FUZZ "Build the libFuzzer targets (clang only); every library is instrumented" OFF)
if(EXTCOMMANDS_FUZZ)
    # The libraries and the module carry coverage counters and the sanitizers; only the fuzz
    # programs link libFuzzer's driver (fuzz/CMakeLists.txt). What the module keeps for the
    # process is marked for the leak checker as in the sanitizer build.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
                        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(EXTCOMMANDS_SANITIZE=1)
endif()

# ec_add_platform_module(<target> <sources>...)
# A module that the platform's dynamic linker loads by name: "<target>.tx" in the stage folder.
function(ec_add_platform_module target)
    add_library(${target} SHARED ${ARGN})
    set_target_properties(${target} PROPERTIES PREFIX "" SUFFIX "${EC_MODULE_SUFFIX}")
    target_link_libraries(${target} PRIVATE TD_Root)
endfunction()

# ec_add_executable(<target> <sources>...): a program of this project; in the sanitizer build
# it carries the runtime's default options and the leak suppressions.
function(ec_add_executable target)
    add_executable(${target} ${ARGN})
    if(EXTCOMMANDS_SANITIZE)
        target_link_libraries(${target} PRIVATE SanitizerDefaults)
    endif()
endfunction()

if(EXTCOMMANDS_SANITIZE OR EXTCOMMANDS_FUZZ)
    if(EXTCOMMANDS_FUZZ)
        # Allocation stacks from the frame pointers: the unwinder that reads the unwind tables
        # costs a fuzz program nine tenths of its time, at every allocation. Qt's libraries have
        # no frame pointers, so such a stack may end at the first Qt frame; the fuzz programs
        # check for leaks only at exit (./fuzz passes -detect_leaks=0 to libFuzzer), and keep
        # what a suppression could not tell apart out of the leak checker themselves.
        set(EC_ASAN_DEFAULT_OPTIONS "detect_leaks=1:fast_unwind_on_malloc=1:strict_string_checks=1")
    else()
        # Full stacks for every allocation: Qt's libraries have no frame pointers, and a leak
        # suppression can only name a frame that the stack holds.
        set(EC_ASAN_DEFAULT_OPTIONS "detect_leaks=1:fast_unwind_on_malloc=0:strict_string_checks=1")
    endif()
    file(READ "${PROJECT_SOURCE_DIR}/tests/lsan.supp" EC_LSAN_SUPPRESSIONS)
    set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                 "${PROJECT_SOURCE_DIR}/tests/lsan.supp")
    configure_file("${CMAKE_CURRENT_LIST_DIR}/sanitizer/SanitizerDefaults.cpp.in"
                   "${CMAKE_BINARY_DIR}/generated/SanitizerDefaults.cpp" @ONLY)
    add_library(SanitizerDefaults OBJECT "${CMAKE_BINARY_DIR}/generated/SanitizerDefaults.cpp")
    set_target_properties(SanitizerDefaults PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endif()
