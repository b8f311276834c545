// Result codes as the tests speak of them: by the names of their constants.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include <attrmgr/attrmgr.h>

// A failure shows the call and the names of both codes.
#define EXPECT_CODE(expected, call) EXPECT_STREQ(aaa_attr_cerrno_name(call), aaa_attr_cerrno_name(expected))

// "BAD_ARG" for AAA_ATTR_ERR_BAD_ARG, "0" for 0.
inline std::string short_name(aaa_attr_cerrno code) {
  constexpr char kPrefix[] = "AAA_ATTR_ERR_";
  const std::string name = aaa_attr_cerrno_name(code);
  return name.starts_with(kPrefix) ? name.substr(std::strlen(kPrefix)) : name;
}
