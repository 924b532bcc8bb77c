# Installs a build into a folder of its own, and builds and runs programs with what lies there: once through
# find_package, once through pkg-config. Run with `cmake -D NAME=VALUE ... -P PackageTest.cmake`:
#
#   BUILD, WORK      the build to install, and a folder that is made anew
#   COMPILER, FLAGS  with which the build was made: who links a sanitized library needs its sanitizer
#   GENERATOR        for the build of the programs
#   PKG_CONFIG       the program, or empty
#   SIMULATOR        whether the simulator is in the build

cmake_minimum_required(VERSION 3.25)

include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

function(expect_speaker title text)
    if(NOT text MATCHES "Speaker")
        message(FATAL_ERROR "${title} does not show its row:\n${text}")
    endif()
    message(STATUS "${title}: ok")
endfunction()

function(build_with_pkg_config package source program)
    run(flags ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${library_folder}/pkgconfig
        ${PKG_CONFIG} --cflags --libs ${package})
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(nothing ${COMPILER} -std=c++20 ${compile_flags} ${consumer}/${source} -o ${program}
        ${flags} -Wl,-rpath,${library_folder})
endfunction()

# Every header that was installed is found by the others, also by a program that has headers of its own with the names
# of the toolkit's; and that finds its own.
function(compile_all_headers)
    file(GLOB headers RELATIVE ${WORK}/prefix/include ${WORK}/prefix/include/DisplayAPI/*.h
        ${WORK}/prefix/include/displaytoolkit/*.h)
    file(GLOB names RELATIVE ${WORK}/prefix/include/displaytoolkit ${WORK}/prefix/include/displaytoolkit/*.h)
    set(text "")
    foreach(header IN LISTS headers)
        string(APPEND text "#include <${header}>\n")
    endforeach()
    foreach(name IN LISTS names)
        cmake_path(GET name STEM word)
        file(WRITE ${WORK}/own/${name} "#define OWN_${word}\n")
        string(APPEND text "#ifdef OWN_${word}\n#error a header of the package has taken ${name}\n#endif\n"
            "#include <${name}>\n#ifndef OWN_${word}\n#error the program has not found its ${name}\n#endif\n")
    endforeach()
    file(WRITE ${WORK}/headers.cpp "${text}")
    foreach(folders "${WORK}/own;${WORK}/prefix/include" "${WORK}/prefix/include;${WORK}/own")
        list(TRANSFORM folders PREPEND -I)
        run(nothing ${COMPILER} -std=c++20 -fsyntax-only ${folders} ${WORK}/headers.cpp)
    endforeach()
    message(STATUS "headers: ok")
endfunction()

set(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer)
separate_arguments(compile_flags UNIX_COMMAND "${FLAGS}")
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
run(nothing ${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
file(GLOB_RECURSE library ${WORK}/prefix/*/libDisplayAPI.so)
cmake_path(GET library PARENT_PATH library_folder)

compile_all_headers()

run(nothing ${CMAKE_COMMAND} -G ${GENERATOR} -S ${consumer} -B ${WORK}/build
    -D CMAKE_PREFIX_PATH=${WORK}/prefix -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_CXX_FLAGS=${FLAGS}
    -D WITH_SIMULATOR=${SIMULATOR})
run(nothing ${CMAKE_COMMAND} --build ${WORK}/build)
run(text ${WORK}/build/screen-text)
expect_speaker("find_package" "${text}")
if(SIMULATOR)
    run(text ${WORK}/build/phonelet --text)
    expect_speaker("find_package with the simulator" "${text}")
    run(text ${WORK}/prefix/bin/phone --text)
    if(NOT text MATCHES "name:IdleDisplay\n")
        message(FATAL_ERROR "the installed telephone: ${text}")
    endif()
    file(WRITE ${WORK}/desktop.script "expect-desktop string2:4711\n")
    run(nothing ${WORK}/prefix/bin/phone --script ${WORK}/desktop.script)
endif()

if(PKG_CONFIG)
    build_with_pkg_config(DisplayAPI screen-text.cpp ${WORK}/screen-text)
    run(text ${WORK}/screen-text)
    expect_speaker("pkg-config" "${text}")
    if(SIMULATOR)
        build_with_pkg_config(PhoneSimulator phonelet.cpp ${WORK}/phonelet)
        run(text ${WORK}/phonelet --text)
        expect_speaker("pkg-config with the simulator" "${text}")
    endif()
endif()
