# The program's version goes from the project into everything that states it: the header
# base/version.h, which target "version" brings, and the resources of the programs. The site's pages
# take it from the project as well (site/make_site.py).
if(NOT PROJECT_VERSION MATCHES "^[0-9]\\.[0-9]\\.[0-9]$")
  # The update file has one digit for each part.
  message(FATAL_ERROR "A version is three digits with points between them, not ${PROJECT_VERSION}")
endif()
string(REPLACE "." "" version_number ${PROJECT_VERSION})
string(REPLACE "." "," version_fields ${PROJECT_VERSION})

set(generated ${CMAKE_BINARY_DIR}/generated)
configure_file(${PROJECT_SOURCE_DIR}/base/version.h.in ${generated}/base/version.h @ONLY)
add_library(version INTERFACE)
target_include_directories(version INTERFACE ${generated})

configure_file(${PROJECT_SOURCE_DIR}/resources/tonmira.manifest.in
  ${generated}/resources/tonmira.manifest @ONLY)

# add_version_resource(TARGET FILE DESCRIPTION): gives a program, which ships as FILE, the version
# information that Windows shows.
function(add_version_resource target file description)
  configure_file(${PROJECT_SOURCE_DIR}/resources/version.rc.in
    ${generated}/resources/${target}_version.rc @ONLY)
  target_sources(${target} PRIVATE ${generated}/resources/${target}_version.rc)
endfunction()
