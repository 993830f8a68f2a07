# Common settings for every Velmora target: warnings, warnings-as-errors in CI,
# and the sanitizer build that `make test` runs the core suites under.

set(VELMORA_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
    -Wold-style-cast -Wcast-align -Woverloaded-virtual -Wnull-dereference
    -Wimplicit-fallthrough)

if(VELMORA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# The fuzzers steer by coverage, so the libraries they drive carry the
# coverage instrumentation too, not only the fuzzers' own entry points.
if(VELMORA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()

# velmora_setup(<target>): warnings and source-rooted includes.
function(velmora_setup target)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_include_directories(${target} INTERFACE ${PROJECT_SOURCE_DIR})
    return()
  endif()
  target_compile_options(${target} PRIVATE ${VELMORA_WARNINGS})
  if(VELMORA_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
endfunction()

# velmora_library(<name> SOURCES ... [DEPS ...]): a static library target
# velmora_<name> with the alias velmora::<name>.
function(velmora_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
  add_library(velmora_${name} STATIC ${ARG_SOURCES})
  add_library(velmora::${name} ALIAS velmora_${name})
  velmora_setup(velmora_${name})
  if(ARG_DEPS)
    target_link_libraries(velmora_${name} PUBLIC ${ARG_DEPS})
  endif()
endfunction()
