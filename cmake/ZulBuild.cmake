# Compiler settings and the functions that every folder's CMakeLists.txt uses.

add_library(zul_warnings INTERFACE)
target_compile_options(zul_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
    -Wformat=2 -Wcast-align -Wconversion -Wsign-conversion
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)
if(ZUL_WERROR)
    target_compile_options(zul_warnings INTERFACE -Werror)
endif()

add_library(zul_qt_settings INTERFACE)
target_compile_definitions(zul_qt_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_DEPRECATED_WARNINGS)

if(ZUL_SANITIZE)
    add_compile_options(-fsanitize=${ZUL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZUL_SANITIZE})
    # The sanitizers' instrumentation makes GCC see null pointers and uninitialised members that are
    # not there.
    target_compile_options(zul_warnings INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
else()
    # In tests a null pointer is what an assertion before has ruled out.
    target_compile_options(zul_warnings INTERFACE
        $<$<NOT:$<BOOL:$<TARGET_PROPERTY:ZUL_IS_TEST>>>:-Wnull-dereference>)
endif()

find_program(ZUL_MOLD mold)
if(ZUL_MOLD)
    add_link_options(-fuse-ld=mold)
endif()

find_program(ZUL_CCACHE ccache)
# An empty launcher on the command line means none.
if(ZUL_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these two, ccache refuses to cache what is compiled with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZUL_CCACHE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        add_compile_options(-fpch-preprocess)
    endif()
endif()

# zul_library(name [QT] SOURCES ... LINKS ... [PCH header...])
# One floor of the house: a static library of the named sources.
function(zul_library name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS;PCH" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE zul_warnings)
    if(ARG_QT)
        target_link_libraries(${name} PRIVATE zul_qt_settings)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
    if(ARG_PCH)
        target_precompile_headers(${name} PRIVATE ${ARG_PCH})
    endif()
endfunction()

# All device modules.
add_custom_target(modules)

# zul_device_module(name logic)
# The device module lib<name>, of the folder's Module.cpp and the library `logic`, beside the program.
function(zul_device_module name logic)
    add_library(${name} MODULE Module.cpp)
    target_link_libraries(${name} PRIVATE ${logic} zul_warnings)
    # The program finds its modules by their names, which begin with libCan everywhere.
    set_target_properties(${name} PROPERTIES
        PREFIX lib
        OUTPUT_NAME ${name}
        INSTALL_RPATH "$ORIGIN")
    add_dependencies(modules ${name})
    install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()

# What GoogleTest's matchers make GCC see at -O3 is not there. Linked behind zul_warnings: of two
# options the later one counts, and a target's own come first.
add_library(zul_test_warnings INTERFACE)
target_compile_options(zul_test_warnings INTERFACE -Wno-null-dereference)

# zul_test(name [QT] [ON_DISPLAY] SOURCES ... LINKS ... [LABELS ...])
# One test program, run by CTest as one test. ON_DISPLAY gives it a virtual display of its own, with
# OpenGL in software.
function(zul_test name)
    cmake_parse_arguments(ARG "QT;ON_DISPLAY" "" "SOURCES;LINKS;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gmock zul_warnings zul_test_warnings)
    set_target_properties(${name} PROPERTIES
        ZUL_IS_TEST ON
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    if(ARG_QT)
        target_link_libraries(${name} PRIVATE zul_qt_settings)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
        if(ZUL_SANITIZE MATCHES "thread")
            target_sources(${name} PRIVATE
                ${PROJECT_SOURCE_DIR}/tests/sanitizers/AnnotatedQMutex.cpp)
        endif()
    endif()
    if(ARG_ON_DISPLAY)
        add_test(NAME ${name}
            COMMAND xvfb-run -a -s "-screen 0 1280x1024x24" $<TARGET_FILE:${name}>)
        set_tests_properties(${name} PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "TZ=UTC;QT_QPA_PLATFORM=xcb;LIBGL_ALWAYS_SOFTWARE=1;LC_ALL=C.UTF-8"
            # The driver's threads end while the leak sanitizer looks at them, which ends it, too;
            # leaks of the windows are found by their tests without a display.
            # Qt's platform plug-in copies a part of an X reply, which need not end with a zero.
            ENVIRONMENT_MODIFICATION
                "ASAN_OPTIONS=string_append::strict_string_checks=0:detect_leaks=0")
    else()
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "TZ=UTC;QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
    endif()
    if(ARG_LABELS)
        set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}")
    endif()
endfunction()
