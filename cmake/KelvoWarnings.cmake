# Warnings and sanitizers of all targets of this project.
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

if(KELVO_FUZZ)
    target_compile_options(kelvo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
