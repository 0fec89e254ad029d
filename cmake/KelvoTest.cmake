# kelvo_test(NAME LIBRARY SOURCES...): a QtTest program in a bundle of its own (BUILD/tests/NAME/bin/NAME with an empty
# Resources beside bin), where a test can put a fake helper while other tests run. HOME, settings and runtime directory are
# private to the test, the language is fixed.
function(kelvo_test name library)
    set(bundle "${CMAKE_BINARY_DIR}/tests/${name}")
    add_executable(${name} ${ARGN})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${bundle}/bin")
    target_link_libraries(${name} PRIVATE ${library} Qt6::Test)
    if(Qt6_VERSION VERSION_GREATER_EQUAL 6.8)
        # Its QTRY macros narrow a duration.
        set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -Wno-conversion)
    endif()
    file(MAKE_DIRECTORY "${bundle}/Resources" "${bundle}/home" "${bundle}/run")
    file(CHMOD "${bundle}/run" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "HOME=${bundle}/home;XDG_CONFIG_HOME=${bundle}/home/.config;XDG_RUNTIME_DIR=${bundle}/run;QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TSAN_OPTIONS=die_after_fork=0")
endfunction()
