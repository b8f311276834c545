// The exported value tables: their names, their counts, the types that use them.
#include <gtest/gtest.h>

#include "support/fnv.h"
#include "support/lists.h"

namespace {

struct Table {
  const char *suffix;
  const char *const *names;
  const aaa_attr_value_table &descriptor;
  std::uint32_t type;
  std::uint32_t count;
};

// clang-format off
#define TABLE(suffix, type, count) {#suffix, name_##suffix, value_##suffix, type, count}
const Table kTables[] = {
    TABLE(abort_cause, 1, 115), TABLE(acct_status_type, 3, 15), TABLE(authorized_services, 5, 5), TABLE(authentic, 17, 5),
    TABLE(authen_status, 20, 3), TABLE(authen_type, 21, 6), TABLE(author_type, 22, 16), TABLE(authen_method, 23, 7),
    TABLE(authen_strength, 24, 3), TABLE(accounting_type, 39, 5), TABLE(conn_prog, 57, 254), TABLE(framed_protocol, 71, 8),
    TABLE(interface_parent_type, 95, 47), TABLE(interface_type, 96, 47), TABLE(error_cause, 109, 28), TABLE(protocol, 163, 49),
    TABLE(service_type, 167, 16), TABLE(send_auth, 174, 5), TABLE(service, 176, 26), TABLE(acct_record_type, 182, 4),
    TABLE(terminate_cause, 193, 26), TABLE(login_service, 201, 7), TABLE(ms_mppe_encryption_policy, 217, 2),
    TABLE(app_result_code, 237, 5), TABLE(identifier_type, 245, 21), TABLE(template_type, 246, 2),
    TABLE(nas_port_sub_id_type, 251, 14), TABLE(nas_port_type_id_type, 252, 19), TABLE(media_type, 253, 8),
    TABLE(protocol_type, 254, 5), TABLE(tunnel_type, 263, 14), TABLE(tunnel_medium_type, 264, 7), TABLE(ipv4_multicast, 314, 3),
    TABLE(acct_backoff_status, 345, 3), TABLE(torvo_mpc_protocol_interface, 348, 4), TABLE(torvo_mn_service, 351, 4),
    TABLE(threegenpp_pdp_type, 363, 4), TABLE(pmip6_encap_type, 381, 9), TABLE(device_role, 404, 2),
    TABLE(peer_disconnect_cause, 433, 3), TABLE(reauth_request_type, 434, 2), TABLE(inband_security_id, 441, 2),
    TABLE(server_session_failover, 449, 4), TABLE(termination_cause, 450, 36), TABLE(prepaid_request_type, 461, 5),
    TABLE(prepaid_session_failover, 463, 2), TABLE(prepaid_unit_type, 467, 6), TABLE(prepaid_failure_handling, 469, 3),
    TABLE(prepaid_message_failure_handling, 470, 2), TABLE(prepaid_final_unit_action, 472, 3),
    TABLE(prepaid_multi_service_indicator, 477, 2), TABLE(subscription_id_type, 486, 5),
    TABLE(prepaid_tariff_change_units, 488, 3), TABLE(prepaid_user_equipment_info_type, 494, 6),
    TABLE(prepaid_qt_reporting_reason, 502, 8), TABLE(event_trigger, 506, 16), TABLE(qos_class, 514, 6), TABLE(flow_status, 524, 5),
    TABLE(pcc_rule_status, 525, 3), TABLE(metering_method, 526, 3), TABLE(offline, 527, 2), TABLE(online, 528, 2),
    TABLE(reporting_level, 530, 2), TABLE(bm_type, 537, 2), TABLE(acct_real_time_required, 542, 3), TABLE(auth_request_type, 543, 3),
    TABLE(origin_aaa_protocol, 544, 1), TABLE(auth_session_state, 547, 2), TABLE(session_release_cause, 549, 5),
    TABLE(ip_can_type, 551, 8), TABLE(rat_type, 552, 11), TABLE(usage_monitoring_level, 572, 3), TABLE(bearer_usage, 573, 2),
    TABLE(bearer_control_mode, 574, 3), TABLE(usage_monitoring_report, 576, 1), TABLE(usage_monitoring_support, 577, 1),};
#undef TABLE
// clang-format on

TEST(ValueNames, TablesAndTypesAgree) {
  EXPECT_EQ(std::size(kTables), 76u);
  for (const Table &table : kTables) {
    SCOPED_TRACE(table.suffix);
    EXPECT_EQ(table.descriptor.names, table.names);
    ASSERT_EQ(table.descriptor.count, table.count);
    EXPECT_EQ(aaa_attr_get_format_from_type(table.type), std::uint32_t{AAA_ATTR_FMT_ENUM});
    for (std::uint32_t value = 0; value < table.count; ++value)
      EXPECT_EQ(aaa_attr_get_enum_name_from_type(table.type, value), table.names[value]) << value;
    EXPECT_EQ(aaa_attr_get_enum_name_from_type(table.type, table.count), nullptr);
    EXPECT_EQ(aaa_attr_get_enum_name_from_type(table.type, UINT32_MAX), nullptr);
  }
}

// Hash over "<suffix> NUL <value> NUL <name> newline" of all names, tables in export order, numbers in decimal. It was
// computed from the written lists, not from the library's tables, and guards the promise that no value ever changes its
// name: clients store the numbers and print the names.
TEST(ValueNames, NamesNeverChange) {
  Fnv names;
  for (const Table &table : kTables)
    for (std::uint32_t value = 0; value < table.count; ++value)
      names.put(table.suffix).field().put(value).field().put(table.names[value]).line();
  EXPECT_EQ(names.hash(), 0x01506d503d712846u);
}

TEST(ValueNames, LookupAtTheEdges) {
  const struct {
    const char *why;
    std::uint32_t type, value;
    const char *name;
  } rows[] = {
      {"a trailing blank is kept", 96, 37, "Virtual PPPoE over QinQ "},
      {"beyond what the interface look-up reaches", 96, 46, "None"},
      {"the parent's table has the same names", 95, 46, "None"},
      {"a type without values", 2, 0, nullptr},
      {"no attribute", 0, 0, nullptr},
      {"behind the last type", 623, 0, nullptr},
      {"a type whose low 16 bits are 3", 0x10003, 7, nullptr},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_STREQ(aaa_attr_get_enum_name_from_type(row.type, row.value), row.name);
  }
  EXPECT_NE(name_interface_type, name_interface_parent_type);
}

TEST(ValueNames, InterfaceLookupStopsBeforeTheTableDoes) {
  for (std::uint32_t value = 0; value <= 43; ++value)
    EXPECT_EQ(aaa_attr_get_interface_from_type(value), name_interface_type[value]) << value;
  EXPECT_STREQ(aaa_attr_get_interface_from_type(43), "Virtual IP over VLAN");
  for (const std::uint32_t value : {44u, 46u, 47u, UINT32_MAX})
    EXPECT_STREQ(aaa_attr_get_interface_from_type(value), "unknown") << value;
}

}  // namespace
