# The makers of drawings, which belong to the tests; the benchmarks use them too.
include_guard(GLOBAL)
set(zdx_support ${PROJECT_SOURCE_DIR}/tests/support)
file(GLOB zdx_maker_sources CONFIGURE_DEPENDS
  ${zdx_support}/drawing/*.cpp ${zdx_support}/drawing/${ZDX_SYSTEM}/*.cpp
  ${zdx_support}/dxf/*.cpp ${zdx_support}/dwg/*.cpp)
list(FILTER zdx_maker_sources EXCLUDE REGEX "Test\\.cpp$")
zdx_keep_apart(${zdx_maker_sources})
add_library(zdx_test_makers STATIC ${zdx_maker_sources})
target_include_directories(zdx_test_makers PUBLIC ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(zdx_test_makers PUBLIC zdx_options)
if(NOT WIN32)
  find_package(Iconv REQUIRED)
  target_link_libraries(zdx_test_makers PRIVATE Iconv::Iconv)
endif()
