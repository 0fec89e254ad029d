# Which system's files are built: Linux or MacOs. Systems differ by file choice only.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    set(KELVO_SYSTEM "Linux")
elseif(CMAKE_SYSTEM_NAME STREQUAL "Darwin")
    set(KELVO_SYSTEM "MacOs")
else()
    message(FATAL_ERROR "Kelvo is not ported to ${CMAKE_SYSTEM_NAME}: it runs on Linux and macOS.")
endif()

if(CMAKE_SIZEOF_VOID_P LESS 8)
    message(FATAL_ERROR "Kelvo needs a 64-bit system: freeing maps files larger than 32 bits can address.")
endif()

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# The layout that the program relies on: BUILD/bin/kelvo, and beside bin the Resources directory.
set(KELVO_BIN_DIR "${CMAKE_BINARY_DIR}/bin")
set(KELVO_RESOURCES_DIR "${CMAKE_BINARY_DIR}/Resources")
if(KELVO_SYSTEM STREQUAL "MacOs")
    set(KELVO_RESOURCES_DIR "${KELVO_BIN_DIR}/Kelvo.app/Contents/Resources")
endif()
