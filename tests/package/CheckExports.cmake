# Looks at libDisplayAPI.so as it ships: prints its stripped size, and fails if a class that no public header
# declares can be reached from outside. Run with
# `cmake -D LIBRARY=... -D HEADERS=... -D NM=... -D STRIP=... -P CheckExports.cmake`.

cmake_minimum_required(VERSION 3.25)

# One class a header, named after it, and beside them the functions that stand in no class.
file(GLOB public RELATIVE ${HEADERS} ${HEADERS}/*.h)
foreach(header IN LISTS public)
    file(STRINGS ${HEADERS}/${header} functions REGEX "^DISPLAYAPI_EXPORT [^()]*[ *&][A-Za-z0-9_]+\\(.*\\);")
    list(TRANSFORM functions REPLACE "^[^(]*[ *&]([A-Za-z0-9_]+)\\(.*$" "\\1")
    list(APPEND public ${functions})
endforeach()
list(TRANSFORM public REPLACE "\\.h$" "")

# Each line is an address, a letter and a name. Brackets would make one element of several lines.
execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[][;]" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
list(LENGTH symbols count)
if(count LESS 100)
    message(FATAL_ERROR "${LIBRARY} gives only ${count} symbols: it was not read")
endif()

set(leaks)
foreach(symbol IN LISTS symbols)
    # "000000000001bab0 W vtable for DisplayAPI::List" is a symbol of List; template arguments are not owners.
    if(symbol MATCHES "^[0-9a-f]+ [A-Za-z] [^(<]*DisplayAPI::([A-Za-z0-9_]+)"
       AND NOT CMAKE_MATCH_1 IN_LIST public)
        list(APPEND leaks "${symbol}")
    endif()
endforeach()
if(leaks)
    list(JOIN leaks "\n  " text)
    message(FATAL_ERROR "No public header declares what these symbols belong to:\n  ${text}")
endif()

set(stripped ${LIBRARY}.stripped)
execute_process(COMMAND ${STRIP} -o ${stripped} ${LIBRARY} COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${stripped} size)
file(REMOVE ${stripped})
message(STATUS "libDisplayAPI.so: ${size} bytes stripped, ${count} symbols given to its users")
