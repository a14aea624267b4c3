# Strips the program as Debian's own packages are: of its symbols and of the compiler's notes, which CPack would leave.
execute_process(COMMAND strip --remove-section=.comment ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/glyphgrove
    COMMAND_ERROR_IS_FATAL ANY)
