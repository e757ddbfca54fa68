# What .ci/package-windows installs: the tool, the library, and all that they need on a machine that has
# nothing of it.
install(TARGETS zdx ZDXEngine RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)

install(PROGRAMS ${zdx_runtime_dlls} DESTINATION bin)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ZDXEngine DESTINATION include)
install(FILES ${PROJECT_SOURCE_DIR}/docs/cli.md ${PROJECT_SOURCE_DIR}/docs/json.md DESTINATION docs)
install(FILES ${PROJECT_SOURCE_DIR}/examples/read_properties.cpp
  ${PROJECT_SOURCE_DIR}/examples/site-plan.dwg DESTINATION examples)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/windows-libraries/share/licences/ DESTINATION licences)
configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/README.txt.in ${CMAKE_CURRENT_BINARY_DIR}/README.txt
  @ONLY NEWLINE_STYLE DOS)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt DESTINATION .)
