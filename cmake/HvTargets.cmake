# The kinds of target in this project. A folder's CMakeLists.txt calls these and nothing else.

# A display that nobody sees, large enough for the window: the platform's own is 800 × 800.
set(HV_OFFSCREEN "offscreen:configfile=${PROJECT_SOURCE_DIR}/cmake/display.json")

# hv_precompile(<target> <kind>)
# Reads Qt's headers from what was parsed once for all targets of the kind: "plain" libraries,
# "quick" modules or "test" programs. It saves time and nothing else: sources include what they use,
# and a build with CMAKE_DISABLE_PRECOMPILE_HEADERS shows that they do.
function(hv_precompile target kind)
    if(NOT MSVC) # whose precompiled headers hold the flags of one target
        target_precompile_headers(${target} REUSE_FROM hv_${kind}_headers)
    endif()
endfunction()

# hv_add_library(<name> SOURCES … PUBLIC … PRIVATE …)
# A plain C++ library: Qt Core, at most Qt Gui, no QML header. PUBLIC is what its headers show.
function(hv_add_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} hv_strict)
    hv_precompile(${name} plain)
    # QML modules name types of plain libraries; they read them from this description.
    qt_extract_metatypes(${name})
endfunction()

# hv_add_qml_module(<folder> URI … SOURCES … QML_FILES … PUBLIC … PRIVATE … BASED_ON …)
# The folder's QML module, target hv_<folder>_qml. BASED_ON names modules whose types its C++ types
# derive from.
function(hv_add_qml_module folder)
    cmake_parse_arguments(arg "" "URI" "SOURCES;QML_FILES;PUBLIC;PRIVATE;BASED_ON" ${ARGN})
    set(target hv_${folder}_qml)
    string(REPLACE "." "/" path "${arg_URI}")
    # Inside the module a file is known by its name alone: components sit flat in the module
    # whichever folder of the source tree they come from.
    foreach(file IN LISTS arg_QML_FILES)
        get_filename_component(alias "${file}" NAME)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
    endforeach()
    qt_add_library(${target} STATIC)
    qt_add_qml_module(${target}
        URI ${arg_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/qml/${path}"
        SOURCES ${arg_SOURCES}
        QML_FILES ${arg_QML_FILES}
        DEPENDENCIES QtQuick ${arg_BASED_ON}
        IMPORT_PATH "${PROJECT_BINARY_DIR}/qml")
    # The generated registration includes headers by their names alone.
    set(folders)
    foreach(file IN LISTS arg_SOURCES)
        get_filename_component(in "${CMAKE_CURRENT_SOURCE_DIR}/${file}" DIRECTORY)
        list(APPEND folders "${in}")
    endforeach()
    list(REMOVE_DUPLICATES folders)
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src" PRIVATE ${folders})
    target_link_libraries(${target}
        PUBLIC Qt6::Quick ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} hv_warnings)
    hv_precompile(${target} quick)
endfunction()

# hv_add_qml_plugin(<folder> URI … CLASS … SOURCES … QML_FILES … PRIVATE … BASED_ON …)
# A QML module that the program isn't linked with but loads when it needs it, from the folder
# HVInfo::pluginFolder(). CLASS is its QQmlEngineExtensionPlugin, among the sources; BASED_ON as above.
function(hv_add_qml_plugin folder)
    cmake_parse_arguments(arg "" "URI;CLASS" "SOURCES;QML_FILES;PRIVATE;BASED_ON" ${ARGN})
    set(target hv_${folder}_plugin)
    string(REPLACE "." "/" path "${arg_URI}")
    qt_add_qml_module(${target} SHARED
        PLUGIN_TARGET ${target}
        CLASS_NAME ${arg_CLASS}
        NO_GENERATE_PLUGIN_SOURCE
        NO_PLUGIN_OPTIONAL
        URI ${arg_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/plugins/${path}"
        SOURCES ${arg_SOURCES}
        QML_FILES ${arg_QML_FILES}
        DEPENDENCIES QtQuick ${arg_BASED_ON})
    target_include_directories(${target}
        PRIVATE "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${target} PRIVATE Qt6::Quick ${arg_PRIVATE} hv_warnings)
    set(place "lib/crvn-halvorin/${path}")
    install(TARGETS ${target}
        LIBRARY DESTINATION "${place}" COMPONENT ${folder}
        RUNTIME DESTINATION "${place}" COMPONENT ${folder})
    install(FILES "${PROJECT_BINARY_DIR}/plugins/${path}/qmldir"
        DESTINATION "${place}" COMPONENT ${folder})
endfunction()

# hv_add_test(<folder> [AT_ONCE] SOURCES … LINK … DEFINE …)
# A folder's GoogleTest program; ctest lists each of its tests by name. With AT_ONCE it lists the program
# alone and runs all tests in one process, for tests that share what takes long to make.
function(hv_add_test folder)
    cmake_parse_arguments(arg "AT_ONCE" "" "SOURCES;LINK;DEFINE" ${ARGN})
    set(target test_${folder})
    add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_compile_definitions(${target} PRIVATE ${arg_DEFINE})
    target_link_libraries(${target} PRIVATE hv_warnings ${arg_LINK} GTest::gtest)
    hv_precompile(${target} test)
    set(environment "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software")
    if(arg_AT_ONCE)
        add_test(NAME ${target} COMMAND ${target})
        set_tests_properties(${target} PROPERTIES
            TIMEOUT 900
            LABELS ${folder}
            ENVIRONMENT "${environment}")
    else()
        gtest_discover_tests(${target}
            DISCOVERY_TIMEOUT 60
            PROPERTIES
                TIMEOUT 300
                LABELS ${folder}
                ENVIRONMENT "${environment}")
    endif()
endfunction()

# hv_add_qml_test(<folder> SOURCES … LINK …)
# A Qt Quick Test program over the tst_*.qml files beside it.
function(hv_add_qml_test folder)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target qmltest_${folder})
    add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE
        HV_OFFSCREEN="${HV_OFFSCREEN}"
        QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${target} PRIVATE hv_warnings ${arg_LINK} Qt6::QuickTest)
    add_test(NAME ${target} COMMAND ${target})
    set_tests_properties(${target} PROPERTIES
        TIMEOUT 300
        LABELS ${folder}
        ENVIRONMENT "QT_QPA_PLATFORM=${HV_OFFSCREEN};QT_QUICK_BACKEND=software")
endfunction()

# hv_add_fuzz(<name> SOURCES … LINK …)
# A fuzz target, see tests/support/fuzz.h. As a rule it is the test fuzz_inputs_<name> of what is kept
# in tests/fuzz-inputs/<name>; with HV_FUZZ it is the program build-fuzz/fuzz/<name>, built by the
# target "fuzzers", which finds more of that.
function(hv_add_fuzz name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target fuzz_${name})
    set(support "${PROJECT_SOURCE_DIR}/tests/support")
    if(HV_FUZZ)
        add_executable(${target} EXCLUDE_FROM_ALL ${arg_SOURCES} "${support}/fuzzengine.cpp")
        add_dependencies(fuzzers ${target})
        set_target_properties(${target} PROPERTIES
            OUTPUT_NAME ${name}
            RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/fuzz")
        target_link_options(${target} PRIVATE -fsanitize=fuzzer)
    else()
        add_executable(${target} ${arg_SOURCES} "${support}/fuzzkept_test.cpp")
        target_compile_definitions(${target} PRIVATE
            HV_FUZZ_INPUTS="${PROJECT_SOURCE_DIR}/tests/fuzz-inputs/${name}")
        target_link_libraries(${target} PRIVATE hv_test_main_core GTest::gtest)
        hv_precompile(${target} test)
        add_test(NAME fuzz_inputs_${name} COMMAND ${target})
        set_tests_properties(fuzz_inputs_${name} PROPERTIES TIMEOUT 300 LABELS fuzz)
    endif()
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${target} PRIVATE hv_warnings hv_fuzz ${arg_LINK})
endfunction()

# hv_add_bench(<name> SOURCES … LINK …)
# A Google Benchmark program, build/bench/<name>; built by the target "benchmarks" and never run by
# ctest.
function(hv_add_bench name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target bench_${name})
    add_executable(${target} EXCLUDE_FROM_ALL ${arg_SOURCES})
    add_dependencies(benchmarks ${target})
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        OUTPUT_NAME ${name}
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bench")
    target_link_libraries(${target} PRIVATE hv_warnings ${arg_LINK} benchmark::benchmark)
endfunction()
