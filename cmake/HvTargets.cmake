# The five kinds of target in this project. A folder's CMakeLists.txt calls these and nothing else.

# hv_add_library(<name> SOURCES … LINK …)
# A plain C++ library: Qt Core, at most Qt Gui, no QML header. What it links is public, so that a
# target never needs to name what its headers show.
function(hv_add_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE hv_strict)
    # QML modules name types of plain libraries; they read them from this description.
    qt_extract_metatypes(${name})
endfunction()

# hv_add_qml_module(<folder> URI … SOURCES … QML_FILES … LINK … BASED_ON …)
# The folder's QML module, target hv_<folder>_qml. BASED_ON names modules whose types its C++ types
# derive from.
function(hv_add_qml_module folder)
    cmake_parse_arguments(arg "" "URI" "SOURCES;QML_FILES;LINK;BASED_ON" ${ARGN})
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
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src"
        PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/qml")
    target_link_libraries(${target} PUBLIC Qt6::Quick ${arg_LINK} PRIVATE hv_warnings)
endfunction()

# hv_add_test(<name> SOURCES … LINK …)
# A GoogleTest program; ctest lists each of its tests by name.
function(hv_add_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target test_${name})
    add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${target} PRIVATE hv_warnings ${arg_LINK} GTest::gtest)
    gtest_discover_tests(${target}
        DISCOVERY_TIMEOUT 60
        PROPERTIES
            TIMEOUT 300
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software")
endfunction()

# hv_add_qml_test(<name> SOURCES … LINK …)
# A Qt Quick Test program over the tst_*.qml files beside it.
function(hv_add_qml_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target qmltest_${name})
    add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE
        QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${target} PRIVATE hv_warnings ${arg_LINK} Qt6::QuickTest)
    add_test(NAME ${target} COMMAND ${target})
    set_tests_properties(${target} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software")
endfunction()

# hv_add_bench(<name> SOURCES … LINK …)
# A Google Benchmark program, build/bench/<name>; never run by ctest.
function(hv_add_bench name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target bench_${name})
    add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        OUTPUT_NAME ${name}
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bench")
    target_link_libraries(${target} PRIVATE hv_warnings ${arg_LINK} benchmark::benchmark)
endfunction()
