# The compiler's runtime beside our programs: shared, since exceptions cross the edge of the library, and
# without its debug information, for which each start of a program would pay.
file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
set(zdx_runtime_dlls)
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
    OUTPUT_VARIABLE dll_file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_STRIP} -o ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll} ${dll_file}
    COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND zdx_runtime_dlls ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll})
endforeach()
