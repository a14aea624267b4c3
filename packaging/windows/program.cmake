# Compiles the program's icon, version and manifest into it.
string(REPLACE "." "," version_numbers ${PROJECT_VERSION})
configure_file(${CMAKE_CURRENT_LIST_DIR}/program.rc.in ${PROJECT_BINARY_DIR}/program.rc @ONLY)
set_source_files_properties(${PROJECT_BINARY_DIR}/program.rc PROPERTIES
    OBJECT_DEPENDS "${CMAKE_CURRENT_LIST_DIR}/glyphgrove.ico;${CMAKE_CURRENT_LIST_DIR}/program.manifest"
    INCLUDE_DIRECTORIES ${CMAKE_CURRENT_LIST_DIR})
target_sources(glyphgrove PRIVATE ${PROJECT_BINARY_DIR}/program.rc)
