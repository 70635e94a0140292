# What the compiler and the linker do against a bug that a file or a page from outside could use:
# code at places that change from start to start, tables of functions that are read-only once the
# program runs, guarded stacks, and copies that end the program before they leave their buffer.
#
# Linux; the toolchains of other platforms have their own defaults. Not under sanitizers, which watch
# the same and know only the plain copies. tests/packaging/hardening reads from the built program
# that it is so.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux" OR HV_SANITIZE)
    return()
endif()

include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
check_pie_supported(LANGUAGES CXX)

# hv_harden(<option>…): each for all targets, if the compiler has it.
function(hv_harden)
    foreach(option IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "HV_HAS${option}" known)
        check_cxx_compiler_flag(${option} ${known})
        if(${known})
            add_compile_options(${option})
        endif()
    endforeach()
endfunction()

# hv_harden_links(<option>…): the same for the linker.
function(hv_harden_links)
    foreach(option IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "HV_HAS${option}" known)
        check_linker_flag(CXX ${option} ${known})
        if(${known})
            add_link_options(${option})
        endif()
    endforeach()
endfunction()

hv_harden(-fstack-protector-strong -fstack-clash-protection -fcf-protection)
hv_harden_links(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
# Needs the optimizer. Undefined first: who makes packages may have set the level already, and a
# system too old for 3 takes it for 2.
add_compile_options(
    "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>")
