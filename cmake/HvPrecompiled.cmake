# What Qt's headers say, parsed once for each kind of target instead of once for each source; see
# hv_precompile(). A target may define more than the owner of its headers, so the owners define no
# more than what all targets of their kind do, and take only places from the modules they include.
function(hv_add_precompiled kind type)
    set(target hv_${kind}_headers)
    if(type STREQUAL "executable")
        add_executable(${target} EXCLUDE_FROM_ALL cmake/precompiled/main.cpp)
    else()
        add_library(${target} STATIC EXCLUDE_FROM_ALL cmake/precompiled/nothing.cpp)
    endif()
    target_link_libraries(${target} PRIVATE Qt6::Core hv_warnings)
    foreach(module IN LISTS ARGN)
        target_include_directories(${target} SYSTEM PRIVATE
            $<TARGET_PROPERTY:${module},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_precompile_headers(${target} PRIVATE cmake/precompiled/${kind}.h)
endfunction()

if(NOT MSVC)
    hv_add_precompiled(plain library Qt6::Gui)
    hv_add_precompiled(quick library Qt6::Gui Qt6::Network Qt6::OpenGL Qt6::Qml Qt6::QmlModels
        Qt6::QmlIntegration Qt6::Quick)
    if(HV_TESTS)
        hv_add_precompiled(test executable Qt6::Gui)
        target_link_libraries(hv_test_headers PRIVATE GTest::gtest)
    endif()
endif()
