# Holds the source folders of a tree against the table of its docs/architecture.md.
#
#   cmake -D ROOT=<tree> -P CheckFloors.cmake
#
# It complains, and fails, about
# - an include of a folder that the includer's row of the table does not name,
# - a row that names a folder of its own floor's height or above,
# - sources in a folder that has no row,
# - a file of more lines than the limit,
# - a header without "#pragma once".

cmake_minimum_required(VERSION 3.25)

set(MAX_LINES 600)
# Folders whose sources may include whatever they want.
set(FREE_FOLDERS tests bench build out)

set(complaints 0)
function(complain text)
    message(SEND_ERROR "${text}")
    math(EXPR complaints "${complaints} + 1")
    set(complaints ${complaints} PARENT_SCOPE)
endfunction()

# Fills `folders`, bottom to top, and an `allowed_<folder>` for each.
macro(read_table file)
    file(READ ${file} document)
    string(FIND "${document}" "<!-- edges: begin -->" begin)
    string(FIND "${document}" "<!-- edges: end -->" end)
    if(begin LESS 0 OR end LESS begin)
        message(FATAL_ERROR "${file} has no table of edges")
    endif()
    math(EXPR length "${end} - ${begin}")
    string(SUBSTRING "${document}" ${begin} ${length} table)
    string(REGEX MATCHALL "\n\\| `[^\n]*" rows "${table}")
    foreach(row IN LISTS rows)
        string(REGEX MATCHALL "`[^`]+`" names "${row}")
        string(REPLACE "`" "" names "${names}")
        list(POP_FRONT names folder)
        foreach(name IN LISTS names)
            if(NOT name IN_LIST folders)
                complain("the row of ${folder} names ${name}, which is not below it")
            endif()
        endforeach()
        list(APPEND folders ${folder})
        set(allowed_${folder} ${names} ${folder})
    endforeach()
    if(NOT folders)
        message(FATAL_ERROR "the table of edges in ${file} is empty")
    endif()
endmacro()

# The longest folder of the table that `path` lies in, or an empty string.
function(folder_of path result)
    set(best "")
    set(best_length 0)
    foreach(folder IN LISTS folders)
        string(FIND "${path}" "${folder}/" place)
        string(LENGTH "${folder}" length)
        if(place EQUAL 0 AND length GREATER best_length)
            set(best ${folder})
            set(best_length ${length})
        endif()
    endforeach()
    set(${result} "${best}" PARENT_SCOPE)
endfunction()

macro(check_includes file folder)
    # What stands between quotes with a folder before it; moc's own includes have none.
    file(STRINGS ${ROOT}/${file} includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"[^\"]*/")
    foreach(include IN LISTS includes)
        string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" include "${include}")
        folder_of("${include}" target)
        if(target STREQUAL "")
            complain("${file}: \"${include}\" is in no folder of the table")
        elseif(NOT target IN_LIST allowed_${folder})
            complain("${file}: ${folder} must not include \"${include}\"")
        endif()
    endforeach()
endmacro()

macro(check_form file)
    file(READ ${ROOT}/${file} content)
    string(REGEX MATCHALL "\n" line_ends "${content}")
    list(LENGTH line_ends lines)
    if(lines GREATER MAX_LINES)
        complain("${file} has ${lines} lines; ${MAX_LINES} is the limit")
    endif()
    if("${file}" MATCHES "\\.h$" AND NOT content MATCHES "#pragma once")
        complain("${file} has no #pragma once")
    endif()
endmacro()

read_table(${ROOT}/docs/architecture.md)

file(GLOB top_level RELATIVE ${ROOT} ${ROOT}/*)
list(REMOVE_ITEM top_level ${FREE_FOLDERS})
set(checked 0)
foreach(top IN LISTS top_level)
    if(IS_DIRECTORY ${ROOT}/${top})
        file(GLOB_RECURSE files RELATIVE ${ROOT} ${ROOT}/${top}/*.h ${ROOT}/${top}/*.cpp)
        foreach(file IN LISTS files)
            folder_of("${file}" folder)
            if(folder STREQUAL "")
                complain("${file} is in no folder of the table")
            else()
                check_includes(${file} ${folder})
            endif()
            check_form(${file})
            math(EXPR checked "${checked} + 1")
        endforeach()
    endif()
endforeach()
if(checked EQUAL 0)
    message(FATAL_ERROR "no sources in ${ROOT}")
endif()
message(STATUS "${checked} files, ${complaints} complaints")
