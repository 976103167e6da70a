# Installs into a folder of the build tree and looks for what a user expects there.

set(prefix "${BUILD}/install-test")
file(REMOVE_RECURSE "${prefix}")
execute_process(
  COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${prefix}"
  RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

foreach(file "${BIN}/quillon" "${MAN}/man1/quillon.1" "${DOC}/LICENSE" "${DOC}/README.md" "${DOC}/usage.md"
             "${DOC}/examples/queue_session.txt")
  if(NOT EXISTS "${prefix}/${file}")
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

execute_process(COMMAND "${prefix}/${BIN}/quillon" RESULT_VARIABLE result OUTPUT_VARIABLE text)
if(NOT result EQUAL 255)
  message(FATAL_ERROR "the installed program without arguments ends with ${result}, not 255")
endif()
string(FIND "${text}" "Syntax : ${prefix}/${BIN}/quillon  input_file" found)
if(found EQUAL -1)
  message(FATAL_ERROR "the installed program shows no usage text:\n${text}")
endif()
