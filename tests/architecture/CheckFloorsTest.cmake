# Runs CheckFloors.cmake on a tree with one fault of each kind, and on one with none.

cmake_minimum_required(VERSION 3.25)

function(run_check expected_result)
    execute_process(COMMAND ${CMAKE_COMMAND} -D ROOT=${WORK} -P ${CHECK}
        RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(expected_result STREQUAL good AND NOT result EQUAL 0)
        message(FATAL_ERROR "complaints about a good tree:\n${err}")
    elseif(expected_result STREQUAL faulty AND result EQUAL 0)
        message(FATAL_ERROR "no complaints about a faulty tree")
    endif()
    # Messages are wrapped at blanks.
    string(REGEX REPLACE "[ \n]+" " " err "${err}")
    foreach(complaint IN LISTS ARGN)
        string(FIND "${err}" "${complaint}" place)
        if(place LESS 0)
            message(FATAL_ERROR "missing complaint: ${complaint}\nin: ${err}")
        endif()
    endforeach()
    set(out "${out}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
file(WRITE ${WORK}/docs/architecture.md "# House\n<!-- edges: begin -->\n| Folder | May include |\n"
    "|---|---|\n| `low` | |\n| `gui/high` | `low` |\n| `gui/high/er` | `gui/high` |\n"
    "<!-- edges: end -->\n| `other` | `table` |\n")
file(WRITE ${WORK}/low/Low.h "#pragma once\n#include \"low/Other.h\"\n#include <vector>\n")
file(WRITE ${WORK}/gui/high/High.cpp "#include \"low/Low.h\"\n#include \"High.moc\"\n")
file(WRITE ${WORK}/gui/high/er/Er.cpp "#include \"gui/high/High.h\"\n")
file(WRITE ${WORK}/tests/Free.cpp "#include \"anything/At.h\"\n")
run_check(good)
if(NOT out MATCHES "3 files, 0 complaints")
    message(FATAL_ERROR "the good tree was not looked at: ${out}")
endif()

file(WRITE ${WORK}/low/Up.cpp "  #  include \"gui/high/High.h\"\n")
file(WRITE ${WORK}/low/Nowhere.cpp "#include \"nowhere/At.h\"\n")
file(WRITE ${WORK}/gui/high/er/Skip.cpp "#include \"low/Low.h\"\n")
file(WRITE ${WORK}/low/Twice.h "class Twice;\n")
file(WRITE ${WORK}/strange/File.cpp "\n")
string(REPEAT "// line; [\n" 601 long_file)
file(WRITE ${WORK}/low/Long.cpp "${long_file}")
run_check(faulty
    "low/Up.cpp: low must not include \"gui/high/High.h\""
    "low/Nowhere.cpp: \"nowhere/At.h\" is in no folder of the table"
    "gui/high/er/Skip.cpp: gui/high/er must not include \"low/Low.h\""
    "low/Twice.h has no #pragma once"
    "strange/File.cpp is in no folder of the table"
    "low/Long.cpp has 601 lines")

file(WRITE ${WORK}/docs/architecture.md "<!-- edges: begin -->\n| `a` | `b` |\n| `b` | |\n"
    "<!-- edges: end -->\n")
run_check(faulty "the row of a names b, which is not below it")

file(WRITE ${WORK}/docs/architecture.md "no table\n")
run_check(faulty "has no table of edges")
