# What every target of the project shares: warnings as errors, sanitizers, section collection.

function(quillon_configure_target target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow -Werror)

  if(QUILLON_SANITIZE)
    set(sanitize -fsanitize=${QUILLON_SANITIZE} -fno-sanitize-recover=all)
    target_compile_options(${target} PRIVATE ${sanitize} -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC ${sanitize})
  endif()

  if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT APPLE)
    target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections)
    target_link_options(${target} PUBLIC -Wl,--gc-sections)
  endif()
endfunction()

# Instruments a library and whatever links it, for clang's coverage of source lines and branches. The name of the profiles
# is built in because tests start the program with an environment of their own. %4m stands for the program's signature
# and for one of four files, which the processes of a program share and merge their counts into.
function(quillon_measure_coverage target)
  target_compile_options(${target} PUBLIC
    "-fprofile-instr-generate=${PROJECT_BINARY_DIR}/profiles/%4m.profraw" -fcoverage-mapping)
  target_link_options(${target} PUBLIC -fprofile-instr-generate)
endfunction()
