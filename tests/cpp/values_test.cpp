// Values of every format through the C++ interface: what goes in comes out, of the type that the dictionary says, and
// is what the C interface stores.
#include <gtest/gtest.h>
#include <attrmgr/attrmgr.hpp>
#include <attrmgr/chrono.hpp>

#include <array>
#include <set>
#include <sstream>

namespace {

namespace attr = attrmgr::attr;
using attrmgr::errc;
using attrmgr::list;

// The code that an operation throws, 0 when it throws none.
template <class Operation>
aaa_attr_cerrno thrown(Operation operation) {
  try {
    operation();
  } catch (const attrmgr::error &failure) {
    EXPECT_EQ(failure.code().category(), attrmgr::category());
    return static_cast<aaa_attr_cerrno>(failure.code().value());
  }
  return 0;
}

std::span<const std::byte> bytes_of(const auto &value) { return std::as_bytes(std::span(&value, 1)); }

template <class T>
void expect_same(const T &read, const T &expected) {
  if constexpr (requires { read == expected; }) {
    EXPECT_EQ(read, expected);
  } else {
    EXPECT_EQ(std::memcmp(&read, &expected, sizeof read), 0);
  }
}

// Adds, reads back three ways, and compares with the bytes that are stored.
template <class Value, class Attr, class Given>
void round_trip(const char *what, Attr type, const Given &given, const Value &expected,
                std::span<const std::byte> stored) {
  SCOPED_TRACE(what);
  list made;
  made.add(type, given);
  std::optional<Value> read = made.get(type);
  ASSERT_TRUE(read);
  expect_same(*read, expected);
  expect_same((*made.begin()).template value<Value>(), expected);
  const auto met = (*made.begin()).value(type);
  ASSERT_TRUE(met);
  expect_same(*met, expected);
  const auto bytes = made.begin()->bytes();
  EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), stored.begin(), stored.end()));
  list raw;
  raw.add_bytes(type, bytes);
  EXPECT_TRUE(raw == made);
  made.set(type, given);
  EXPECT_EQ(made.count(type), 1);
}

TEST(CppValues, OfEveryFormat) {
  using std::chrono::sys_seconds;
  const std::string text = "bob";
  const auto text_bytes = std::as_bytes(std::span(text));
  const std::string_view seen = text;
  round_trip("a literal", attr::username, "bob", seen, text_bytes);
  round_trip("a string", attr::username, text, seen, text_bytes);
  round_trip("a pointer", attr::username, text.c_str(), seen, text_bytes);

  const std::uint32_t number = 1500;
  round_trip("an int", attr::framed_mtu, 1500, number, bytes_of(number));
  round_trip("16 bits", attr::framed_mtu, std::uint16_t{1500}, number, bytes_of(number));
  const std::uint64_t number64 = 1ULL << 40;
  round_trip("64 bits", attr::input_octets_2, number64, number64, bytes_of(number64));

  const auto stop = AAA_ACCT_STATUS_TYPE_STOP;
  const std::string name = "Stop";
  round_trip("a constant", attr::acct_status_type, AAA_ACCT_STATUS_TYPE_STOP, stop, bytes_of(stop));
  round_trip("a name found at run time", attr::acct_status_type, name, stop, bytes_of(stop));

  in_addr v4;
  in6_addr v6;
  ASSERT_EQ(inet_pton(AF_INET, "192.0.2.1", &v4) + inet_pton(AF_INET6, "2001:db8::1", &v6), 2);
  round_trip("an IPv4 address", attr::addr, v4, v4, bytes_of(v4));
  round_trip("an IPv4 text", attr::addr, "192.0.2.1", v4, bytes_of(v4));
  round_trip("an IPv6 address", attr::addrv6, v6, v6, bytes_of(v6));
  round_trip("an IPv6 text", attr::addrv6, "2001:db8::1", v6, bytes_of(v6));
  round_trip("either, an IPv4 address", attr::host_ip_address, v4, attrmgr::address(v4), bytes_of(v4));
  round_trip("either, an IPv6 text", attr::host_ip_address, "2001:db8::1", attrmgr::address(v6), bytes_of(v6));

  const std::uint8_t one = 1;
  round_trip("a bool", attr::is_session_idle, true, true, bytes_of(one));
  const std::int64_t seconds = -1;
  const sys_seconds time{std::chrono::seconds(seconds)};
  round_trip("a time", attr::start_time, time, time, bytes_of(seconds));

  list made;
  const std::array<unsigned char, 3> class_bytes = {1, 0, 2};
  made.add(attr::class_, class_bytes);
  made.add(attr::password, text);
  EXPECT_EQ(made.get(attr::class_)->size(), 3u);
  EXPECT_EQ(made.get(attr::password)->size(), 3u) << "the text's bytes, without a NUL";
}

TEST(CppValues, ThatAreRefusedWhileTheProgramRuns) {
  list made;
  const std::string unknown = "stop";
  const char *const no_text = nullptr;
  EXPECT_EQ(thrown([&] { made.add(attr::framed_mtu, -1); }), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(thrown([&] { made.add(attr::username, ""); }), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(thrown([&] { made.add(attr::username, no_text); }), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(thrown([&] { made.add(attr::username, std::string(70000, 'x')); }), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(thrown([&] { made.add(attr::acct_status_type, unknown); }), AAA_ATTR_ERR_NOT_FOUND);
  EXPECT_EQ(thrown([&] { made.add(attr::acct_status_type, std::string_view("Stop\0x", 6)); }), AAA_ATTR_ERR_NOT_FOUND);
  for (const char *text : {"", "192.0.2", "192.0.2.256", "2001:db8::1", "192.0.2.1 "})
    EXPECT_EQ(thrown([&] { made.add(attr::addr, text); }), AAA_ATTR_ERR_BAD_ARG) << text;
  EXPECT_EQ(thrown([&] { made.add(attr::addrv6, "192.0.2.1"); }), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(thrown([&] { made.add(attr::host_ip_address, "host"); }), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(thrown([&] { made.add_bytes(AAA_ATTR_TYPE_COUNT, bytes_of(unknown)); }), AAA_ATTR_ERR_NOT_FOUND);
  const aaa_attr_list_handle forged = made.handle();
  EXPECT_EQ(thrown([&] { made.add_bytes(attr::failed_avp, bytes_of(forged)); }), AAA_ATTR_ERR_BAD_ARG)
      << "a group's handle is not a caller's to vouch for";
  EXPECT_TRUE(made.empty());
}

TEST(CppValues, ThatAreNotThereOrNotOfTheirFormat) {
  list made;
  EXPECT_FALSE(made.get(attr::username));
  EXPECT_FALSE(made.find(attr::username));
  made.add(attr::route, "a");
  made.add(attr::route, "b");
  EXPECT_EQ(made.get(attr::route, 1), "b");
  EXPECT_FALSE(made.get(attr::route, 2));
  EXPECT_FALSE(made.begin()->value(attr::username)) << "another type";
  EXPECT_EQ(thrown([&] { (void)made.begin()->value<std::uint32_t>(); }), AAA_ATTR_ERR_BAD_FORMAT);

  // A Ulonglong of another length than 8 is legal to store.
  made.add_bytes(attr::input_octets, bytes_of(std::uint16_t{7}));
  EXPECT_EQ(thrown([&] { (void)made.get(attr::input_octets); }), AAA_ATTR_ERR_BAD_FORMAT);
  EXPECT_EQ(made.try_get(attr::input_octets).code(), AAA_ATTR_ERR_BAD_FORMAT);
}

TEST(CppValues, Enumerations) {
  EXPECT_STREQ(attrmgr::name_of(attr::acct_status_type, AAA_ACCT_STATUS_TYPE_STOP), "Stop");
  EXPECT_EQ(attrmgr::value_named(attr::acct_status_type, "Start"), AAA_ACCT_STATUS_TYPE_START);
  EXPECT_FALSE(attrmgr::value_named(attr::acct_status_type, "start"));
  list made;
  made.add(attr::acct_status_type, "Stop");  // looked up by the compiler
  EXPECT_EQ(made.get(attr::acct_status_type), AAA_ACCT_STATUS_TYPE_STOP);
  made = list();
  made.add_bytes(attr::acct_status_type, bytes_of(std::uint32_t{4711}));  // a number without a name travels
  EXPECT_EQ(made.get(attr::acct_status_type), static_cast<aaa_acct_status_type>(4711));
  EXPECT_EQ(made.begin()->value_name(), nullptr);
}

TEST(CppValues, Meta) {
  list made;
  made.add(attr::addr, "192.0.2.1", {.service = AAA_SERVICE_PPP, .protocol = AAA_PROTOCOL_IP, .tag = 7}, 5);
  made.add(attr::addr, "192.0.2.2");
  const auto first = made.find(attr::addr);
  ASSERT_TRUE(first && first->meta());
  EXPECT_EQ(*first->meta(), (attrmgr::meta{.service = 4, .protocol = 3, .tag = 7}));
  EXPECT_EQ(first->producer_client_type(), 5u);
  EXPECT_FALSE(std::next(made.begin())->meta());
  EXPECT_EQ(std::ranges::distance(made.filtered(AAA_SERVICE_PPP, AAA_PROTOCOL_IP)), 1);
}

TEST(CppErrors, AreSystemErrorsWithSentences) {
  const attrmgr::error failure(errc::no_memory, "making a list");
  EXPECT_STREQ(failure.what(), "making a list: memory is exhausted, or the list has no room for more blocks");
  EXPECT_EQ(failure.code(), errc::no_memory);
  EXPECT_EQ(failure.code(), std::errc::not_enough_memory);
  EXPECT_EQ(attrmgr::make_error_code(errc::bad_arg), std::errc::invalid_argument);
  EXPECT_STREQ(attrmgr::category().name(), "attrmgr");
  std::set<std::string> sentences;
  for (const aaa_attr_cerrno code :
       {AAA_ATTR_ERR_BAD_BUFFER, AAA_ATTR_ERR_NO_MEMORY, AAA_ATTR_ERR_BAD_ARG, AAA_ATTR_ERR_BAD_LIST,
        AAA_ATTR_ERR_STALE_HANDLE, AAA_ATTR_ERR_NOT_FOUND, AAA_ATTR_ERR_BAD_FORMAT, AAA_ATTR_ERR_BAD_LENGTH, 4711u})
    EXPECT_TRUE(sentences.insert(attrmgr::category().message(static_cast<int>(code))).second);

  list made;
  try {
    made.add(attr::addr, "300.0.0.1");
    FAIL() << "no address, yet added";
  } catch (const attrmgr::error &refused) {
    EXPECT_EQ(std::string(refused.what()).find("attrmgr: cannot add \"addr\": a value is missing"), 0u)
        << refused.what();
  }
}

TEST(CppErrors, AreResultsOfTheTryForms) {
  list made = *list::try_make();
  EXPECT_TRUE(made.try_add(attr::username, "bob").ok());
  EXPECT_TRUE(made.try_set(attr::username, "eve").ok());
  EXPECT_TRUE(made.try_set(attr::framed_mtu, 1500, {.flags = AAA_ATTR_META_MANDATORY}, 7).ok());
  EXPECT_EQ(made.find(attr::framed_mtu)->meta()->flags, AAA_ATTR_META_MANDATORY);
  made.remove(attr::framed_mtu);
  const auto refused = made.try_add(attr::addr, "nowhere");
  EXPECT_FALSE(refused);
  EXPECT_EQ(refused.code(), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(refused.error_code(), errc::bad_arg);
  const auto user = made.try_get(attr::username);
  ASSERT_TRUE(user);
  EXPECT_EQ(**user, "eve");
  const auto none = made.try_get(attr::framed_mtu);
  EXPECT_TRUE(none.ok() && !none->has_value()) << "what is not there is no failure";
  EXPECT_EQ(thrown([] { (void)list::try_from_bytes({}).value(); }), AAA_ATTR_ERR_BAD_ARG);
}

TEST(CppText, IsTheDisplay) {
  list made;
  made.add(attr::username, "bob");
  made.add(attr::password, "secret");
  std::ostringstream out;
  out << made;
  EXPECT_EQ(out.str(), attrmgr::to_string(made));
  EXPECT_NE(out.str().find("username        len=  3  bob"), std::string::npos) << out.str();
  EXPECT_EQ(out.str().find("secret"), std::string::npos) << out.str();
}

}  // namespace
