# What every target of the project shares: warnings as errors, sanitizers, coverage, section collection.

function(quillon_configure_target target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow -Werror)

  if(QUILLON_SANITIZE)
    set(sanitize -fsanitize=${QUILLON_SANITIZE} -fno-sanitize-recover=all)
    target_compile_options(${target} PRIVATE ${sanitize} -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC ${sanitize})
  endif()

  if(QUILLON_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage)
    target_link_options(${target} PUBLIC --coverage)
  endif()

  if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT APPLE)
    target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections)
    target_link_options(${target} PUBLIC -Wl,--gc-sections)
  endif()
endfunction()
