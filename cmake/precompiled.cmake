# The headers that most sources include, read once for a whole target: they are three quarters of
# what the compiler has to do. Sources name what they include all the same; one compiled for the
# native tests, where each target is one unit, would not miss it.
set(standard_headers
  <algorithm> <array> <cstdint> <functional> <memory> <optional> <span> <string> <string_view>
  <utility> <vector>)

# precompile(TARGET [HEADER...]): for a target of its own settings.
function(precompile target)
  if(NOT CMAKE_UNITY_BUILD)
    target_precompile_headers(${target} PRIVATE ${standard_headers} ${ARGN})
  endif()
endfunction()

# precompile_as(TARGET OTHER): for one with the settings of another.
function(precompile_as target other)
  if(NOT CMAKE_UNITY_BUILD)
    target_precompile_headers(${target} REUSE_FROM ${other})
  endif()
endfunction()
