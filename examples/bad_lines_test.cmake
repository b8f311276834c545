# exchange refuses a file with a bad line: status 1, the line and the reason on the error stream, nothing on the output.
# Run with -DEXCHANGE=<program> in a folder that can be written to.

function(refused content expected)
  file(WRITE bad_line.attrs "${content}")
  execute_process(COMMAND ${EXCHANGE} bad_line.attrs RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
  if(NOT status EQUAL 1 OR NOT output STREQUAL "" OR NOT error MATCHES "^bad_line.attrs:${expected}")
    message(SEND_ERROR "${content}\n  expected status 1, no output and ${expected}\n  got ${status}, ${output}${error}")
  endif()
endfunction()

refused("# note\n\nuser-name = x\n" "3: expected an attribute name or a type number from 1 to 622, found \"user-name\"")
refused("0 = 1" "1: expected an attribute name")
refused("623 = 1" "1: expected an attribute name")
refused("username x" "1: expected '=' after \"username x\"")
refused("username =" "1: .*expected a value")
# Text
refused("username = \"x" "1: .*expected a closing quote")
refused("username = \"x\" y" "1: .*expected nothing after the closing quote, found \" y\"")
refused("username = \"\"" "1: .*expected at least one character")
refused("username = \"a\\qb\"" "1: .*expected one of the escapes.*found \"\\\\q\"")
refused("username = \"\\x4\"" "1: .*expected one of the escapes")
# Numbers, each just beyond its range
refused("Framed-MTU = 0x100000000" "1: .*expected a number from 0 to 4294967295, found \"0x100000000\"")
refused("453 = 18446744073709551616" "1: .*expected a number from 0 to 18446744073709551615")
refused("Acct-Status-Type = stop"
  "1: .*expected a number or a value name such as \"Tunnel-Link-Reject\", found \"stop\"")
refused("is-session-idle = 1" "1: .*expected true or false")
# Addresses and prefixes
refused("addr = 2001:db8::1" "1: .*expected an IPv4 address")
refused("addrv6 = 192.0.2.1" "1: .*expected an IPv6 address")
refused("HOST IP Address = host" "1: .*expected an IPv4 or IPv6 address")
refused("prefix = 2001:db8::/129" "1: .*expected an IPv6 prefix")
refused("prefix = 2001:db8::1/64" "1: .*expected zero bits after the prefix length")
# Times and bytes
refused("start_time = 2026-04-31T00:00:00Z" "1: .*expected a time such as")
refused("start_time = 2026-04-30T00:00:60Z" "1: .*expected a time such as")
refused("class = 0:1 2" "1: .*expected pairs of hexadecimal digits")
# The note
refused("addr [tag=1 = 192.0.2.1" "1: expected '.' after the note")
refused("addr [tag=65536] = 192.0.2.1" "1: expected a number from 0 to 65535, found \"65536\"")
refused("addr [service=pppp] = 192.0.2.1" "1: expected a name of the dictionary or a number from 0 to 255")
refused("addr [mandatory=1] = 192.0.2.1" "1: expected service=, .* found \"mandatory=1\"")
# Groups
refused("Subscription ID = {\nFailed AVP = {\n}\n\n" "4: expected '}' for the group opened on line 1, found the end")
refused("Failed AVP = {\n}\n}" "3: found '}', but no group is open")
refused("Failed AVP = 1" "1: expected '{', since \"Failed AVP\" is a group")
refused("username = {" "1: \"username\" is no group")
string(REPEAT "Failed AVP = {\n" 129 deep)
refused("${deep}" "129: groups nest too deep")
string(REPEAT "00" 70000 long)
refused("class = ${long}" "1: the value is too long")

execute_process(COMMAND ${EXCHANGE} RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE error)
if(NOT status EQUAL 2 OR NOT error MATCHES "^usage: ")
  message(SEND_ERROR "without a file: status ${status}, ${error}")
endif()
