# How every target of the project is compiled.
add_library(build_settings INTERFACE)

if(MSVC)
  target_compile_options(build_settings INTERFACE /W4 /WX /utf-8 /permissive-)
  target_compile_definitions(build_settings INTERFACE NOMINMAX)
else()
  target_compile_options(build_settings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping copies where texts are joined with "+" (its bug 105651).
    target_compile_options(build_settings INTERFACE -Wno-restrict)
  else()
    # As in GCC, whose -Wconversion leaves signs alone.
    target_compile_options(build_settings INTERFACE -Wno-sign-conversion)
  endif()
endif()

if(WIN32 AND NOT MSVC)
  # Small, self-contained executables that need nothing beyond what Windows 2000 has.
  target_compile_options(build_settings INTERFACE -Os -ffunction-sections -fdata-sections)
  target_link_options(build_settings INTERFACE -static -Wl,--gc-sections)
  # The same sources give the same bytes, whenever they are built.
  target_link_options(build_settings INTERFACE -Wl,--no-insert-timestamp)
  # Every program is loaded at an address of the system's choice, runs nothing that is data and ends
  # when its stack is overwritten (tests/check_hardening.py).
  add_library(stack_guard STATIC ${PROJECT_SOURCE_DIR}/platform/windows/api/stack_guard.cpp)
  target_compile_options(stack_guard PRIVATE -Wall -Wextra -Wconversion -Wshadow -Werror -Os)
  target_include_directories(stack_guard PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(build_settings INTERFACE -fstack-protector-strong)
  target_link_libraries(build_settings INTERFACE stack_guard)
  target_link_options(build_settings INTERFACE -Wl,--dynamicbase,--nxcompat)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # The x87 unit rounds differently; with SSE2 both builds compute the same samples.
    target_compile_options(build_settings INTERFACE -msse2 -mfpmath=sse)
  else()
    target_link_options(build_settings INTERFACE -Wl,--high-entropy-va)
  endif()
endif()

if(TONMIRA_SANITIZE)
  # The program is optimised, since tests repeat much of it ten thousand times; optimising the tests
  # themselves takes longer than it saves. Lines are all that a finding needs to name; more of what
  # debuggers want doubles the build.
  target_compile_options(build_settings INTERFACE
    $<IF:$<BOOL:$<TARGET_PROPERTY:TONMIRA_UNOPTIMISED>>,-O0,-O1> -g1
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # An index behind an array may be optimised away before a sanitizer sees it.
  target_compile_definitions(build_settings INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(build_settings INTERFACE -fsanitize=address,undefined)
endif()
