# Part of the installation: lets the library's headers in INCLUDE_FOLDER include those of the toolkit with their folder.

file(GLOB public_headers ${INCLUDE_FOLDER}/DisplayAPI/*.h)
file(GLOB toolkit_headers RELATIVE ${INCLUDE_FOLDER}/displaytoolkit ${INCLUDE_FOLDER}/displaytoolkit/*.h)
foreach(header IN LISTS public_headers)
    file(READ ${header} text)
    set(named "${text}")
    foreach(name IN LISTS toolkit_headers)
        string(REPLACE "#include <${name}>" "#include <displaytoolkit/${name}>" named "${named}")
    endforeach()
    if(NOT named STREQUAL text)
        file(WRITE ${header} "${named}")
    endif()
endforeach()
