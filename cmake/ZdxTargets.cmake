# The build's rules, in one place.

# Warnings are errors; names are hidden unless marked.
add_library(zdx_options INTERFACE)
target_compile_features(zdx_options INTERFACE cxx_std_20)
target_compile_options(zdx_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Werror -fvisibility=hidden -fvisibility-inlines-hidden)
# GCC 12 sees overlaps in sums of strings where there are none (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  set(ZDX_GCC12 ON)
  target_compile_options(zdx_options INTERFACE -Wno-restrict)
endif()
target_include_directories(zdx_options INTERFACE ${PROJECT_SOURCE_DIR}/include)
if(WIN32)
  # Unicode calls alone, of Windows 7 and later; no macros over common names that can be had without.
  target_compile_definitions(zdx_options INTERFACE
    UNICODE _UNICODE NOMINMAX STRICT WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
endif()
if(ZDX_SANITIZE)
  target_compile_options(zdx_options INTERFACE -fsanitize=address -fno-omit-frame-pointer
    "$<$<NOT:$<BOOL:$<TARGET_PROPERTY:ZDX_IS_TEST>>>:-fsanitize=undefined;-fno-sanitize-recover=all>")
  target_link_options(zdx_options INTERFACE -fsanitize=address,undefined)
endif()

# What is different on each system stands in a folder of the system's name.
if(WIN32)
  set(ZDX_SYSTEM windows)
else()
  set(ZDX_SYSTEM posix)
endif()

# zdx_keep_apart(source...): leaves what calls Windows itself out of builds in groups, for its headers
# define names that others use.
function(zdx_keep_apart)
  set(sources ${ARGN})
  list(FILTER sources INCLUDE REGEX "(^|/)windows/")
  set_source_files_properties(${sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# zdx_quick_builds(): what the folder and those below add from here on is compiled fast rather than to
# run fast, whatever the preset says.
macro(zdx_quick_builds)
  add_compile_options(-O0)
endmacro()

# zdx_mark_tests(FOLDER): what the tests' folders build isn't itself looked through for undefined
# behaviour, which takes as long to compile again as the tests do; what it calls is.
function(zdx_mark_tests folder)
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target ${targets})
    set_target_properties(${target} PROPERTIES ZDX_IS_TEST ON)
  endforeach()
  get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(within ${folders})
    zdx_mark_tests(${within})
  endforeach()
endfunction()

# zdx_layer(NAME FOLDER target...): the static target zdx_NAME of the sources in src/FOLDER and in the
# system's folder there, linked to the targets named.
function(zdx_layer name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp
    ${PROJECT_SOURCE_DIR}/src/${folder}/${ZDX_SYSTEM}/*.cpp)
  zdx_keep_apart(${sources})
  add_library(zdx_${name} STATIC ${sources})
  set_target_properties(zdx_${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_include_directories(zdx_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(zdx_${name} PUBLIC ZDXENGINE_STATIC PRIVATE ZDXENGINE_BUILDING)
  target_link_libraries(zdx_${name} PUBLIC zdx_options ${ARGN})
endfunction()

# What the sanitizers would change is built by this target, and has this label among CTest's tests: the
# module as it is handed out, and what hostile files cost.
add_custom_target(zdx_plain_tests)

# zdx_test(NAME source... [LINK target...] [PARTS count] [PLAIN]): a GoogleTest program of which each test
# is one of CTest; under the sanitizers and for Windows the program is, or each of its parts if it takes
# long.  PLAIN: the sanitizers would change it.
function(zdx_test name)
  cmake_parse_arguments(arg "PLAIN" "PARTS" "LINK" ${ARGN})
  if(NOT arg_PARTS)
    set(arg_PARTS 1)
  endif()
  zdx_keep_apart(${arg_UNPARSED_ARGUMENTS})
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE ZDX_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE zdx_options ${arg_LINK} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} REUSE_FROM zdx_test_headers)
  if(ZDX_GCC12)
    # Nor are the overruns that it sees in sums of temporary strings, which tests are full of.
    target_compile_options(${name} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
  if(ZDX_SANITIZE OR WIN32)
    # Starting a process costs the sanitizers, and Wine, more than most tests do.
    math(EXPR last "${arg_PARTS} - 1")
    foreach(part RANGE ${last})
      add_test(NAME ${name}_${part} COMMAND ${name} --gtest_brief=1)
      set_tests_properties(${name}_${part} PROPERTIES TIMEOUT 300)
      if(last)
        set_tests_properties(${name}_${part} PROPERTIES
          ENVIRONMENT "GTEST_TOTAL_SHARDS=${arg_PARTS};GTEST_SHARD_INDEX=${part}")
      endif()
    endforeach()
  else()
    set(label)
    if(arg_PLAIN)
      add_dependencies(zdx_plain_tests ${name})
      set(label LABELS plain)
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
      PROPERTIES TIMEOUT 120 ${label})
  endif()
endfunction()
