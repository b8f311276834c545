# exchange on session.attrs: status 0, all lists equal, and each value arrives in all three forms as the file says it.
set(ENV{TZ} UTC)

# Runs exchange, which must succeed, and leaves what it printed in `output`.
function(exchange file)
  execute_process(COMMAND ${EMULATOR} ${EXCHANGE} ${file} RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE error)
  if(NOT status EQUAL 0 OR NOT error STREQUAL "")
    message(FATAL_ERROR "${file}: status ${status}\n${error}\n${printed}")
  endif()
  set(output "${printed}" PARENT_SCOPE)
endfunction()

function(thrice pattern)
  string(REGEX MATCHALL "${pattern}" found "${output}")
  list(LENGTH found count)
  if(NOT count EQUAL 3)
    message(SEND_ERROR "${count} times: ${pattern}\n${output}")
  endif()
endfunction()

set(equal "(flat buffer|gather list|TLV buffer): [0-9]+ bytes, lists are equal\n")

exchange(${CMAKE_CURRENT_LIST_DIR}/session.attrs)
thrice("${equal}")
thrice("32 attributes, counted|received as TLV")
thrice("Acct-Status-Type len=  4  Stop\n")                                          # value name
thrice("start_time      len=  8  Sun Nov 22 06:14:05 2026\n")                       # time
thrice("Revalidation-Time len=  8  Mon Nov 23 00:00:00 2026\n")                     # time in seconds
thrice("chargeable-user-identity len= 21  cui \"holt-2277\"\tnorth\n")              # escapes
thrice("dhcp-client-id  len=  7  0x01-0x00-0x00-0x5e-0x00-0x53-0x2a")               # bytes in a text, zero among them
thrice("class           len=  9  62 6e 67 2d 32 00 00 a4 1f \n")                    # bytes
thrice("addr            len=  4  svc<4> prot<3> tag<0> mand<1> client<0x0>203.0.113.7\n")
thrice("delegated-prefix len= 18  svc<4> prot<41> tag<0> mand<1> client<0x7>2001:db8:77:1900::/56\n")
thrice("tunnel-type     len=  4  svc<0> prot<0> tag<1> mand<0> client<0x0>l2tp\n")  # name in small letters, tag
thrice("HOST IP Address len= 16  2001:db8:ffff::20\n")                              # Address, both families
thrice("BM-Address      len=  4  198.51.100.31\n")
thrice("pppoe-session-id len=  4  4546.11c2.\n")                                    # hexadecimal
thrice("interworking-functionality-tag len=  1  false\n")
thrice("is-session-idle len=  1  true\n")
# 64 bits in either byte order; the second type of the name; a group three deep, closed with those around it.
thrice("Output octets   len=  8  (00 00 ca 9a 3b 00 00 00|00 00 00 3b 9a ca 00 00) \n")
thrice("Prepaid-value-digits len=  8  [0-9a-f ]+\nEnd of group list: [0-9a-f]+\nEnd of group list")

# More pieces than one vectored write takes, more bytes than one read returns.
string(REPEAT "Failed AVP = {\nusername = x\n}\n" 2000 groups)
string(REPEAT "5a" 60000 bytes)
string(REPEAT "class = ${bytes}\n" 10 attributes)
file(WRITE long.attrs "${groups}${attributes}")
exchange(long.attrs)
thrice("${equal}")
