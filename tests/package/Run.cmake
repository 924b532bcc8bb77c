# For the scripts of this folder.

# Runs a command in the folder WORK and ends the test if it fails; gives its output.
function(run output)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE text ERROR_VARIABLE errors
        WORKING_DIRECTORY ${WORK})
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${result}:\n${text}${errors}")
    endif()
    set(${output} "${text}" PARENT_SCOPE)
endfunction()
