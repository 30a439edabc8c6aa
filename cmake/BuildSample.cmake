# Builds the sample sibling the way a third party would: installs this project into a fresh
# prefix, then configures and builds samples/SampleSibling in a folder of its own with nothing
# but that prefix to find ExtCommands in.
#   cmake -DPROJECT_BUILD=... -DPREFIX=... -DSAMPLE_SOURCE=... -DSAMPLE_BUILD=...
#         -DGENERATOR=... -DCOMPILER=... -DBUILD_TYPE=... [-DSANITIZE=ON] [-DLAUNCHER=ccache]
#         [-DSTAGE_DIR=...] [-DPAGE=... -DEXTRACTOR=...] -P BuildSample.cmake
# With STAGE_DIR, the built module is then copied there (beside the host, for people to try).
# With PAGE, the project is first written into SAMPLE_SOURCE from the code blocks that the
# documentation page marks as its files, by the script EXTRACTOR.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "failed (${result}): ${command}")
    endif()
endfunction()

file(REMOVE_RECURSE "${PREFIX}" "${SAMPLE_BUILD}")
if(PAGE)
    find_program(PYTHON3 python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)
    run("${PYTHON3}" "${EXTRACTOR}" "${PAGE}" "${SAMPLE_SOURCE}")
endif()
run("${CMAKE_COMMAND}" --install "${PROJECT_BUILD}" --prefix "${PREFIX}")

set(options
    -DCMAKE_BUILD_TYPE=${BUILD_TYPE}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_PREFIX_PATH=${PREFIX}
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
if(LAUNCHER)
    list(APPEND options -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
endif()
if(SANITIZE)
    # The sample's own code is checked as well when the host runs under the sanitizers.
    list(APPEND options
        "-DCMAKE_CXX_FLAGS=-fsanitize=address,undefined -fno-omit-frame-pointer"
        "-DCMAKE_SHARED_LINKER_FLAGS=-fsanitize=address,undefined")
endif()
run("${CMAKE_COMMAND}" -S "${SAMPLE_SOURCE}" -B "${SAMPLE_BUILD}" -G "${GENERATOR}" ${options})
run("${CMAKE_COMMAND}" --build "${SAMPLE_BUILD}")
if(STAGE_DIR)
    file(COPY "${SAMPLE_BUILD}/SampleSibling.tx" DESTINATION "${STAGE_DIR}")
endif()
