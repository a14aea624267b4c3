# What every target of this project has in common: the root as include path, strict warnings.
function(glyphgrove_target target)
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    endif()
endfunction()
