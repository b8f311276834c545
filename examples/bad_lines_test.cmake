# exchange refuses a file with a bad line: status 1, the place and the reason on the error stream, nothing on the output.
# Run with -DEXCHANGE=<program> in a folder that can be written to. tests/text has the reasons.

file(WRITE bad_line.attrs "# note\n\n  addr [tag=1] = 2001:db8::1\n")
execute_process(COMMAND ${EMULATOR} ${EXCHANGE} bad_line.attrs RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
set(expected "bad_line.attrs:3:18: expected an IPv4 address, found \"2001:db8::1\"\n")
if(NOT status EQUAL 1 OR NOT output STREQUAL "" OR NOT error STREQUAL expected)
  message(SEND_ERROR "expected status 1, no output and ${expected}\n  got ${status}, ${output}${error}")
endif()

execute_process(COMMAND ${EMULATOR} ${EXCHANGE} RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE error)
if(NOT status EQUAL 2 OR NOT error MATCHES "^usage: ")
  message(SEND_ERROR "without a file: status ${status}, ${error}")
endif()
