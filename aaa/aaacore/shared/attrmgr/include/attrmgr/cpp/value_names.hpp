// value_names.hpp: the attribute type of each enumeration, and the names of its values in the order of their numbers: a
// name in the text of a program is checked while it compiles.
//
// Written from the dictionary by scripts/dictionary: do not edit.
#pragma once

#include <attrmgr/aaa_attr_names.h>

#include <cstdint>

// clang-format off

namespace attrmgr::detail {

// The attribute type whose values an enumeration has, 0 for any other type; and the names of its values.
template <class Enumeration>
inline constexpr std::uint32_t type_of = 0;
template <class Enumeration>
inline constexpr const char *names[] = {""};

template <>
inline constexpr std::uint32_t type_of<aaa_disc_cause_ext> = 1;
template <>
inline constexpr const char *names<aaa_disc_cause_ext>[] = {
    "No Reason", "No Disconnect", "Unknown", "Call Disconnect", "CLID Auth Fail", "No Modem Available", "No Carrier",
    "Lost Carrier", "No Modem Results", "TS User Exit", "Idle Timeout", "TS Exit Telnet", "TS No IP Addr",
    "TS TCP Raw Exit", "TS Bad Password", "TS No TCP Raw", "TS CNTL-C", "TS Session End", "TS Close Vconn",
    "TS End Vconn", "TS Rlogin Exit", "TS Rlogin Opt Invalid", "TS Insuff Resources", "PPP LCP Timeout",
    "PPP LCP Fail", "PPP PAP Fail", "PPP CHAP Fail", "PPP Remote Fail", "PPP Receive Term", "PPP LCP Close",
    "PPP No NCP", "PPP MP Error", "PPP Max Channels", "TS Tables Full", "TS Resource Full", "TS Invalid IP Addr",
    "TS Bad Hostname", "TS Bad Port", "TCP Reset", "TCP Connection Refused", "TCP Timeout", "TCP Foreign Host Close",
    "TCP Net Unreachable", "TCP Host Unreachable", "TCP Net Admin Unreachable", "TCP Host Admin Unreachable",
    "TCP Port Unreachable", "Session Timeout", "Security Fail", "Callback", "Unsupported", "Radius Disc",
    "Local Admin Disc", "SNMP Disc", "V110 Retries", "PPP Auth Timeout", "Local Hangup", "Remote Hangup",
    "T1 Quiesced", "Call Duration", "VPDN User Disconnect", "VPDN Carrier Loss", "VPDN No Resources",
    "VPDN Bad Control Packet", "VPDN Admin Disconnect", "VPDN Tunnel Down/Setup Fail", "VPDN Local PPP Disconnect",
    "VPDN Softshut/Session Limit", "VPDN Call Redirected", "Q850 Unassigned Number", "Q850 No Route",
    "Q850 No Route To Destination", "Q850 Channel Unacceptable", "Q850 Normal Clearing", "Q850 User Busy",
    "Q850 No User Responding", "Q850 No User Answer", "Q850 Call Rejected", "Q850 Number Changed",
    "Q850 Destination Out Of Order", "Q850 Invalid Number Format", "Q850 Facility Rejected",
    "Q850 Responding To Status Enquiry", "Q850 Unspecified Cause", "Q850 No Circuit Available",
    "Q850 Network Out Of Order", "Q850 Temporary Failure", "Q850 Network Congestion", "Q850 Access Info Discarded",
    "Q850 Requested Channel Not Available", "Q850 Call Pre-Empted", "Q850 Resource Unavailable",
    "Q850 Facility Not Subscribed", "Q850 Outgoing Call Barred", "Q850 Incoming Call Barred",
    "Q850 Bearer Capability Not Available", "Q850 Service Not Available", "Q850 Bearer Capability Not Implemented",
    "Q850 Channel Not Implemented", "Q850 Facility Not Implemented", "Q850 Invalid Call Reference",
    "Q850 Channel Does Not Exist", "Q850 Incompatible Destination", "Q850 Mandatory Info Element Is Missing",
    "Q850 Non Existent Message Type", "Q850 Invalid Message", "Q850 Bad Info Element",
    "Q850 Invalid Element Contents", "Q850 Wrong Message For State", "Q850 Recovery On Timer Expiration",
    "Q850 Info Element Error", "Q850 Protocol Error", "Q850 Unspecified Internetworking Event", "User Request",
    "Host Request",
};

template <>
inline constexpr std::uint32_t type_of<aaa_acct_status_type> = 3;
template <>
inline constexpr const char *names<aaa_acct_status_type>[] = {
    "noval0", "Start", "Stop", "Watchdog", "noval4", "noval5", "noval6", "Accounting-On", "Accounting-Off",
    "Tunnel-Start", "Tunnel-Stop", "Tunnel-Reject", "Tunnel-Link-Start", "Tunnel-Link-Stop", "Tunnel-Link-Reject",
};

template <>
inline constexpr std::uint32_t type_of<aaa_auth_services> = 5;
template <>
inline constexpr const char *names<aaa_auth_services>[] = {
    "noval0", "framed", "voice", "fax", "passtrhu",
};

template <>
inline constexpr std::uint32_t type_of<aaa_authentic> = 17;
template <>
inline constexpr const char *names<aaa_authentic>[] = {
    "noval0", "RADIUS", "Local", "Remote", "Diameter",
};

template <>
inline constexpr std::uint32_t type_of<aaa_authen_status> = 20;
template <>
inline constexpr const char *names<aaa_authen_status>[] = {
    "noval0", "authen", "unauthen",
};

template <>
inline constexpr std::uint32_t type_of<aaa_authen_type> = 21;
template <>
inline constexpr const char *names<aaa_authen_type>[] = {
    "ascii", "pap", "chap", "eap", "mschap", "mschap_v2",
};

template <>
inline constexpr std::uint32_t type_of<aaa_author_type> = 22;
template <>
inline constexpr const char *names<aaa_author_type>[] = {
    "shell", "net", "conn", "cfg", "system", "clid", "ipmobile", "cmd", "preauth", "auth_proxy", "rm", "dialer",
    "fltsv", "subscriber_service", "policy_if", "prepaid",
};

template <>
inline constexpr std::uint32_t type_of<aaa_authen_method> = 23;
template <>
inline constexpr const char *names<aaa_authen_method>[] = {
    "noval0", "pap", "chap", "otp", "eap", "eap-md5", "eap-sim",
};

template <>
inline constexpr std::uint32_t type_of<aaa_authen_strength> = 24;
template <>
inline constexpr const char *names<aaa_authen_strength>[] = {
    "noval0", "40bit", "128bit",
};

template <>
inline constexpr std::uint32_t type_of<aaa_accounting_type> = 39;
template <>
inline constexpr const char *names<aaa_accounting_type>[] = {
    "noval0", "subscriber", "service", "feature", "mobile",
};

template <>
inline constexpr std::uint32_t type_of<aaa_connect_progress> = 57;
template <>
inline constexpr const char *names<aaa_connect_progress>[] = {
    "No Progress", "N/A", "Unknown", "3", "4", "5", "6", "7", "8", "9", "Call Up", "11", "12", "13", "14", "15", "16",
    "17", "18", "19", "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", "Modem Up", "Modem Wait DCD",
    "Modem Wait Codes", "Modem Wait Remote", "34", "35", "36", "37", "38", "39", "Term Serv Start",
    "Establishing TCP Conn", "Establishing Telnet Conn", "Established Raw TCP", "Estab'd Telnet Conn",
    "Establishing Rlogin Sess", "Estab'd Rlogin Sess", "Term Serv Auth", "48", "49", "50", "51", "52", "53", "54",
    "55", "56", "57", "58", "59", "LAN Ses Up", "LCP Opening", "CCP Opening", "IPCP Opening", "64", "LCP Open",
    "CCP Open", "IPCP Open", "BCP Open", "LCP Init", "LCP Start", "LCP Close", "LCP Stopped", "LCP Closing",
    "LCP Stopping", "LCP Req Sent", "LCP Ack Rcvd", "LCP Ack Sent", "78", "79", "IPXNCP Open", "IPX NCP Open",
    "BACP Opening", "BACP Open", "CBCP Opening", "CBCP Open", "86", "87", "88", "89", "V110 Acc", "V110 Open",
    "V110 Carrier", "V110 Reset", "V110 Closed", "95", "96", "97", "98", "99", "Callback Reqd", "Auth Failed",
    "Auth Timeout", "103", "104", "105", "106", "107", "108", "109", "110", "111", "112", "113", "114", "115", "116",
    "117", "118", "119", "DLCI Inactive; Negot", "DLCI End-To-End", "122", "123", "124", "125", "126", "127", "128",
    "129", "130", "131", "132", "133", "134", "135", "136", "137", "138", "139", "140", "141", "142", "143", "144",
    "145", "146", "147", "148", "149", "150", "151", "152", "153", "154", "155", "156", "157", "158", "159", "160",
    "161", "162", "163", "164", "165", "166", "167", "168", "169", "170", "171", "172", "173", "174", "175", "176",
    "177", "178", "179", "180", "181", "182", "183", "184", "185", "186", "187", "188", "189", "190", "191", "192",
    "193", "194", "195", "196", "197", "198", "199", "Auth Starting", "Auth Opening", "Auth Skip", "Auth Open", "204",
    "205", "206", "207", "208", "209", "210", "211", "212", "213", "214", "215", "216", "217", "218", "219", "220",
    "221", "222", "223", "224", "225", "226", "227", "228", "229", "230", "231", "232", "233", "234", "235", "236",
    "237", "238", "239", "Tunnelling needed", "Tunnel opening socket", "Tunnel start request sent",
    "Tunnel start response recvd", "Tunnel start confirm sent", "245", "246", "247", "IPV6CP_OPEN", "DUAL_STACK_OPEN",
    "Session start request sent", "Session start response recvd", "Session start confirm sent",
    "Session lcp open forwarded",
};

template <>
inline constexpr std::uint32_t type_of<aaa_framed_protocol> = 71;
template <>
inline constexpr const char *names<aaa_framed_protocol>[] = {
    "noval0", "PPP", "SLIP", "ARAP", "GANDALF", "XYLOGICS", "X75", "GPRS_PDP_CONTEXT",
};

template <>
inline constexpr std::uint32_t type_of<aaa_parent_interface_type> = 95;
template <>
inline constexpr const char *names<aaa_parent_interface_type>[] = {
    "Async", "Serial", "PRI", "Async ISDN V120", "Async ISDN V110", "Virtual Terminal", "Async ISDN PIAFS",
    "HDLC Clear Channel", "X.25", "X.75", "G.3 Fax", "SDSL - Symmetric DSL", "ADSL-CAP - Asymmetric DSL", "ADSL_DMT",
    "IDSL - ISDN Digital Subscriber Line", "Ethernet", "Digital Subscriber Line", "Cable", "Wireless - Other",
    "Wireless - IEEE 802.11", "Token-Ring", "FDDI", "Wireless - CDMA2000", "Wireless - UMTS", "Wireless - 1X-EV",
    "IAPP", "FTTP", "Wireless - IEEE 802.16", "Wireless - IEEE 802.20", "Wireless - IEEE 802.22", "PPP over ATM",
    "PPPoE over ATM", "PPPoE over Ethernet", "PPPoE over VLAN", "PPPoE over QinQ", "Virtual PPPoE over Ethernet",
    "Virtual PPPoE over VLAN", "Virtual PPPoE over QinQ ", "IPSEC", "IP over Ethernet", "IP over VLAN",
    "IP over QinQ", "Virtual IP over Ethernet", "Virtual IP over VLAN", "Virtual IP over QinQ", "BRI", "None",
};

template <>
inline constexpr std::uint32_t type_of<aaa_port_type> = 96;
template <>
inline constexpr const char *names<aaa_port_type>[] = {
    "Async", "Serial", "PRI", "Async ISDN V120", "Async ISDN V110", "Virtual Terminal", "Async ISDN PIAFS",
    "HDLC Clear Channel", "X.25", "X.75", "G.3 Fax", "SDSL - Symmetric DSL", "ADSL-CAP - Asymmetric DSL", "ADSL_DMT",
    "IDSL - ISDN Digital Subscriber Line", "Ethernet", "Digital Subscriber Line", "Cable", "Wireless - Other",
    "Wireless - IEEE 802.11", "Token-Ring", "FDDI", "Wireless - CDMA2000", "Wireless - UMTS", "Wireless - 1X-EV",
    "IAPP", "FTTP", "Wireless - IEEE 802.16", "Wireless - IEEE 802.20", "Wireless - IEEE 802.22", "PPP over ATM",
    "PPPoE over ATM", "PPPoE over Ethernet", "PPPoE over VLAN", "PPPoE over QinQ", "Virtual PPPoE over Ethernet",
    "Virtual PPPoE over VLAN", "Virtual PPPoE over QinQ ", "IPSEC", "IP over Ethernet", "IP over VLAN",
    "IP over QinQ", "Virtual IP over Ethernet", "Virtual IP over VLAN", "Virtual IP over QinQ", "BRI", "None",
};

template <>
inline constexpr std::uint32_t type_of<aaa_error_cause> = 109;
template <>
inline constexpr const char *names<aaa_error_cause>[] = {
    "No Error", "Success", "Residual Session Context Removed", "Invalid EAP Packet", "Unsupported Attribute",
    "Missing Attribute", "NAS Identification Mismatch", "Invalid Request", "Unsupported Service",
    "Unsupported Extension", "Invalid Attribute Value", "Administratively Prohibited", "Request Not Routable",
    "Session Context Not Found", "Session Context Not Removable", "Other Proxy Processing Error",
    "Resource Unavailable", "Request Initiated", "Multiple Session Selection Unsupported", "Internal Error",
    "Connection Not Found", "Session Context Already Exists", "Invalid Argument", "Failed to Create Subscriber Id",
    "Peer Connection Not Active", "Insufficient Identities", "drop requested from client, do not send this error out",
    "subscriber db recon, try again later",
};

template <>
inline constexpr std::uint32_t type_of<aaa_protocol> = 163;
template <>
inline constexpr const char *names<aaa_protocol>[] = {
    "none", "invalid", "lcp", "ip", "ipv4", "ipsec", "ipx", "atalk", "xremote", "tn3270", "telnet", "tcp-clear",
    "rlogin", "lat", "pad", "osicp", "tagcp", "bacp", "deccp", "ccp", "cdp", "bridging", "nbf", "bap", "multilink",
    "h323", "unknown", "call-accept", "vpdn-session", "call-status", "nas-status", "dial-in", "dial-out", "ss7",
    "rms-stop", "rms-start", "vpdn", "sss", "subscriber", "atm", "ssh", "ipv6", "pppoe", "cdma", "crb", "template",
    "aaa", "epd", "mac",
};

template <>
inline constexpr std::uint32_t type_of<aaa_service_type> = 167;
template <>
inline constexpr const char *names<aaa_service_type>[] = {
    "error", "Login", "Framed", "Callback Login", "Callback Framed", "Outbound", "Administrative", "NAS Prompt",
    "Authen Only", "Callback NAS Prompt", "Call Check", "Callback Admin", "Voice", "Fax", "Modem Relay", "EAPoUDP",
};

template <>
inline constexpr std::uint32_t type_of<aaa_send_auth> = 174;
template <>
inline constexpr const char *names<aaa_send_auth>[] = {
    "none", "pap", "chap", "ms-chap", "eap",
};

template <>
inline constexpr std::uint32_t type_of<aaa_service> = 176;
template <>
inline constexpr const char *names<aaa_service>[] = {
    "none", "invalid", "shell", "arap", "ppp", "slip", "system", "resource", "connection", "tty-daemon", "vpdn",
    "vpdn-out", "raccess", "h323", "outbound", "mobileip", "auth-proxy", "ike", "resource-management", "callback",
    "gprs", "gprs_pdp_context", "preauth", "translate", "pki", "ca",
};

template <>
inline constexpr std::uint32_t type_of<aaa_accounting_record_type> = 182;
template <>
inline constexpr const char *names<aaa_accounting_record_type>[] = {
    "event_record", "start_record", "interim_record", "stop_record",
};

template <>
inline constexpr std::uint32_t type_of<aaa_disc_cause> = 193;
template <>
inline constexpr const char *names<aaa_disc_cause>[] = {
    "none", "user-request", "lost-carrier", "lost-service", "idle-timeout", "session-timeout", "admin-reset",
    "admin-reboot", "port-error", "nas-error", "nas-request", "nas-reboot", "port-unneeded", "port-preempted",
    "port-suspended", "service-unavailable", "callback", "user-error", "host-request", "supplicant-restart",
    "reauth-failure", "port-reinit", "port-admin-disabled", "Lost-Power", "user-roamed-out", "srg-switchover",
};

template <>
inline constexpr std::uint32_t type_of<aaa_login_service> = 201;
template <>
inline constexpr const char *names<aaa_login_service>[] = {
    "Telnet", "Rlogin", "TCP Clear", "PortMaster", "LAT", "TCP Quiet", "Ascend TCP Quiet",
};

template <>
inline constexpr std::uint32_t type_of<aaa_ms_mppe_enc_policy> = 217;
template <>
inline constexpr const char *names<aaa_ms_mppe_enc_policy>[] = {
    "Encryption-Allowed", "Encryption-Required",
};

template <>
inline constexpr std::uint32_t type_of<aaa_app_result_code> = 237;
template <>
inline constexpr const char *names<aaa_app_result_code>[] = {
    "NOT_SET", "CONVERT_TO_POSTPAID", "TERMINATE_SERVICE", "UPDATE_REPORT_FINAL", "INITIAL_REPORT_FINAL",
};

template <>
inline constexpr std::uint32_t type_of<aaa_identifier_type> = 245;
template <>
inline constexpr const char *names<aaa_identifier_type>[] = {
    "Invalid", "authen-status", "dnis", "domain", "media", "mlp-negotiated", "nas-port", "no-username", "protocol",
    "service-name", "source-address-ipv4", "source-address-ipv6", "source-address-mac", "timer", "tunnel-name",
    "username", "auto-detect", "circuit-id", "remote-id", "dhcp-vendor-class", "dhcp-client-id",
};

template <>
inline constexpr std::uint32_t type_of<aaa_template_type> = 246;
template <>
inline constexpr const char *names<aaa_template_type>[] = {
    "Invalid", "service",
};

template <>
inline constexpr std::uint32_t type_of<aaa_nas_port_sub_id_type> = 251;
template <>
inline constexpr const char *names<aaa_nas_port_sub_id_type>[] = {
    "Invalid", "adapter", "channel", "ipaddr", "port", "shelf", "slot", "sub-interface", "type", "vci", "vlan", "vpi",
    "circuit-id", "remote-id",
};

template <>
inline constexpr std::uint32_t type_of<aaa_nas_port_type_id_type> = 252;
template <>
inline constexpr const char *names<aaa_nas_port_type_id_type>[] = {
    "Invalid", "async", "atm", "basic-rate", "ether", "ipsec", "none", "piafs", "pppatm", "pppether", "pppoeatm",
    "pppqinq", "pppvlan", "primary-rate", "sync", "v110", "v120", "vty", "x75",
};

template <>
inline constexpr std::uint32_t type_of<aaa_media_type> = 253;
template <>
inline constexpr const char *names<aaa_media_type>[] = {
    "Invalid", "async", "atm", "ether", "ip", "isdn", "mpls", "sync",
};

template <>
inline constexpr std::uint32_t type_of<aaa_protocol_type> = 254;
template <>
inline constexpr const char *names<aaa_protocol_type>[] = {
    "Invalid", "ip", "ppp", "dhcp", "dhcpv6",
};

template <>
inline constexpr std::uint32_t type_of<aaa_tunnel_type> = 263;
template <>
inline constexpr const char *names<aaa_tunnel_type>[] = {
    "none", "pptp", "l2f", "l2tp", "atmp", "vtp", "ah", "ip_ip", "min_ip_ip", "esp", "gre", "bay_dvs", "ip_in_ip",
    "vlan",
};

template <>
inline constexpr std::uint32_t type_of<aaa_tunnel_medium_type> = 264;
template <>
inline constexpr const char *names<aaa_tunnel_medium_type>[] = {
    "Invalid", "IPv4", "IPv6", "NSAP", "HDLC", "BBN", "ALL_802",
};

template <>
inline constexpr std::uint32_t type_of<aaa_ipv4_multicast> = 314;
template <>
inline constexpr const char *names<aaa_ipv4_multicast>[] = {
    "None", "Qos Correlation", "Passive",
};

template <>
inline constexpr std::uint32_t type_of<aaa_acct_backoff_status> = 345;
template <>
inline constexpr const char *names<aaa_acct_backoff_status>[] = {
    "noval0", "Pass", "Fail",
};

template <>
inline constexpr std::uint32_t type_of<aaa_torvo_mpc_protocol_interface> = 348;
template <>
inline constexpr const char *names<aaa_torvo_mpc_protocol_interface>[] = {
    "none", "pmipv6", "gtpv1", "pmipv4",
};

template <>
inline constexpr std::uint32_t type_of<aaa_torvo_mn_service> = 351;
template <>
inline constexpr const char *names<aaa_torvo_mn_service>[] = {
    "none", "ipv4", "ipv6", "dual",
};

template <>
inline constexpr std::uint32_t type_of<aaa_pdp_type> = 363;
template <>
inline constexpr const char *names<aaa_pdp_type>[] = {
    "IP", "PPP", "IPV4", "IPV6",
};

template <>
inline constexpr std::uint32_t type_of<aaa_pmip6_encap_type> = 381;
template <>
inline constexpr const char *names<aaa_pmip6_encap_type>[] = {
    "ipv6-in-ipv6", "ipv6-in-ipv4", "ipv6-in-ipv4-udp", "gre-in-ipv4", "gre-in-ipv6", "mgre-in-ipv4", "mgre-in-ipv6",
    "mip-udp", "mip-mudp",
};

template <>
inline constexpr std::uint32_t type_of<aaa_device_role> = 404;
template <>
inline constexpr const char *names<aaa_device_role>[] = {
    "Primary", "Secondary",
};

template <>
inline constexpr std::uint32_t type_of<aaa_disconnect_cause_enum> = 433;
template <>
inline constexpr const char *names<aaa_disconnect_cause_enum>[] = {
    "Rebooting", "Server-busy", "Not-interested-in-talking",
};

template <>
inline constexpr std::uint32_t type_of<aaa_re_auth_request_type> = 434;
template <>
inline constexpr const char *names<aaa_re_auth_request_type>[] = {
    "Authorize-Only", "Authorize-Authenticate",
};

template <>
inline constexpr std::uint32_t type_of<aaa_security_supported> = 441;
template <>
inline constexpr const char *names<aaa_security_supported>[] = {
    "No security", "TLS",
};

template <>
inline constexpr std::uint32_t type_of<aaa_session_failover> = 449;
template <>
inline constexpr const char *names<aaa_session_failover>[] = {
    "Refuse service", "Try again", "Allow service", "Try again allow service",
};

template <>
inline constexpr std::uint32_t type_of<aaa_termination_cause> = 450;
template <>
inline constexpr const char *names<aaa_termination_cause>[] = {
    "none", "Diameter Logout", "Diameter Service Not Provided", "Diameter Bad Answer", "Diameter Administrative",
    "Diameter Link Broken", "Diameter Auth Expired", "Diameter User Moved", "Diameter Session Timeout", "none",
    "none", "user-request", "lost-carrier", "lost-service", "idle-timeout", "session-timeout", "admin-reset",
    "admin-reboot", "port-error", "nas-error", "nas-request", "nas-reboot", "port-unneeded", "port-preempted",
    "port-suspended", "service-unavailable", "callback", "user-error", "host-request", "supplicant-restart",
    "reauth-failure", "port-reinit", "port-admin-disabled", "Lost-Power", "user-roamed-out", "srg-switchover",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_request_type> = 461;
template <>
inline constexpr const char *names<aaa_prepaid_request_type>[] = {
    "Invalid request", "Initial request", "Update request", "Final request", "Event request",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_session_failover> = 463;
template <>
inline constexpr const char *names<aaa_prepaid_session_failover>[] = {
    "Failover notsupported", "Failover Supported",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_units> = 467;
template <>
inline constexpr const char *names<aaa_prepaid_units>[] = {
    "Time", "Money", "Total-Octets", "Input-Octets", "Output-Octets", "Service-units",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_failure_handling> = 469;
template <>
inline constexpr const char *names<aaa_prepaid_failure_handling>[] = {
    "Session should terminate", "Session should continue", "RETRY and Terminate",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_message_failure_handling> = 470;
template <>
inline constexpr const char *names<aaa_prepaid_message_failure_handling>[] = {
    "Terminate or buffer data", "Session should continue",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_final_unit_action> = 472;
template <>
inline constexpr const char *names<aaa_prepaid_final_unit_action>[] = {
    "Terminate", "Redirect", "Restricted Access",
};

template <>
inline constexpr std::uint32_t type_of<aaa_prepaid_multiple_service_indicator> = 477;
template <>
inline constexpr const char *names<aaa_prepaid_multiple_service_indicator>[] = {
    "multiservice notsupported", "multiservice supported",
};

template <>
inline constexpr std::uint32_t type_of<aaa_subscription_id_type> = 486;
template <>
inline constexpr const char *names<aaa_subscription_id_type>[] = {
    "end-user-e164", "end-user-imsi", "end-user-sip-uri", "end-user-sip-nai", "end-user-private",
};

template <>
inline constexpr std::uint32_t type_of<aaa_tariff_change_usage> = 488;
template <>
inline constexpr const char *names<aaa_tariff_change_usage>[] = {
    "units-before-tariff-change", "units-after-tariff-change", "units-indterminate",
};

template <>
inline constexpr std::uint32_t type_of<aaa_user_equipment_info_type> = 494;
template <>
inline constexpr const char *names<aaa_user_equipment_info_type>[] = {
    "intl-mobile-eqpmnt-iden", "mac-based", "eui-64", "modified-eui-64", "esn", "meid",
};

template <>
inline constexpr std::uint32_t type_of<aaa_qt_reporting_reason> = 502;
template <>
inline constexpr const char *names<aaa_qt_reporting_reason>[] = {
    "qt-threshold", "qt-qht", "qt-final", "qt-exhausted", "qt-validity-time", "qt-other-qt-type", "qt-rating-change",
    "qt-forced-reauth",
};

template <>
inline constexpr std::uint32_t type_of<aaa_event_trigger> = 506;
template <>
inline constexpr const char *names<aaa_event_trigger>[] = {
    "PCF_CHANGE", "QOS_CHANGE", "RAT_CHANGE", "TFT_CHANGE", "PLMN_CHANGE", "LOSS_OF_FLOW", "RECOVERY_OF_FLOW",
    "IP_CAN_CHANGE", "AGW_MALFUNCTION", "RESOURCES_LIMITATION", "NO_EVENT_TRIGGERS", "REVALIDATION_TIMEOUT",
    "UE_IP_ADDRESS_ALLOCATE", "UE_IP_ADDRESS_RELEASE", "TAI_CHANGE", "USAGE_REPORT",
};

template <>
inline constexpr std::uint32_t type_of<aaa_qos_class> = 514;
template <>
inline constexpr const char *names<aaa_qos_class>[] = {
    "A", "B", "C", "D", "E", "F",
};

template <>
inline constexpr std::uint32_t type_of<aaa_flow_status> = 524;
template <>
inline constexpr const char *names<aaa_flow_status>[] = {
    "enabled-uplink", "enabled-downlink", "enabled", "disabled", "removed",
};

template <>
inline constexpr std::uint32_t type_of<aaa_pcc_rule_status> = 525;
template <>
inline constexpr const char *names<aaa_pcc_rule_status>[] = {
    "active", "inactive", "temp-inactive",
};

template <>
inline constexpr std::uint32_t type_of<aaa_metering_method> = 526;
template <>
inline constexpr const char *names<aaa_metering_method>[] = {
    "duration", "volume", "duration-volume",
};

template <>
inline constexpr std::uint32_t type_of<aaa_offline> = 527;
template <>
inline constexpr const char *names<aaa_offline>[] = {
    "disabled", "enabled",
};

template <>
inline constexpr std::uint32_t type_of<aaa_online> = 528;
template <>
inline constexpr const char *names<aaa_online>[] = {
    "disabled", "enabled",
};

template <>
inline constexpr std::uint32_t type_of<aaa_reporting_level> = 530;
template <>
inline constexpr const char *names<aaa_reporting_level>[] = {
    "service-identifier", "group",
};

template <>
inline constexpr std::uint32_t type_of<aaa_bm_type> = 537;
template <>
inline constexpr const char *names<aaa_bm_type>[] = {
    "HomeBM", "VisitedBM",
};

template <>
inline constexpr std::uint32_t type_of<aaa_accounting_real_time_required> = 542;
template <>
inline constexpr const char *names<aaa_accounting_real_time_required>[] = {
    "Deliver-And-Grant", "Grant-And-Store", "Grant-And-Lose",
};

template <>
inline constexpr std::uint32_t type_of<aaa_auth_request_type> = 543;
template <>
inline constexpr const char *names<aaa_auth_request_type>[] = {
    "Authenticate-Only", "Authorize-Only", "Authorize-Authenticate",
};

template <>
inline constexpr std::uint32_t type_of<aaa_origin_aaa_protocol> = 544;
template <>
inline constexpr const char *names<aaa_origin_aaa_protocol>[] = {
    "Radius",
};

template <>
inline constexpr std::uint32_t type_of<aaa_auth_session_state> = 547;
template <>
inline constexpr const char *names<aaa_auth_session_state>[] = {
    "State-Maintained", "No-State-Maintained",
};

template <>
inline constexpr std::uint32_t type_of<aaa_session_release_cause> = 549;
template <>
inline constexpr const char *names<aaa_session_release_cause>[] = {
    "Unspecified-reason", "UE-subscription_reason", "Insuff-server-resources", "IP-session-termination",
    "UE-IP-address-release",
};

template <>
inline constexpr std::uint32_t type_of<aaa_ip_can_type> = 551;
template <>
inline constexpr const char *names<aaa_ip_can_type>[] = {
    "3GPP-GPRS", "DOCSIS", "xDSL", "WIMAX", "3GPP2", "3GPP-EPS", "Non-3GPP-EPS", "FBA",
};

template <>
inline constexpr std::uint32_t type_of<aaa_rat_type> = 552;
template <>
inline constexpr const char *names<aaa_rat_type>[] = {
    "WLAN", "Virtual", "ULTRAN", "GERAN", "GAN", "HSPA_EVOLUTION", "EUTRAN", "CDMA2000_1X", "HRPD", "UMB", "EHRPD",
};

template <>
inline constexpr std::uint32_t type_of<aaa_usage_monitoring_level> = 572;
template <>
inline constexpr const char *names<aaa_usage_monitoring_level>[] = {
    "Session-Level", "Pcc-Rule-Level", "Adc-Rule-Level",
};

template <>
inline constexpr std::uint32_t type_of<aaa_bearer_usage> = 573;
template <>
inline constexpr const char *names<aaa_bearer_usage>[] = {
    "General", "IMS-Signalling",
};

template <>
inline constexpr std::uint32_t type_of<aaa_bearer_control_mode> = 574;
template <>
inline constexpr const char *names<aaa_bearer_control_mode>[] = {
    "UE_ONLY", "NW_ONLY", "UE_NW",
};

template <>
inline constexpr std::uint32_t type_of<aaa_usage_monitoring_report> = 576;
template <>
inline constexpr const char *names<aaa_usage_monitoring_report>[] = {
    "USAGE_MONITORING_REPORT_REQUIRED",
};

template <>
inline constexpr std::uint32_t type_of<aaa_usage_monitoring_support> = 577;
template <>
inline constexpr const char *names<aaa_usage_monitoring_support>[] = {
    "USAGE_MONITORING_DISABLED",
};

}  // namespace attrmgr::detail

// clang-format on
