# What makes the program one of the Windows desktop's: its icon, its version, its manifest. They are compiled into it.
find_program(ICOTOOL icotool REQUIRED)
set(picture ${PROJECT_SOURCE_DIR}/app/resources/glyphgrove)
add_custom_command(
    OUTPUT ${PROJECT_BINARY_DIR}/glyphgrove.ico
    COMMAND ${ICOTOOL} --create --output=${PROJECT_BINARY_DIR}/glyphgrove.ico
            ${picture}-16.png ${picture}-32.png ${picture}-48.png ${picture}-64.png --raw=${picture}-256.png
    DEPENDS ${picture}-16.png ${picture}-32.png ${picture}-48.png ${picture}-64.png ${picture}-256.png)

string(REPLACE "." "," version_numbers ${PROJECT_VERSION})
configure_file(${CMAKE_CURRENT_LIST_DIR}/program.rc.in ${PROJECT_BINARY_DIR}/program.rc @ONLY)
set_source_files_properties(${PROJECT_BINARY_DIR}/program.rc PROPERTIES
    OBJECT_DEPENDS "${PROJECT_BINARY_DIR}/glyphgrove.ico;${CMAKE_CURRENT_LIST_DIR}/program.manifest"
    INCLUDE_DIRECTORIES "${PROJECT_BINARY_DIR};${CMAKE_CURRENT_LIST_DIR}")
target_sources(glyphgrove PRIVATE ${PROJECT_BINARY_DIR}/program.rc ${PROJECT_BINARY_DIR}/glyphgrove.ico)
