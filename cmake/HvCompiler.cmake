# The language, the warnings and the sanitizers that every target shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_compile_definitions(
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# hv_strict carries the warnings of the plain libraries. Code that Qt generates for QML modules
# trips -Wshadow and -Wconversion, so those modules link hv_warnings only.
add_library(hv_warnings INTERFACE)
add_library(hv_strict INTERFACE)
if(MSVC)
    target_compile_options(hv_warnings INTERFACE /W4)
    if(HV_WARNINGS_AS_ERRORS)
        target_compile_options(hv_warnings INTERFACE /WX)
    endif()
else()
    # Records are filled by named field; the fields left out have their defaults on purpose.
    target_compile_options(hv_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wno-missing-field-initializers)
    target_compile_options(hv_strict INTERFACE -Wshadow -Wconversion -Wno-sign-conversion)
    if(HV_WARNINGS_AS_ERRORS)
        target_compile_options(hv_warnings INTERFACE -Werror)
    endif()
endif()
target_link_libraries(hv_strict INTERFACE hv_warnings)

if(HV_SANITIZE)
    add_compile_options(-fsanitize=${HV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${HV_SANITIZE})
    # Instrumented code hides from the compiler that an optional is checked before it is read; that
    # nothing unset is read is the sanitizers' own business.
    target_compile_options(hv_warnings INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    # The longest comparisons of the tests then take a sample.
    add_compile_definitions(HV_SANITIZED)
endif()
