# Builds the sample sibling the way a third party would: installs this project into a fresh
# prefix, then configures and builds samples/SampleSibling in a folder of its own with nothing
# but that prefix to find ExtCommands in.
#   cmake -DPROJECT_BUILD=... -DPREFIX=... -DSAMPLE_SOURCE=... -DSAMPLE_BUILD=...
#         -DGENERATOR=... -DCOMPILER=... -DBUILD_TYPE=... [-DSANITIZE=ON] [-DLAUNCHER=ccache]
#         [-DSTAGE_DIR=...] -P BuildSample.cmake
# With STAGE_DIR, the built module is then copied there (beside the host, for people to try).
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "failed (${result}): ${command}")
    endif()
endfunction()

file(REMOVE_RECURSE "${PREFIX}" "${SAMPLE_BUILD}")
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
