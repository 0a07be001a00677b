# The headers that most sources include, read once for a whole target of the Windows builds: they are
# three quarters of what the compiler has to do there. Sources name what they include all the same. The
# native tests have one unit for each target instead, and the other builds are of few sources.
set(standard_headers
  <algorithm> <array> <cstdint> <functional> <memory> <optional> <span> <string> <string_view>
  <utility> <vector>)

# precompile(TARGET [HEADER...]): for a target of its own settings.
function(precompile target)
  if(WIN32)
    target_precompile_headers(${target} PRIVATE ${standard_headers} ${ARGN})
  endif()
endfunction()

# precompile_as(TARGET OTHER): for one with the settings of another.
function(precompile_as target other)
  if(WIN32)
    target_precompile_headers(${target} REUSE_FROM ${other})
  endif()
endfunction()
