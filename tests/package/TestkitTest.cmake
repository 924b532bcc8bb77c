# Installs the Python test kit with pip, without network, into a folder of its own, and runs its tests against a
# telephone. Run with `cmake -D PYTHON=... -D KIT=... -D PHONE=... -D WORK=... -P TestkitTest.cmake`.

cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK})
execute_process(COMMAND ${PYTHON} -m pip install --quiet --no-index --root-user-action=ignore --target ${WORK}/site ${KIT}
    COMMAND_ERROR_IS_FATAL ANY)
file(COPY ${KIT}/tests DESTINATION ${WORK})
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env PYTHONPATH=${WORK}/site PYTHONDONTWRITEBYTECODE=1
        ${PYTHON} -m pytest -q -n 2 -p no:cacheprovider --phone ${PHONE} tests
    WORKING_DIRECTORY ${WORK} COMMAND_ERROR_IS_FATAL ANY)
