# add_layer(NAME [NEEDS LAYER...] SOURCES PATTERN...): a layer of the portable code. What a pattern
# shares with the layer "rules" is left to that.
function(add_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "NEEDS;SOURCES")
  list(TRANSFORM layer_SOURCES PREPEND ${PROJECT_SOURCE_DIR}/)
  file(GLOB sources CONFIGURE_DEPENDS ${layer_SOURCES})
  if(TARGET rules)
    get_target_property(pure rules SOURCES)
    list(REMOVE_ITEM sources ${pure})
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC build_settings ${layer_NEEDS})
endfunction()
