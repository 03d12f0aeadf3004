# Installs the MessageInterface component of the build tree TREE, builds the module SAMPLE against
# it, and has LOADER load the result.

cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed (${result}): ${ARGN}\n${out}")
    endif()
endfunction()

# What the document tells its readers to write is what is built here.
file(READ ${DOCUMENT} document)
foreach(name CMakeLists.txt CanLoopback.cpp)
    file(READ ${SAMPLE}/${name} text)
    string(FIND "${document}" "\n${text}```" place)
    if(place LESS 0)
        message(FATAL_ERROR "${DOCUMENT} does not show ${SAMPLE}/${name} as it is")
    endif()
endforeach()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${TREE} --component MessageInterface --prefix ${WORK}/prefix)
foreach(absent bin/libzul_core.a include/zul/core)
    if(EXISTS ${WORK}/prefix/${absent})
        message(FATAL_ERROR "${absent} is no part of what a module may see")
    endif()
endforeach()

# A copy, so that nothing of this tree can be found by a relative path.
file(COPY ${SAMPLE}/ DESTINATION ${WORK}/source)
run(${CMAKE_COMMAND} -S ${WORK}/source -B ${WORK}/build -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_PREFIX_PATH=${WORK}/prefix
    -D CMAKE_CXX_FLAGS=-Wall\ -Wextra\ -Wpedantic\ -Werror)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${LOADER} ${WORK}/build libCanLoopback)
