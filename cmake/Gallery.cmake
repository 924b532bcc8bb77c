# docs/gallery: every screen that a script takes. `cmake --build --preset dev --target docs-gallery` makes it.

find_program(GALLERY_PYTHON python3)
set(GALLERY_FOLDER ${PROJECT_SOURCE_DIR}/docs/gallery)

# Adds the screens of a script; more arguments are options of the program. The gallery of widgets has no script.
function(add_to_gallery name program script)
    list(JOIN ARGN " " options)
    set_property(GLOBAL APPEND_STRING PROPERTY GALLERY_RUNS "${name}\t$<TARGET_FILE:${program}>\t${script}\t${options}\n")
    set_property(GLOBAL APPEND PROPERTY GALLERY_PROGRAMS ${program})
endfunction()

# Makes the target, and the test that finds what belongs to no script; behind all that has been added.
function(finish_gallery)
    if(NOT GALLERY_PYTHON)
        return()
    endif()
    get_property(runs GLOBAL PROPERTY GALLERY_RUNS)
    get_property(programs GLOBAL PROPERTY GALLERY_PROGRAMS)
    list(REMOVE_DUPLICATES programs)
    file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/gallery-runs.txt CONTENT "${runs}")
    set(command ${GALLERY_PYTHON} ${PROJECT_SOURCE_DIR}/cmake/gallery.py ${PROJECT_BINARY_DIR}/gallery-runs.txt
        ${PROJECT_SOURCE_DIR})
    add_custom_target(docs-gallery COMMAND ${command} --update DEPENDS ${programs} USES_TERMINAL VERBATIM)
    if(DISPLAYAPI_TESTS)
        add_test(NAME Gallery.PagesShowEveryScreen COMMAND ${command})
        set_tests_properties(Gallery.PagesShowEveryScreen PROPERTIES LABELS simulator)
    endif()
endfunction()
