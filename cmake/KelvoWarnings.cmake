# Warnings and sanitizers of every target of ours; nothing of it leaks into generated Qt code's warnings.
add_library(kelvo_options INTERFACE)
target_compile_options(kelvo_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${KELVO_WERROR}>:-Werror>)
target_include_directories(kelvo_options INTERFACE "${PROJECT_SOURCE_DIR}")

if(KELVO_SANITIZE)
    target_compile_options(kelvo_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kelvo_options INTERFACE -fsanitize=address,undefined)
endif()

# kelvo_helper(NAME SOURCES...): one of the small programs in Resources. Static, since half of a sample's cost is
# starting it (not under a sanitizer, which needs the dynamic loader).
function(kelvo_helper name)
    add_executable(${name} ${ARGN})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF
        RUNTIME_OUTPUT_DIRECTORY "${KELVO_RESOURCES_DIR}")
    target_link_libraries(${name} PRIVATE kelvo_options)
    if(KELVO_SYSTEM STREQUAL "Linux" AND NOT KELVO_SANITIZE)
        target_link_options(${name} PRIVATE -static)
    endif()
endfunction()
