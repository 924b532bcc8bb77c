# Writes a test for each suite of a program, behind every build of it.

execute_process(COMMAND "${PROGRAM}" --gtest_list_tests OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(^|\n)[^ \n]+\\." suites "${listing}")
set(tests "")
foreach(suite ${suites})
    string(STRIP "${suite}" suite)
    string(REGEX REPLACE "\\.$" "" name "${suite}")
    string(APPEND tests
        "add_test([==[${name}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}*]==])\n"
        "set_tests_properties([==[${name}]==] PROPERTIES LABELS ${LABEL} TIMEOUT 120)\n")
endforeach()
file(WRITE "${LIST}" "${tests}")
