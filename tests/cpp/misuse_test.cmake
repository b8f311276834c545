# Compiles SOURCE, which must fail with a message that matches SAYS, in one of the errors.
execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -Wall -Wextra -Werror=unused-result -I${INCLUDE} ${SOURCE}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
if(status EQUAL 0)
  message(FATAL_ERROR "${SOURCE} compiles, but must not")
endif()
if(NOT error MATCHES "error:[^\n]*(${SAYS})")
  message(FATAL_ERROR "${SOURCE} does not compile, but no error matches '${SAYS}':\n${error}")
endif()
