# Cross-compiling for 64-bit Windows with Debian's MinGW-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
get_filename_component(project_folder ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)

# By their full names: the plain ones may be of the other thread model.
set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

# What .ci/windows-libraries makes comes first; nothing of this machine's own system is looked at.
set(CMAKE_FIND_ROOT_PATH ${project_folder}/build/windows-libraries /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The one that needs no DLL.
set(ZLIB_LIBRARY /usr/${triple}/lib/libz.a)

set(CMAKE_CROSSCOMPILING_EMULATOR ${project_folder}/.ci/wine)
