# Makes the Debian packages of a build, lays them down in a folder, and works with what lies there: the telephone, a
# program that is built with it, and a test with the kit. Run with `cmake -D NAME=VALUE ... -P DebianTest.cmake`:
#
#   BUILD, WORK      the build, and a folder that is made anew
#   COMPILER         for the program
#   PYTHON           the interpreter with pytest

cmake_minimum_required(VERSION 3.25)

include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
cmake_path(GET CMAKE_COMMAND PARENT_PATH tools)
run(nothing ${tools}/cpack --config ${BUILD}/CPackConfig.cmake -B ${WORK}/packages)
foreach(name libdisplayapi0 libdisplayapi-dev displayapi-simulator python3-phonekit)
    file(GLOB package ${WORK}/packages/${name}_*.deb)
    if(NOT package)
        message(FATAL_ERROR "there is no package ${name}")
    endif()
    # What it needs is there in Debian, or is one of these.
    run(depends dpkg-deb --field ${package} Depends)
    message(STATUS "${name}: ${depends}")
    run(nothing dpkg-deb --extract ${package} ${WORK}/root)
endforeach()

set(usr ${WORK}/root/usr)
run(text ${usr}/bin/phone --text)
if(NOT text MATCHES "caption:")
    message(FATAL_ERROR "the telephone shows nothing:\n${text}")
endif()

run(nothing ${CMAKE_COMMAND} -G Ninja -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${WORK}/build
    -D CMAKE_PREFIX_PATH=${usr} -D CMAKE_CXX_COMPILER=${COMPILER} -D WITH_SIMULATOR=ON)
run(nothing ${CMAKE_COMMAND} --build ${WORK}/build)

file(WRITE ${WORK}/test_phonelet.py [[
from phonekit import expect


def test_the_row_is_shown(phone):
    expect(phone).to_show("caption:Audio output")
    assert "Speaker" in phone.screen
]])
run(text ${CMAKE_COMMAND} -E env PYTHONPATH=${usr}/lib/python3/dist-packages
    ${PYTHON} -m pytest -p no:cacheprovider --phone ./build/phonelet test_phonelet.py)
if(NOT text MATCHES "1 passed")
    message(FATAL_ERROR "the kit has tested nothing:\n${text}")
endif()
