/* aaa_attr_names.h: a constant for every attribute type, and one for every value of the Enum types.

   Written from the dictionary by scripts/dictionary: do not edit. docs/dictionary.md has the same as a table to read.

     AAA_ATTR_TYPE_USERNAME        the type "username"
     AAA_ACCT_STATUS_TYPE_STOP     the value "Stop" of the type "Acct-Status-Type"

   Where two types would get the same constant, the lower one has it; the other has its format after it, or a number.
   Values are unsigned 32-bit numbers, to be handed to aaa_attr_add as such:

     const uint32_t status = AAA_ACCT_STATUS_TYPE_STOP;
     aaa_attr_add(list, AAA_ATTR_TYPE_ACCT_STATUS_TYPE, &status, sizeof status, NULL);

   A number of a value table that means nothing has no constant. */
#ifndef ATTRMGR_AAA_ATTR_NAMES_H
#define ATTRMGR_AAA_ATTR_NAMES_H

#include <stdint.h>

/* clang-format off */

/* C++ may name the type of the numbers: then every number is a value, also one that no constant has. */
#ifdef __cplusplus
#define AAA_ATTR_UINT32 : uint32_t
#else
#define AAA_ATTR_UINT32
#endif

/* ---- Types ---- */

typedef enum aaa_attr_type AAA_ATTR_UINT32 {
  AAA_ATTR_TYPE_INVALID_ATTRIBUTE                            =   0, /* "invalid attribute", Ulong */
  AAA_ATTR_TYPE_DISC_CAUSE_EXT                               =   1, /* "disc-cause-ext", Enum */
  AAA_ATTR_TYPE_IPV4_ICMP_UNREACHABLE                        =   2, /* "ipv4-icmp-unreachable", Ulong */
  AAA_ATTR_TYPE_ACCT_STATUS_TYPE                             =   3, /* "Acct-Status-Type", Enum; RFC 2866 Acct-Status-Type (40) */
  AAA_ATTR_TYPE_ACL                                          =   4, /* "acl", Ulong */
  AAA_ATTR_TYPE_AUTH_SERVICES                                =   5, /* "auth-services", Enum */
  AAA_ATTR_TYPE_AUTO_LOGON_SERVICE                           =   6, /* "auto-logon-service", String */
  AAA_ATTR_TYPE_ADDR                                         =   7, /* "addr", IPv4 Address; RFC 2865 Framed-IP-Address (8) */
  AAA_ATTR_TYPE_LOCAL_ADDR                                   =   8, /* "local-addr", IPv4 Address */
  AAA_ATTR_TYPE_LOCAL_NETMASK                                =   9, /* "local-netmask", IPv4 Address */
  AAA_ATTR_TYPE_SVC_ASSIGNED_IPV4_ADDRESS                    =  10, /* "svc-assigned-ipv4-address", IPv4 Address */
  AAA_ATTR_TYPE_ADDRV6                                       =  11, /* "addrv6", IPv6 Address */
  AAA_ATTR_TYPE_ADDRV6_LL                                    =  12, /* "addrv6-ll", IPv6 Address */
  AAA_ATTR_TYPE_STATEFUL_IPV6_ADDRESS_POOL                   =  13, /* "Stateful-IPv6-Address-Pool", String */
  AAA_ATTR_TYPE_IPV6_ADDR_POOL                               =  14, /* "ipv6-addr-pool", String */
  AAA_ATTR_TYPE_ADDR_POOL                                    =  15, /* "addr-pool", String */
  AAA_ATTR_TYPE_SUBSCRIBER_ROUTE                             =  16, /* "subscriber-route", String */
  AAA_ATTR_TYPE_AUTHENTIC                                    =  17, /* "Authentic", Enum; RFC 2866 Acct-Authentic (45) */
  AAA_ATTR_TYPE_AUTOCMD                                      =  18, /* "autocmd", String */
  AAA_ATTR_TYPE_AUTOCMD_IPPROMPT                             =  19, /* "autocmd_ipprompt", String */
  AAA_ATTR_TYPE_AUTHEN_STATUS                                =  20, /* "authen-status", Enum */
  AAA_ATTR_TYPE_AUTHEN_TYPE                                  =  21, /* "authen-type", Enum */
  AAA_ATTR_TYPE_AUTHOR_TYPE                                  =  22, /* "author-type", Enum */
  AAA_ATTR_TYPE_AUTHEN_METHOD                                =  23, /* "authen-method", Enum */
  AAA_ATTR_TYPE_AUTHEN_STRENGTH                              =  24, /* "authen-strength", Enum */
  AAA_ATTR_TYPE_FORCE_LOCAL_CHAP                             =  25, /* "force-local-chap", Boolean */
  AAA_ATTR_TYPE_CHALLENGE                                    =  26, /* "challenge", Binary */
  AAA_ATTR_TYPE_ID                                           =  27, /* "id", Ulong */
  AAA_ATTR_TYPE_RESPONSE                                     =  28, /* "response", Binary */
  AAA_ATTR_TYPE_NAS_CONNECT_INFO                             =  29, /* "nas-connect-info", String */
  AAA_ATTR_TYPE_USER_DATA                                    =  30, /* "user-data", Binary */
  AAA_ATTR_TYPE_SERVER_DATA                                  =  31, /* "server-data", Binary */
  AAA_ATTR_TYPE_CLID                                         =  32, /* "clid", String */
  AAA_ATTR_TYPE_CIRCUIT_ID_TAG                               =  33, /* "circuit-id-tag", String */
  AAA_ATTR_TYPE_REMOTE_ID_TAG                                =  34, /* "remote-id-tag", String */
  AAA_ATTR_TYPE_SESSION_LIMIT                                =  35, /* "session-limit", Ulong */
  AAA_ATTR_TYPE_CLIENT_MAC_ADDRESS                           =  36, /* "client-mac-address", String */
  AAA_ATTR_TYPE_CLIENT_MAC_ADDRESS_RAW                       =  37, /* "client-mac-address-raw", String */
  AAA_ATTR_TYPE_CLIENT_MAC_ADDRESS_IETF                      =  38, /* "client-mac-address-ietf", String */
  AAA_ATTR_TYPE_ACCOUNTING_TYPE                              =  39, /* "accounting-type", Enum */
  AAA_ATTR_TYPE_ACTUAL_DATA_RATE_UPSTREAM                    =  40, /* "actual-data-rate-upstream", Ulong */
  AAA_ATTR_TYPE_ACTUAL_DATA_RATE_DOWNSTREAM                  =  41, /* "actual-data-rate-downstream", Ulong */
  AAA_ATTR_TYPE_CHARGEABLE_USER_IDENTITY                     =  42, /* "chargeable-user-identity", String */
  AAA_ATTR_TYPE_MINIMUM_DATA_RATE_UPSTREAM                   =  43, /* "minimum-data-rate-upstream", Ulong */
  AAA_ATTR_TYPE_MINIMUM_DATA_RATE_DOWNSTREAM                 =  44, /* "minimum-data-rate-downstream", Ulong */
  AAA_ATTR_TYPE_ATTAINABLE_DATA_RATE_UPSTREAM                =  45, /* "attainable-data-rate-upstream", Ulong */
  AAA_ATTR_TYPE_ATTAINABLE_DATA_RATE_DOWNSTREAM              =  46, /* "attainable-data-rate-downstream", Ulong */
  AAA_ATTR_TYPE_MAXIMUM_DATA_RATE_UPSTREAM                   =  47, /* "maximum-data-rate-upstream", Ulong */
  AAA_ATTR_TYPE_MAXIMUM_DATA_RATE_DOWNSTREAM                 =  48, /* "maximum-data-rate-downstream", Ulong */
  AAA_ATTR_TYPE_MINIMUM_DATA_RATE_UPSTREAM_LOW_POWER         =  49, /* "minimum-data-rate-upstream-low-power", Ulong */
  AAA_ATTR_TYPE_MINIMUM_DATA_RATE_DOWNSTREAM_LOW_POWER       =  50, /* "minimum-data-rate-downstream-low-power", Ulong */
  AAA_ATTR_TYPE_MAXIMUM_INTERLEAVING_DELAY_UPSTREAM          =  51, /* "maximum-interleaving-delay-upstream", Ulong */
  AAA_ATTR_TYPE_MAXIMUM_INTERLEAVING_DELAY_DOWNSTREAM        =  52, /* "maximum-interleaving-delay-downstream", Ulong */
  AAA_ATTR_TYPE_ACTUAL_INTERLEAVING_DELAY_UPSTREAM           =  53, /* "actual-interleaving-delay-upstream", Ulong */
  AAA_ATTR_TYPE_ACTUAL_INTERLEAVING_DELAY_DOWNSTREAM         =  54, /* "actual-interleaving-delay-downstream", Ulong */
  AAA_ATTR_TYPE_CMD                                          =  55, /* "cmd", String */
  AAA_ATTR_TYPE_CMD_ARG                                      =  56, /* "cmd-arg", String */
  AAA_ATTR_TYPE_CONNECT_PROGRESS                             =  57, /* "connect-progress", Enum */
  AAA_ATTR_TYPE_CONNECT_RX_SPEED                             =  58, /* "connect-rx-speed", Ulong */
  AAA_ATTR_TYPE_CONNECT_TX_SPEED                             =  59, /* "connect-tx-speed", Ulong */
  AAA_ATTR_TYPE_NAS_RX_SPEED                                 =  60, /* "nas-rx-speed", Ulong */
  AAA_ATTR_TYPE_NAS_RX_SPEED_KBPS                            =  61, /* "nas-rx-speed-kbps", Ulong */
  AAA_ATTR_TYPE_DATA_SERVICE                                 =  62, /* "data-service", Ulong */
  AAA_ATTR_TYPE_DNIS                                         =  63, /* "dnis", String */
  AAA_ATTR_TYPE_DNS_SERVERS                                  =  64, /* "dns-servers", String */
  AAA_ATTR_TYPE_PRIMARY_DNS                                  =  65, /* "primary-dns", IPv4 Address */
  AAA_ATTR_TYPE_SECONDARY_DNS                                =  66, /* "secondary-dns", IPv4 Address */
  AAA_ATTR_TYPE_EAP_MESSAGE                                  =  67, /* "EAP-Message", String; RFC 2869 EAP-Message (79) */
  AAA_ATTR_TYPE_ASSIGN_CLIENT_DNS                            =  68, /* "assign-client-dns", Ulong */
  AAA_ATTR_TYPE_EVENT                                        =  69, /* "event", String */
  AAA_ATTR_TYPE_REASON                                       =  70, /* "reason", String */
  AAA_ATTR_TYPE_FRAMED_PROTOCOL                              =  71, /* "Framed-Protocol", Enum; RFC 2865 Framed-Protocol (7) */
  AAA_ATTR_TYPE_FRAMED_MTU                                   =  72, /* "Framed-MTU", Ulong; RFC 2865 Framed-MTU (12) */
  AAA_ATTR_TYPE_IPV4_MTU                                     =  73, /* "ipv4-mtu", Ulong */
  AAA_ATTR_TYPE_IDLETIMEOUT                                  =  74, /* "idletimeout", Ulong; RFC 2865 Idle-Timeout (28) */
  AAA_ATTR_TYPE_IDLETHRESHOLD                                =  75, /* "idlethreshold", Ulong */
  AAA_ATTR_TYPE_IDLE_TIMEOUT_DIRECTION                       =  76, /* "idle-timeout-direction", String */
  AAA_ATTR_TYPE_CALL_INACL                                   =  77, /* "call-inacl", String */
  AAA_ATTR_TYPE_INACL                                        =  78, /* "inacl", String */
  AAA_ATTR_TYPE_IPV6_INACL                                   =  79, /* "ipv6_inacl", String */
  AAA_ATTR_TYPE_INPUT_GIGA_WORDS                             =  80, /* "input-giga-words", Ulong; RFC 2869 Acct-Input-Gigawords (52) */
  AAA_ATTR_TYPE_BYTES_IN                                     =  81, /* "bytes_in", Ulong */
  AAA_ATTR_TYPE_PAKS_IN                                      =  82, /* "paks_in", Ulong */
  AAA_ATTR_TYPE_IDMGR_DATA                                   =  83, /* "idmgr-data", Binary */
  AAA_ATTR_TYPE_IDMGR_SVC_KEY                                =  84, /* "idmgr-svc-key", Binary */
  AAA_ATTR_TYPE_SESSION_GUID                                 =  85, /* "session-guid", String */
  AAA_ATTR_TYPE_NAS_IDENTIFIER                               =  86, /* "nas-identifier", String; RFC 2865 NAS-Identifier (32) */
  AAA_ATTR_TYPE_DISCONNECT_TEXT                              =  87, /* "disconnect-text", String */
  AAA_ATTR_TYPE_LOGICAL_IF_INDEX                             =  88, /* "logical-if-index", Ulong */
  AAA_ATTR_TYPE_TERMINATION_ACTION                           =  89, /* "Termination-Action", Boolean; RFC 2865 Termination-Action (29) */
  AAA_ATTR_TYPE_AAA_UNIQUE_ID                                =  90, /* "aaa-unique-id", Ulong */
  AAA_ATTR_TYPE_INTERFACE                                    =  91, /* "interface", String */
  AAA_ATTR_TYPE_INTERFACE_NAME                               =  92, /* "interface-name", String */
  AAA_ATTR_TYPE_INTERFACE_CONFIG                             =  93, /* "interface-config", String */
  AAA_ATTR_TYPE_PARENT_INTERFACE                             =  94, /* "parent-interface", String */
  AAA_ATTR_TYPE_PARENT_INTERFACE_TYPE                        =  95, /* "parent-interface-type", Enum */
  AAA_ATTR_TYPE_PORT_TYPE                                    =  96, /* "port-type", Enum; RFC 2865 NAS-Port-Type (61) */
  AAA_ATTR_TYPE_ACCT_INTERVAL                                =  97, /* "acct-interval", Ulong */
  AAA_ATTR_TYPE_L2TP_RX_SPEED                                =  98, /* "l2tp-rx-speed", String */
  AAA_ATTR_TYPE_L2TP_TX_SPEED                                =  99, /* "l2tp-tx-speed", String */
  AAA_ATTR_TYPE_IP_ADDRESSES                                 = 100, /* "ip-addresses", String */
  AAA_ATTR_TYPE_IP_ADDRESS_LIMITS                            = 101, /* "ip-address-limits", String */
  AAA_ATTR_TYPE_L2TP_HELLO_INTERVAL                          = 102, /* "l2tp-hello-interval", Ulong */
  AAA_ATTR_TYPE_L2TP_CM_LOCAL_WINDOW_SIZE                    = 103, /* "l2tp-cm-local-window-size", Ulong */
  AAA_ATTR_TYPE_L2TP_NOSESSION_TIMEOUT                       = 104, /* "l2tp-nosession-timeout", Ulong */
  AAA_ATTR_TYPE_L2TP_CM_RETRANSMIT_RETRIES                   = 105, /* "l2tp-cm-retransmit-retries", Ulong */
  AAA_ATTR_TYPE_L2TP_CM_MIN_TIMEOUT                          = 106, /* "l2tp-cm-min-timeout", Ulong */
  AAA_ATTR_TYPE_KEY_EXCHANGE                                 = 107, /* "key-exchange", Boolean */
  AAA_ATTR_TYPE_MAP_CLASS                                    = 108, /* "map-class", String */
  AAA_ATTR_TYPE_ERROR_CAUSE                                  = 109, /* "error-cause", Enum */
  AAA_ATTR_TYPE_REPLY_MESSAGE                                = 110, /* "reply-message", String; RFC 2865 Reply-Message (18) */
  AAA_ATTR_TYPE_MESSAGE_AUTHENTICATOR                        = 111, /* "Message-Authenticator", Binary; RFC 2869 Message-Authenticator (80) */
  AAA_ATTR_TYPE_MLP_LINKS_CURRENT                            = 112, /* "mlp-links-current", Ulong */
  AAA_ATTR_TYPE_MLP_LINKS_MAX                                = 113, /* "mlp-links-max", Ulong */
  AAA_ATTR_TYPE_MLP_SESS_ID                                  = 114, /* "mlp-sess-id", String */
  AAA_ATTR_TYPE_REDIRECT_VRF                                 = 115, /* "redirect-vrf", String */
  AAA_ATTR_TYPE_DHCP_CLASS                                   = 116, /* "dhcp-class", String */
  AAA_ATTR_TYPE_DHCPV6_CLASS                                 = 117, /* "dhcpv6-class", String */
  AAA_ATTR_TYPE_DHCP_VENDOR_CLASS                            = 118, /* "dhcp-vendor-class", String */
  AAA_ATTR_TYPE_DHCP_POOL                                    = 119, /* "dhcp-pool", String */
  AAA_ATTR_TYPE_CONFIG_SOURCE_DPM                            = 120, /* "config-source-dpm", Boolean */
  AAA_ATTR_TYPE_MCAST_CLIENT                                 = 121, /* "mcast-client", Boolean */
  AAA_ATTR_TYPE_MCAST_RLIMIT                                 = 122, /* "mcast-rlimit", Ulong */
  AAA_ATTR_TYPE_IDLE_THRESHOLD                               = 123, /* "idle-threshold", Ulong */
  AAA_ATTR_TYPE_LOAD_THRESHOLD                               = 124, /* "load-threshold", Ulong */
  AAA_ATTR_TYPE_MAX_LINKS                                    = 125, /* "max-links", Ulong */
  AAA_ATTR_TYPE_MIN_LINKS                                    = 126, /* "min-links", Ulong */
  AAA_ATTR_TYPE_PPP_MULTILINK                                = 127, /* "ppp-multilink", Ulong */
  AAA_ATTR_TYPE_NAS_DESCRIPTION                              = 128, /* "nas-description", String */
  AAA_ATTR_TYPE_NBNS_PRIMARY_SERVER                          = 129, /* "nbns-primary-server", IPv4 Address */
  AAA_ATTR_TYPE_NBNS_SECONDARY_SERVER                        = 130, /* "nbns-secondary-server", IPv4 Address */
  AAA_ATTR_TYPE_NUM_SESSIONS                                 = 131, /* "num-sessions", Ulong */
  AAA_ATTR_TYPE_NETMASK                                      = 132, /* "netmask", IPv4 Address */
  AAA_ATTR_TYPE_OLD_PASSWORD                                 = 133, /* "old-password", Binary */
  AAA_ATTR_TYPE_OLD_PROMPTS                                  = 134, /* "old-prompts", Boolean */
  AAA_ATTR_TYPE_CALL_OUTACL                                  = 135, /* "call-outacl", String */
  AAA_ATTR_TYPE_OUTPUT_GIGA_WORDS                            = 136, /* "output-giga-words", Ulong; RFC 2869 Acct-Output-Gigawords (53) */
  AAA_ATTR_TYPE_OUTACL                                       = 137, /* "outacl", String */
  AAA_ATTR_TYPE_BYTES_OUT                                    = 138, /* "bytes_out", Ulong */
  AAA_ATTR_TYPE_IPV6_OUTACL                                  = 139, /* "ipv6_outacl", String */
  AAA_ATTR_TYPE_PAKS_OUT                                     = 140, /* "paks_out", Ulong */
  AAA_ATTR_TYPE_PORT_BNDL_HKEY                               = 141, /* "port-bndl-hkey", Binary */
  AAA_ATTR_TYPE_NATIVEIP_VRF                                 = 142, /* "nativeip-vrf", Binary */
  AAA_ATTR_TYPE_DOMAINIP_VRF                                 = 143, /* "domainip-vrf", Binary */
  AAA_ATTR_TYPE_SYSTEM_SCRIPT                                = 144, /* "system-script", String */
  AAA_ATTR_TYPE_PASSWORD                                     = 145, /* "password", Binary */
  AAA_ATTR_TYPE_POOL_DEF                                     = 146, /* "pool-def", String */
  AAA_ATTR_TYPE_POOL_ADDR                                    = 147, /* "pool-addr", IPv4 Address */
  AAA_ATTR_TYPE_POOL_MASK                                    = 148, /* "pool-mask", IPv4 Address */
  AAA_ATTR_TYPE_POOL_TIMEOUT                                 = 149, /* "pool-timeout", Ulong */
  AAA_ATTR_TYPE_PRE_BYTES_IN                                 = 150, /* "pre-bytes-in", Ulong */
  AAA_ATTR_TYPE_PRE_BYTES_OUT                                = 151, /* "pre-bytes-out", Ulong */
  AAA_ATTR_TYPE_PRE_PAKS_IN                                  = 152, /* "pre-paks-in", Ulong */
  AAA_ATTR_TYPE_PRE_PAKS_OUT                                 = 153, /* "pre-paks-out", Ulong */
  AAA_ATTR_TYPE_PRE_SESSION_TIME                             = 154, /* "pre-session-time", Ulong */
  AAA_ATTR_TYPE_FEATURE_ACCT_ID                              = 155, /* "feature-acct-id", Ulong */
  AAA_ATTR_TYPE_SERVICE_ID                                   = 156, /* "service-id", Ulong */
  AAA_ATTR_TYPE_FEATURE_INSTANCE_NAME                        = 157, /* "feature-instance-name", String */
  AAA_ATTR_TYPE_FEATURE_ACCT_BITMASK                         = 158, /* "feature-acct-bitmask", Ulong */
  AAA_ATTR_TYPE_FEATURE_ACCT_INTERVAL                        = 159, /* "feature-acct-interval", Ulong */
  AAA_ATTR_TYPE_FEATURE_ACCT_METHOD                          = 160, /* "feature-acct-method", String */
  AAA_ATTR_TYPE_PRIV_LVL                                     = 161, /* "priv-lvl", Ulong */
  AAA_ATTR_TYPE_CLI_VIEW_NAME                                = 162, /* "cli-view-name", String */
  AAA_ATTR_TYPE_PROTOCOL                                     = 163, /* "protocol", Enum */
  AAA_ATTR_TYPE_PROXYACL                                     = 164, /* "proxyacl", String */
  AAA_ATTR_TYPE_AUTH_REQUIRED                                = 165, /* "auth-required", Ulong */
  AAA_ATTR_TYPE_AUTH_TYPE                                    = 166, /* "auth-type", String */
  AAA_ATTR_TYPE_SERVICE_TYPE                                 = 167, /* "service-type", Enum; RFC 2865 Service-Type (6) */
  AAA_ATTR_TYPE_REDIRECTED_STATION                           = 168, /* "redirected-station", String */
  AAA_ATTR_TYPE_NEGOTIATED_ROUTE                             = 169, /* "negotiated-route", String */
  AAA_ATTR_TYPE_IPV6_ROUTE                                   = 170, /* "ipv6-route", String */
  AAA_ATTR_TYPE_ROUTE                                        = 171, /* "route", String */
  AAA_ATTR_TYPE_STATE                                        = 172, /* "state", Binary; RFC 2865 State (24) */
  AAA_ATTR_TYPE_CLASS                                        = 173, /* "class", Binary; RFC 2865 Class (25) */
  AAA_ATTR_TYPE_SEND_AUTH                                    = 174, /* "send-auth", Enum */
  AAA_ATTR_TYPE_SEND_SECRET                                  = 175, /* "send-secret", Binary */
  AAA_ATTR_TYPE_SERVICE                                      = 176, /* "service", Enum */
  AAA_ATTR_TYPE_SERVICE_NAME                                 = 177, /* "service-name", String */
  AAA_ATTR_TYPE_PARENT_SESSION_ID                            = 178, /* "parent-session-id", String */
  AAA_ATTR_TYPE_STRING_SESSION_ID                            = 179, /* "string-session-id", String */
  AAA_ATTR_TYPE_SESSION_ID                                   = 180, /* "session-id", Ulong */
  AAA_ATTR_TYPE_ACCT_RECORD_NUMBER                           = 181, /* "acct_record_number", Ulong; RFC 6733 Accounting-Record-Number (485) */
  AAA_ATTR_TYPE_ACCOUNTING_RECORD_TYPE                       = 182, /* "accounting-record-type", Enum; RFC 6733 Accounting-Record-Type (480); values count from 1 there */
  AAA_ATTR_TYPE_SUBSCRIBER_LABEL                             = 183, /* "subscriber-label", Ulong */
  AAA_ATTR_TYPE_ELAPSED_TIME                                 = 184, /* "elapsed_time", Ulong */
  AAA_ATTR_TYPE_SOURCE_IP                                    = 185, /* "source-ip", IPv4 Address */
  AAA_ATTR_TYPE_START_TIME                                   = 186, /* "start_time", UTC */
  AAA_ATTR_TYPE_SUB_QOS_POLICY_IN                            = 187, /* "sub-qos-policy-in", String */
  AAA_ATTR_TYPE_SUB_PBR_POLICY_IN                            = 188, /* "sub-pbr-policy-in", String */
  AAA_ATTR_TYPE_SUB_QOS_POLICY_OUT                           = 189, /* "sub-qos-policy-out", String */
  AAA_ATTR_TYPE_ACCT_POLICY_MAP                              = 190, /* "acct-policy-map", String */
  AAA_ATTR_TYPE_ACCT_POLICY_IN                               = 191, /* "acct-policy-in", String */
  AAA_ATTR_TYPE_ACCT_POLICY_OUT                              = 192, /* "acct-policy-out", String */
  AAA_ATTR_TYPE_DISC_CAUSE                                   = 193, /* "disc-cause", Enum; RFC 2866 Acct-Terminate-Cause (49) */
  AAA_ATTR_TYPE_SESSION_TIMEOUT                              = 194, /* "session-timeout", Ulong; RFC 2865 Session-Timeout (27) */
  AAA_ATTR_TYPE_EVENT_TIMESTAMP                              = 195, /* "Event-Timestamp", Ulong; RFC 2869 Event-Timestamp (55) */
  AAA_ATTR_TYPE_USER_MAXLINKS                                = 196, /* "user-maxlinks", Ulong */
  AAA_ATTR_TYPE_USERNAME                                     = 197, /* "username", String; RFC 2865 User-Name (1) */
  AAA_ATTR_TYPE_KEEPALIVE                                    = 198, /* "keepalive", String */
  AAA_ATTR_TYPE_NAS_TX_SPEED                                 = 199, /* "nas-tx-speed", Ulong */
  AAA_ATTR_TYPE_NAS_TX_SPEED_KBPS                            = 200, /* "nas-tx-speed-kbps", Ulong */
  AAA_ATTR_TYPE_LOGIN_SERVICE                                = 201, /* "login-service", Enum */
  AAA_ATTR_TYPE_ZEL_ACCOUNT_INFO                             = 202, /* "zel-account-info", String */
  AAA_ATTR_TYPE_ZEL_SERVICE_INFO                             = 203, /* "zel-service-info", String */
  AAA_ATTR_TYPE_ZEL_COMMAND_CODE                             = 204, /* "zel-command-code", Binary */
  AAA_ATTR_TYPE_ZEL_CONTROL_INFO                             = 205, /* "zel-control-info", String */
  AAA_ATTR_TYPE_LOGIN_TCP_PORT                               = 206, /* "login-tcp-port", Ulong; RFC 2865 Login-TCP-Port (16) */
  AAA_ATTR_TYPE_LOGIN_IP_ADDR_HOST                           = 207, /* "login-ip-addr-host", IPv4 Address */
  AAA_ATTR_TYPE_LOGIN_IPV6_ADDR_HOST                         = 208, /* "login-ipv6-addr-host", String */
  AAA_ATTR_TYPE_LOGIN_IP_HOST                                = 209, /* "login-ip-host", String */
  AAA_ATTR_TYPE_NAS_IP_ADDRESS                               = 210, /* "nas-ip-address", IPv4 Address; RFC 2865 NAS-IP-Address (4) */
  AAA_ATTR_TYPE_FRAMED_IPX_NETWORK                           = 211, /* "framed-ipx-network", IPv4 Address; RFC 2865 Framed-IPX-Network (23) */
  AAA_ATTR_TYPE_ACCT_DELAY_TIME                              = 212, /* "acct-delay-time", Ulong; RFC 2866 Acct-Delay-Time (41) */
  AAA_ATTR_TYPE_MS_CHAP_ERROR                                = 213, /* "MS-CHAP-Error", Binary */
  AAA_ATTR_TYPE_MS_CHAP_NT_ENC_PW1                           = 214, /* "MS-CHAP-NT-Enc-PW1", Binary */
  AAA_ATTR_TYPE_MS_CHAP_NT_ENC_PW2                           = 215, /* "MS-CHAP-NT-Enc-PW2", Binary */
  AAA_ATTR_TYPE_MS_CHAP_NT_ENC_PW3                           = 216, /* "MS-CHAP-NT-Enc-PW3", Binary */
  AAA_ATTR_TYPE_MS_MPPE_ENC_POLICY                           = 217, /* "MS-MPPE-Enc-Policy", Enum */
  AAA_ATTR_TYPE_MS_MPPE_ENC_TYPE                             = 218, /* "MS-MPPE-Enc-Type", Ulong */
  AAA_ATTR_TYPE_IP_VRF                                       = 219, /* "ip-vrf", String */
  AAA_ATTR_TYPE_IP_ADDR                                      = 220, /* "ip-addr", String */
  AAA_ATTR_TYPE_IPV4_UNNUMBERED                              = 221, /* "ipv4-unnumbered", String */
  AAA_ATTR_TYPE_IP_UNNUMBERED                                = 222, /* "ip-unnumbered", String */
  AAA_ATTR_TYPE_INTERFACE_ID                                 = 223, /* "Interface-Id", Binary */
  AAA_ATTR_TYPE_PREFIX                                       = 224, /* "prefix", Binary */
  AAA_ATTR_TYPE_VRF_ID                                       = 225, /* "vrf-id", Ulong */
  AAA_ATTR_TYPE_TRAFFIC_CLASS                                = 226, /* "traffic-class", String */
  AAA_ATTR_TYPE_ACCOUNTING_LIST                              = 227, /* "accounting-list", String */
  AAA_ATTR_TYPE_DUAL_STACK_DELAY                             = 228, /* "dual-stack-delay", Ulong */
  AAA_ATTR_TYPE_SERVICE_ACCT_LIST                            = 229, /* "service-acct-list", String */
  AAA_ATTR_TYPE_TIME_QUOTA                                   = 230, /* "time-quota", Ulong */
  AAA_ATTR_TYPE_VOLUME_QUOTA                                 = 231, /* "volume-quota", Ulong */
  AAA_ATTR_TYPE_GIGA_WORDS_VOLUME_QUOTA                      = 232, /* "giga-words-volume-quota", Ulong */
  AAA_ATTR_TYPE_TARIFF_TIME                                  = 233, /* "tariff-time", Ulong */
  AAA_ATTR_TYPE_PTV_QUOTA                                    = 234, /* "ptv-quota", Ulong */
  AAA_ATTR_TYPE_IS_SESSION_IDLE                              = 235, /* "is-session-idle", Boolean */
  AAA_ATTR_TYPE_PREPAID_TIMEOUT                              = 236, /* "prepaid-timeout", Ulong */
  AAA_ATTR_TYPE_APP_RESULT_CODE                              = 237, /* "app-result-code", Enum */
  AAA_ATTR_TYPE_COMMAND                                      = 238, /* "command", String */
  AAA_ATTR_TYPE_SD                                           = 239, /* "sd", String */
  AAA_ATTR_TYPE_SA                                           = 240, /* "sa", String */
  AAA_ATTR_TYPE_SM                                           = 241, /* "sm", String */
  AAA_ATTR_TYPE_SERVICE_PARAMETERS                           = 242, /* "service-parameters", String */
  AAA_ATTR_TYPE_SERVICE_INFO                                 = 243, /* "service-info", String */
  AAA_ATTR_TYPE_METHOD_LIST                                  = 244, /* "Method-List", String */
  AAA_ATTR_TYPE_IDENTIFIER_TYPE                              = 245, /* "identifier-type", Enum */
  AAA_ATTR_TYPE_TEMPLATE_TYPE                                = 246, /* "template-type", Enum */
  AAA_ATTR_TYPE_TEMPLATE_NAME                                = 247, /* "template-name", String */
  AAA_ATTR_TYPE_POLICYMAP_NAME                               = 248, /* "policymap-name", String */
  AAA_ATTR_TYPE_TIMER_NAME                                   = 249, /* "timer-name", String */
  AAA_ATTR_TYPE_TIMER_VALUE                                  = 250, /* "timer-value", Ulong */
  AAA_ATTR_TYPE_NAS_PORT_SUB_ID_TYPE                         = 251, /* "nas_port_sub_id-type", Enum */
  AAA_ATTR_TYPE_NAS_PORT_TYPE_ID_TYPE                        = 252, /* "nas_port_type_id-type", Enum */
  AAA_ATTR_TYPE_MEDIA_TYPE                                   = 253, /* "media-type", Enum */
  AAA_ATTR_TYPE_PROTOCOL_TYPE                                = 254, /* "protocol-type", Enum */
  AAA_ATTR_TYPE_DOMAIN                                       = 255, /* "domain", String */
  AAA_ATTR_TYPE_NAS_PORT                                     = 256, /* "nas-port", Ulong; RFC 2865 NAS-Port (5) */
  AAA_ATTR_TYPE_TUNNEL_NAME                                  = 257, /* "tunnel-name", String */
  AAA_ATTR_TYPE_DHCP_CLIENT_ID                               = 258, /* "dhcp-client-id", String */
  AAA_ATTR_TYPE_IF_HANDLE                                    = 259, /* "if-handle", Ulong */
  AAA_ATTR_TYPE_PARENT_IF_HANDLE                             = 260, /* "parent-if-handle", Ulong */
  AAA_ATTR_TYPE_FORMATTED_CLID                               = 261, /* "formatted-clid", String */
  AAA_ATTR_TYPE_PORT_LIMIT                                   = 262, /* "port-limit", Ulong; RFC 2865 Port-Limit (62) */
  AAA_ATTR_TYPE_TUNNEL_TYPE                                  = 263, /* "tunnel-type", Enum */
  AAA_ATTR_TYPE_TUNNEL_MEDIUM_TYPE                           = 264, /* "tunnel-medium-type", Enum */
  AAA_ATTR_TYPE_TUNNEL_CLIENT_ENDPOINT                       = 265, /* "tunnel-client-endpoint", String */
  AAA_ATTR_TYPE_TUNNEL_SERVER_ENDPOINT                       = 266, /* "tunnel-server-endpoint", String */
  AAA_ATTR_TYPE_TUNNEL_CONNECTION_ID                         = 267, /* "tunnel-connection-id", String */
  AAA_ATTR_TYPE_TUNNEL_PASSWORD                              = 268, /* "tunnel-password", Binary */
  AAA_ATTR_TYPE_TUNNEL_PRIVATE_GROUP_ID                      = 269, /* "tunnel-private-group-id", String */
  AAA_ATTR_TYPE_VPDN_GROUP                                   = 270, /* "vpdn-group", String */
  AAA_ATTR_TYPE_TUNNEL_PREFERENCE                            = 271, /* "tunnel-preference", Ulong */
  AAA_ATTR_TYPE_TUNNEL_PACKETS_LOST                          = 272, /* "Tunnel-Packets-Lost", Ulong */
  AAA_ATTR_TYPE_TUNNEL_ID                                    = 273, /* "tunnel-id", String */
  AAA_ATTR_TYPE_GW_NAME                                      = 274, /* "gw-name", String */
  AAA_ATTR_TYPE_L2TP_TUNNEL_PASSWORD                         = 275, /* "l2tp-tunnel-password", Binary */
  AAA_ATTR_TYPE_L2TP_CLID_MASK_METHOD                        = 276, /* "l2tp-clid-mask-method", String */
  AAA_ATTR_TYPE_QOS_POLICY_IN                                = 277, /* "qos-policy-in", String */
  AAA_ATTR_TYPE_QOS_POLICY_OUT                               = 278, /* "qos-policy-out", String */
  AAA_ATTR_TYPE_L2TP_TUNNEL_AUTHEN                           = 279, /* "l2tp-tunnel-authen", String */
  AAA_ATTR_TYPE_TUNNEL_TOS_REFLECT                           = 280, /* "tunnel-tos-reflect", String */
  AAA_ATTR_TYPE_VPN_ID                                       = 281, /* "vpn-id", String */
  AAA_ATTR_TYPE_VPN_VRF                                      = 282, /* "vpn-vrf", String */
  AAA_ATTR_TYPE_TUNNEL_TOS_SETTING                           = 283, /* "tunnel-tos-setting", Ulong */
  AAA_ATTR_TYPE_VPDN_TEMPLATE                                = 284, /* "vpdn-template", String */
  AAA_ATTR_TYPE_ACCESS_LOOP_ENCAPSULATION                    = 285, /* "access-loop-encapsulation", Binary */
  AAA_ATTR_TYPE_INTERWORKING_FUNCTIONALITY_TAG               = 286, /* "interworking-functionality-tag", Boolean */
  AAA_ATTR_TYPE_ACCT_MULTI_SESSION_ID                        = 287, /* "acct-multi-session-id", String; RFC 2866 Acct-Multi-Session-Id (50) */
  AAA_ATTR_TYPE_MD_IP_ADDR                                   = 288, /* "md-ip-addr", IPv4 Address */
  AAA_ATTR_TYPE_MD_IPV6_ADDR                                 = 289, /* "md-ipv6-addr", IPv6 Address */
  AAA_ATTR_TYPE_MD_PORT                                      = 290, /* "md-port", Ulong */
  AAA_ATTR_TYPE_MD_DSCP                                      = 291, /* "md-dscp", Ulong */
  AAA_ATTR_TYPE_LI_ACTION                                    = 292, /* "li-action", Ulong */
  AAA_ATTR_TYPE_INTERCEPT_ID                                 = 293, /* "intercept-id", Binary */
  AAA_ATTR_TYPE_PHYSICAL_SHELF                               = 294, /* "physical-shelf", Ulong */
  AAA_ATTR_TYPE_PHYSICAL_SLOT                                = 295, /* "physical-slot", Ulong */
  AAA_ATTR_TYPE_PHYSICAL_SUBSLOT                             = 296, /* "physical-subslot", Ulong */
  AAA_ATTR_TYPE_PHYSICAL_ADAPTER                             = 297, /* "physical-adapter", Ulong */
  AAA_ATTR_TYPE_PHYSICAL_CHASSIS                             = 298, /* "physical-chassis", Ulong */
  AAA_ATTR_TYPE_PHYSICAL_PORT                                = 299, /* "physical-port", Ulong */
  AAA_ATTR_TYPE_PHYSICAL_CHANNEL                             = 300, /* "physical-channel", Ulong */
  AAA_ATTR_TYPE_INNER_VLAN_ID                                = 301, /* "inner-vlan-id", Ulong */
  AAA_ATTR_TYPE_OUTER_VLAN_ID                                = 302, /* "outer-vlan-id", Ulong */
  AAA_ATTR_TYPE_VCI                                          = 303, /* "vci", Ulong */
  AAA_ATTR_TYPE_VPI                                          = 304, /* "vpi", Ulong */
  AAA_ATTR_TYPE_FORMAT_NAME                                  = 305, /* "format-name", String */
  AAA_ATTR_TYPE_STRICT_RPF                                   = 306, /* "strict-rpf", Ulong */
  AAA_ATTR_TYPE_PPPOE_SESSION_ID                             = 307, /* "pppoe-session-id", Ulong */
  AAA_ATTR_TYPE_IGMP_QUERY_INTERVAL                          = 308, /* "igmp-query-interval", Ulong */
  AAA_ATTR_TYPE_IGMP_TRACK                                   = 309, /* "igmp-track", String */
  AAA_ATTR_TYPE_IGMP_QUERY_MAX_RESPONSE_TIME                 = 310, /* "igmp-query-max-response-time", Ulong */
  AAA_ATTR_TYPE_IGMP_ACCESS_GROUP                            = 311, /* "igmp-access-group", String */
  AAA_ATTR_TYPE_IGMP_MAX_GROUPS                              = 312, /* "igmp-max-groups", Ulong */
  AAA_ATTR_TYPE_IGMP_VERSION                                 = 313, /* "igmp-version", Ulong */
  AAA_ATTR_TYPE_IPV4_MULTICAST                               = 314, /* "ipv4-multicast", Enum */
  AAA_ATTR_TYPE_DSL_LINE_INFO_FORWARDING                     = 315, /* "dsl-line-info-forwarding", Ulong */
  AAA_ATTR_TYPE_DISCONNECT_CAUSE                             = 316, /* "disconnect-cause", String */
  AAA_ATTR_TYPE_PREFERRED_SERVER_IP_ADDRESS                  = 317, /* "Preferred Server IP Address", Binary */
  AAA_ATTR_TYPE_PREFERRED_SERVER_AUTHENTICATION_PORT         = 318, /* "Preferred Server Authentication Port", Ulong */
  AAA_ATTR_TYPE_PREFERRED_SERVER_ACCOUNTING_PORT             = 319, /* "Preferred Server Accounting Port", Ulong */
  AAA_ATTR_TYPE_IPV4_SESSION_STATE                           = 320, /* "ipv4-session-state", Boolean */
  AAA_ATTR_TYPE_IPV6_SESSION_STATE                           = 321, /* "ipv6-session-state", Boolean */
  AAA_ATTR_TYPE_ACCT_INPUT_GIGAWORDS_IPV4                    = 322, /* "acct-input-gigawords-ipv4", Ulong */
  AAA_ATTR_TYPE_ACCT_INPUT_OCTETS_IPV4                       = 323, /* "acct-input-octets-ipv4", Ulong */
  AAA_ATTR_TYPE_ACCT_INPUT_PACKETS_IPV4                      = 324, /* "acct-input-packets-ipv4", Ulong */
  AAA_ATTR_TYPE_ACCT_OUTPUT_GIGAWORDS_IPV4                   = 325, /* "acct-output-gigawords-ipv4", Ulong */
  AAA_ATTR_TYPE_ACCT_OUTPUT_OCTETS_IPV4                      = 326, /* "acct-output-octets-ipv4", Ulong */
  AAA_ATTR_TYPE_ACCT_OUTPUT_PACKETS_IPV4                     = 327, /* "acct-output-packets-ipv4", Ulong */
  AAA_ATTR_TYPE_ACCT_INPUT_GIGAWORDS_IPV6                    = 328, /* "acct-input-gigawords-ipv6", Ulong */
  AAA_ATTR_TYPE_ACCT_INPUT_OCTETS_IPV6                       = 329, /* "acct-input-octets-ipv6", Ulong */
  AAA_ATTR_TYPE_ACCT_INPUT_PACKETS_IPV6                      = 330, /* "acct-input-packets-ipv6", Ulong */
  AAA_ATTR_TYPE_ACCT_OUTPUT_GIGAWORDS_IPV6                   = 331, /* "acct-output-gigawords-ipv6", Ulong */
  AAA_ATTR_TYPE_ACCT_OUTPUT_OCTETS_IPV6                      = 332, /* "acct-output-octets-ipv6", Ulong */
  AAA_ATTR_TYPE_ACCT_OUTPUT_PACKETS_IPV6                     = 333, /* "acct-output-packets-ipv6", Ulong */
  AAA_ATTR_TYPE_NAS_IPV6_ADDRESS                             = 334, /* "nas-ipv6-Address", String */
  AAA_ATTR_TYPE_PREFIX_LEN                                   = 335, /* "prefix-len", Ulong */
  AAA_ATTR_TYPE_DELEGATED_PREFIX                             = 336, /* "delegated-prefix", Binary */
  AAA_ATTR_TYPE_DELEGATED_IPV6_POOL                          = 337, /* "delegated-ipv6-pool", String */
  AAA_ATTR_TYPE_IPV6_DNS_SERVERS_ADDR                        = 338, /* "ipv6-dns-servers-addr", String */
  AAA_ATTR_TYPE_IPV6_ENABLE                                  = 339, /* "ipv6-enable", Ulong */
  AAA_ATTR_TYPE_IPV6_MTU                                     = 340, /* "ipv6-mtu", Ulong */
  AAA_ATTR_TYPE_IPV6_STRICT_RPF                              = 341, /* "ipv6-strict-rpf", Ulong */
  AAA_ATTR_TYPE_IPV6_UNREACHABLE                             = 342, /* "ipv6-unreachable", Ulong */
  AAA_ATTR_TYPE_DSL_LINE_STATE                               = 343, /* "dsl-line-state", Ulong */
  AAA_ATTR_TYPE_DSL_TYPE                                     = 344, /* "dsl-type", Ulong */
  AAA_ATTR_TYPE_ACCT_BACKOFF_STATUS                          = 345, /* "Acct-Backoff-Status", Enum */
  AAA_ATTR_TYPE_OR                                           = 346, /* "OR", Ulong */
  AAA_ATTR_TYPE_DHCPV6_INTERFACE_ID                          = 347, /* "dhcpv6-interface-id", String */
  AAA_ATTR_TYPE_TORVO_MPC_PROTOCOL_INTERFACE                 = 348, /* "torvo-mpc-protocol-interface", Enum */
  AAA_ATTR_TYPE_AUTHOR_STATUS                                = 349, /* "author_status", Boolean */
  AAA_ATTR_TYPE_TORVO_MOBILE_NODE_IDENTIFIER                 = 350, /* "torvo-mobile-node-identifier", String */
  AAA_ATTR_TYPE_TORVO_MN_SERVICE                             = 351, /* "torvo-mn-service", Enum */
  AAA_ATTR_TYPE_TORVO_MULTIHOMING_SUPPORT                    = 352, /* "torvo-multihoming-support", Boolean */
  AAA_ATTR_TYPE_TORVO_SERVICE_SELECTION                      = 353, /* "torvo-service-selection", String */
  AAA_ATTR_TYPE_HOME_LMA                                     = 354, /* "home-lma", String */
  AAA_ATTR_TYPE_TORVO_HOME_LMA_IPV6_ADDRESS                  = 355, /* "torvo-home-lma-ipv6-address", IPv6 Address */
  AAA_ATTR_TYPE_TORVO_HOME_LMA_IPV4_ADDRESS                  = 356, /* "Torvo-Home-LMA-IPv4-Address", IPv4 Address */
  AAA_ATTR_TYPE_MN_MAX_HNP                                   = 357, /* "mn-max-hnp", Ulong */
  AAA_ATTR_TYPE_TORVO_UPLINK_GRE_KEY                         = 358, /* "torvo-uplink-gre-key", Ulong */
  AAA_ATTR_TYPE_TORVO_DOWNLINK_GRE_KEY                       = 359, /* "torvo-downlink-gre-key", Ulong */
  AAA_ATTR_TYPE_TORVO_MSISDN                                 = 360, /* "torvo-msisdn", String */
  AAA_ATTR_TYPE_IMSI                                         = 361, /* "imsi", String */
  AAA_ATTR_TYPE_CHARGING_ID                                  = 362, /* "charging-id", String */
  AAA_ATTR_TYPE_PDP_TYPE                                     = 363, /* "pdp-type", Enum */
  AAA_ATTR_TYPE_CHARGING_GW_ADDR                             = 364, /* "charging-gw-addr", IPv4 Address */
  AAA_ATTR_TYPE_QOS_PROFILE                                  = 365, /* "qos-profile", String */
  AAA_ATTR_TYPE_SGSN_ADDRSS                                  = 366, /* "sgsn-addrss", IPv4 Address */
  AAA_ATTR_TYPE_GGSN_ADDRESS                                 = 367, /* "ggsn-address", IPv4 Address */
  AAA_ATTR_TYPE_IMSI_MCC_MNC                                 = 368, /* "imsi-mcc-mnc", String */
  AAA_ATTR_TYPE_GGSN_MCC_MNC                                 = 369, /* "ggsn-mcc-mnc", String */
  AAA_ATTR_TYPE_NSAPI                                        = 370, /* "nsapi", String */
  AAA_ATTR_TYPE_SESS_STOP_IND                                = 371, /* "SESS_STOP_IND", Binary */
  AAA_ATTR_TYPE_SELECTION_MODE                               = 372, /* "selection-mode", String */
  AAA_ATTR_TYPE_CHARGING_CHARACTERISTICS                     = 373, /* "charging-characteristics", String */
  AAA_ATTR_TYPE_SGSN_MCC_MNC                                 = 374, /* "sgsn-mcc-mnc", String */
  AAA_ATTR_TYPE_RADIO_ACCESS_TECHNOLOGY_TYPE                 = 375, /* "Radio-access-technology-type", Binary */
  AAA_ATTR_TYPE_DEFAULT_IPV4_GATEWAY                         = 376, /* "default-ipv4-gateway", IPv4 Address */
  AAA_ATTR_TYPE_DEFAULT_GW_MAC                               = 377, /* "default-gw-mac", String */
  AAA_ATTR_TYPE_DHCP_SERVER                                  = 378, /* "dhcp-server", IPv4 Address */
  AAA_ATTR_TYPE_TUNNEL_IF_HANDLE                             = 379, /* "tunnel-if-handle", Ulonglong */
  AAA_ATTR_TYPE_HOME_INTERFACE_ID                            = 380, /* "home-interface-id", Binary */
  AAA_ATTR_TYPE_PMIP6_ENCAP_TYPE                             = 381, /* "pmip6-encap-type", Enum */
  AAA_ATTR_TYPE_MOBILE_IPV4_NETMASK                          = 382, /* "mobile-ipv4-netmask", IPv4 Address */
  AAA_ATTR_TYPE_MOBILE_IPV4_ADDR                             = 383, /* "mobile-ipv4-addr", IPv4 Address */
  AAA_ATTR_TYPE_HOME_LMA_IPV6_ADDRESS                        = 384, /* "home-lma-ipv6-address", Binary */
  AAA_ATTR_TYPE_HOME_LMA_IPV4_ADDRESS                        = 385, /* "home-lma-ipv4-address", IPv4 Address */
  AAA_ATTR_TYPE_HOME_HL_PREFIX                               = 386, /* "home-hl-prefix", Binary */
  AAA_ATTR_TYPE_DOMAIN_NAME                                  = 387, /* "domain-name", String */
  AAA_ATTR_TYPE_LEASE_DURATION                               = 388, /* "lease-duration", Ulong */
  AAA_ATTR_TYPE_MOBILITY_CORE_MTU                            = 389, /* "mobility-core-mtu", Ulong */
  AAA_ATTR_TYPE_TORVO_APN_VRF_ID                             = 390, /* "torvo-apn-vrf-id", String */
  AAA_ATTR_TYPE_TORVO_ACCESS_VRF_ID                          = 391, /* "torvo-access-vrf-id", String */
  AAA_ATTR_TYPE_ECHO_STRING_1                                = 392, /* "echo-string-1", String */
  AAA_ATTR_TYPE_ECHO_STRING_2                                = 393, /* "echo-string-2", String */
  AAA_ATTR_TYPE_ECHO_STRING_3                                = 394, /* "echo-string-3", String */
  AAA_ATTR_TYPE_ECHO_STRING_4                                = 395, /* "echo-string-4", String */
  AAA_ATTR_TYPE_IPV4_DEFAULT_GATEWAY                         = 396, /* "ipv4-default-gateway", IPv4 Address */
  AAA_ATTR_TYPE_DHCP_USER_CLASS                              = 397, /* "dhcp-user-class", String */
  AAA_ATTR_TYPE_MOB_SESS_DEL_IN_PROGRESS                     = 398, /* "mob-sess-del-in-progress", Boolean */
  AAA_ATTR_TYPE_MOB_SESS_CREATE_IN_PROGRESS                  = 399, /* "mob-sess-create-in-progress", Boolean */
  AAA_ATTR_TYPE_STATIC_SESSION                               = 400, /* "static-session", Boolean */
  AAA_ATTR_TYPE_DHCP_CLIENT_ID_SPL                           = 401, /* "dhcp-client-id-spl", String */
  AAA_ATTR_TYPE_TEMPLATE_IF_HANDLE                           = 402, /* "template-if-handle", Ulong */
  AAA_ATTR_TYPE_CREDIT_CONTROL_DIRECTION                     = 403, /* "credit-control-direction", String */
  AAA_ATTR_TYPE_DEVICE_ROLE                                  = 404, /* "Device-Role", Enum */
  AAA_ATTR_TYPE_SRG_GROUP_ID                                 = 405, /* "srg-group-id", Ulong */
  AAA_ATTR_TYPE_MASTER_NAS_IDENTIFIER                        = 406, /* "master-nas-identifier", String */
  AAA_ATTR_TYPE_MASTER_NAS_PORT                              = 407, /* "master-nas-port", Ulong */
  AAA_ATTR_TYPE_MASTER_SESSION_ID                            = 408, /* "master-session-id", Ulong */
  AAA_ATTR_TYPE_CUSTOMER_NAME                                = 409, /* "customer-name", String */
  AAA_ATTR_TYPE_HOME_IPV4_HOA                                = 410, /* "home-ipv4-hoa", IPv4 Address */
  AAA_ATTR_TYPE_CLIENT_USERNAME                              = 411, /* "client-username", String */
  AAA_ATTR_TYPE_FORMATTED_USERNAME                           = 412, /* "formatted-username", String */
  AAA_ATTR_TYPE_MEMBER_HASH                                  = 413, /* "member-hash", Ulong */
  AAA_ATTR_TYPE_START_RA_ON_IPV6_ENABLE                      = 414, /* "start-ra-on-ipv6-enable", Ulong */
  AAA_ATTR_TYPE_PREFERRED_SERVER_IPV6_ADDRESS                = 415, /* "Preferred Server IPv6 Address", IPv6 Address */
  AAA_ATTR_TYPE_DELEGATED_IPV4_PREFIX                        = 416, /* "delegated-ipv4-prefix", String */
  AAA_ATTR_TYPE_TORVO_MAG_COA_UP_IPV4_ADDRESS                = 417, /* "torvo-mag-coa-up-ipv4-address", IPv4 Address */
  AAA_ATTR_TYPE_TORVO_MAG_COA_UP_IPV6_ADDRESS                = 418, /* "torvo-mag-coa-up-ipv6-address", IPv6 Address */
  AAA_ATTR_TYPE_DHCPV4_OPTION                                = 419, /* "dhcpv4-option", String */
  AAA_ATTR_TYPE_GOOGLE_CIRCUIT_ID_TAG                        = 420, /* "Google-circuit-id-tag", String */
  AAA_ATTR_TYPE_GOOGLE_REMOTE_ID_TAG                         = 421, /* "Google-remote-id-tag", String */
  AAA_ATTR_TYPE_SUB_QOS_GROUP_IDENTIFIER                     = 422, /* "sub-qos-group-identifier", String */
  AAA_ATTR_TYPE_TIMER_ABSOLUTE                               = 423, /* "timer-absolute", String */
  AAA_ATTR_TYPE_DHCP_MODE_CLASS                              = 424, /* "dhcp-mode-class", String */
  AAA_ATTR_TYPE_VENDOR_ID                                    = 425, /* "Vendor ID", Ulong; RFC 6733 Vendor-Id (266) */
  AAA_ATTR_TYPE_ASCEND_CONNECT_PROGRESS                      = 426, /* "Ascend-Connect-Progress", Ulong */
  AAA_ATTR_TYPE_ACCT_UNIQUE_SESSION_ID                       = 427, /* "Acct-Unique-Session-Id", Ulong */
  AAA_ATTR_TYPE_FIRMWARE_REVISION                            = 428, /* "Firmware-Revision", Ulong; RFC 6733 Firmware-Revision (267) */
  AAA_ATTR_TYPE_HOST_IP_ADDRESS                              = 429, /* "HOST IP Address", Address; RFC 6733 Host-IP-Address (257) */
  AAA_ATTR_TYPE_SUPPORTED_EXTERNAL_VENDORS                   = 430, /* "Supported external vendors", Ulong */
  AAA_ATTR_TYPE_PRODUCT_NAME                                 = 431, /* "Product name", String; RFC 6733 Product-Name (269) */
  AAA_ATTR_TYPE_ROUTE_STRING                                 = 432, /* "Route String", String */
  AAA_ATTR_TYPE_DISCONNECT_CAUSE_ENUM                        = 433, /* "disconnect cause", Enum; RFC 6733 Disconnect-Cause (273) */
  AAA_ATTR_TYPE_RE_AUTH_REQUEST_TYPE                         = 434, /* "Re-Auth-Request-Type", Enum; RFC 6733 Re-Auth-Request-Type (285) */
  AAA_ATTR_TYPE_ORIGIN_HOST_INFORMATION                      = 435, /* "Origin host information", String; RFC 6733 Origin-Host (264) */
  AAA_ATTR_TYPE_ORIGIN_REALM_INFORMATION                     = 436, /* "Origin Realm Information", String; RFC 6733 Origin-Realm (296) */
  AAA_ATTR_TYPE_DESTINATION_HOST_INFORMATION                 = 437, /* "Destination host information", String; RFC 6733 Destination-Host (293) */
  AAA_ATTR_TYPE_DESTINATION_REALM_INFORMATION                = 438, /* "Destination Realm Information", String; RFC 6733 Destination-Realm (283) */
  AAA_ATTR_TYPE_AUTH_APPLICATION_ID                          = 439, /* "Auth Application ID", Ulong; RFC 6733 Auth-Application-Id (258) */
  AAA_ATTR_TYPE_ACCT_APPLICATION_ID                          = 440, /* "Acct Application ID", Ulong; RFC 6733 Acct-Application-Id (259) */
  AAA_ATTR_TYPE_SECURITY_SUPPORTED                           = 441, /* "Security supported", Enum; RFC 6733 Inband-Security-Id (299) */
  AAA_ATTR_TYPE_ERROR_MESSAGE                                = 442, /* "Error Message", String; RFC 6733 Error-Message (281) */
  AAA_ATTR_TYPE_ERROR_REPORTING_HOST                         = 443, /* "Error reporting host", String; RFC 6733 Error-Reporting-Host (294) */
  AAA_ATTR_TYPE_FAILED_AVP                                   = 444, /* "Failed AVP", Grouped; RFC 6733 Failed-AVP (279) */
  AAA_ATTR_TYPE_EXPERIMENTAL_RESULT_AVP                      = 445, /* "Experimental result AVP", Grouped; RFC 6733 Experimental-Result (297) */
  AAA_ATTR_TYPE_EXPERIMENTAL_RESULT_CODE                     = 446, /* "Experimental result code", Ulong; RFC 6733 Experimental-Result-Code (298) */
  AAA_ATTR_TYPE_RESULT_CODE                                  = 447, /* "Result code", Ulong; RFC 6733 Result-Code (268) */
  AAA_ATTR_TYPE_SESSION_BINDING                              = 448, /* "Session Binding", Ulong; RFC 6733 Session-Binding (270) */
  AAA_ATTR_TYPE_SESSION_FAILOVER                             = 449, /* "Session Failover", Enum; RFC 6733 Session-Server-Failover (271) */
  AAA_ATTR_TYPE_TERMINATION_CAUSE                            = 450, /* "Termination Cause", Enum; RFC 6733 Termination-Cause (295) */
  AAA_ATTR_TYPE_SESSION_ID_STRING                            = 451, /* "Session Id", String; RFC 6733 Session-Id (263) */
  AAA_ATTR_TYPE_CORRELATION_ID                               = 452, /* "Correlation ID", Ulong */
  AAA_ATTR_TYPE_INPUT_OCTETS                                 = 453, /* "Input octets", Ulonglong */
  AAA_ATTR_TYPE_OUTPUT_OCTETS                                = 454, /* "Output octets", Ulonglong */
  AAA_ATTR_TYPE_INPUT_OCTETS_2                               = 455, /* "Input octets", Ulonglong */
  AAA_ATTR_TYPE_OUTPUT_OCTETS_2                              = 456, /* "Output octets", Ulonglong */
  AAA_ATTR_TYPE_INPUT_PACKETS                                = 457, /* "Input packets", Ulonglong */
  AAA_ATTR_TYPE_OUTPUT_PACKETS                               = 458, /* "Output packets", Ulonglong */
  AAA_ATTR_TYPE_PREPAID_MONEY_UNITS                          = 459, /* "Prepaid money units", Grouped; RFC 8506 CC-Money (413) */
  AAA_ATTR_TYPE_PREPAID_REQUEST_NUMBER                       = 460, /* "Prepaid request number", Ulong; RFC 8506 CC-Request-Number (415) */
  AAA_ATTR_TYPE_PREPAID_REQUEST_TYPE                         = 461, /* "Prepaid request type", Enum; RFC 8506 CC-Request-Type (416) */
  AAA_ATTR_TYPE_PREPAID_SERVICE_SPECIFIC_UNITS               = 462, /* "Prepaid service specific units", Ulonglong; RFC 8506 CC-Service-Specific-Units (417) */
  AAA_ATTR_TYPE_PREPAID_SESSION_FAILOVER                     = 463, /* "Prepaid session Failover", Enum; RFC 8506 CC-Session-Failover (418) */
  AAA_ATTR_TYPE_PREPAID_SUBSESSION_ID                        = 464, /* "Prepaid subsession ID", Ulonglong; RFC 8506 CC-Sub-Session-Id (419) */
  AAA_ATTR_TYPE_PREPAID_TIME_UNITS                           = 465, /* "Prepaid Time units", Ulong; RFC 8506 CC-Time (420) */
  AAA_ATTR_TYPE_PREPAID_VOLUME_GRANTED_REQUESTED_OR_USED     = 466, /* "Prepaid volume granted, requested, or used", Ulonglong */
  AAA_ATTR_TYPE_PREPAID_UNITS                                = 467, /* "Prepaid Units", Enum; RFC 8506 CC-Unit-Type (454) */
  AAA_ATTR_TYPE_PREPAID_SERVICE_COST                         = 468, /* "Prepaid service cost", Grouped */
  AAA_ATTR_TYPE_PREPAID_FAILURE_HANDLING                     = 469, /* "Prepaid Failure Handling", Enum; RFC 8506 Credit-Control-Failure-Handling (427) */
  AAA_ATTR_TYPE_PREPAID_MESSAGE_FAILURE_HANDLING             = 470, /* "Prepaid message failure handling", Enum; RFC 8506 Direct-Debiting-Failure-Handling (428) */
  AAA_ATTR_TYPE_PREPAID_FINAL_UNIT                           = 471, /* "Prepaid final unit", Grouped; RFC 8506 Final-Unit-Indication (430) */
  AAA_ATTR_TYPE_PREPAID_FINAL_UNIT_ACTION                    = 472, /* "Prepaid final unit action", Enum; RFC 8506 Final-Unit-Action (449) */
  AAA_ATTR_TYPE_PREPAID_GRANTED_UNIT                         = 473, /* "Prepaid granted unit", Grouped; RFC 8506 Granted-Service-Unit (431) */
  AAA_ATTR_TYPE_PREPAID_ASSIGNED_POOL                        = 474, /* "Prepaid assigned pool", Ulong */
  AAA_ATTR_TYPE_PREPAID_ASSIGNED_POOL_GROUPED                = 475, /* "Prepaid assigned pool", Grouped */
  AAA_ATTR_TYPE_PREPAID_INFO_FOR_MULTIPLE_SERVICES           = 476, /* "Prepaid info for multiple services", Grouped */
  AAA_ATTR_TYPE_PREPAID_MULTIPLE_SERVICE_INDICATOR           = 477, /* "Prepaid multiple service indicator", Enum; RFC 8506 Multiple-Services-Indicator (455) */
  AAA_ATTR_TYPE_RATING_GROUP                                 = 478, /* "Rating group", Ulong; RFC 8506 Rating-Group (432) */
  AAA_ATTR_TYPE_REQUESTED_SERVICE_UNIT                       = 479, /* "Requested service unit", Grouped; RFC 8506 Requested-Service-Unit (437) */
  AAA_ATTR_TYPE_RESTRICTED_SERVICES                          = 480, /* "Restricted services", String */
  AAA_ATTR_TYPE_SERVICE_IDENTIFIER                           = 481, /* "Service identifier", Ulong; RFC 8506 Service-Identifier (439) */
  AAA_ATTR_TYPE_SERVICE_PARAMETER_INFO                       = 482, /* "Service Parameter info", Grouped; RFC 8506 Service-Parameter-Info (440) */
  AAA_ATTR_TYPE_SERVICE_PARAMETER_TYPE                       = 483, /* "Service Parameter Type", Ulong; RFC 8506 Service-Parameter-Type (441) */
  AAA_ATTR_TYPE_SERVICE_PARAMETER_VALUE                      = 484, /* "Service Parameter Value", String; RFC 8506 Service-Parameter-Value (442) */
  AAA_ATTR_TYPE_SUBSCRIPTION_ID                              = 485, /* "Subscription ID", Grouped; RFC 8506 Subscription-Id (443) */
  AAA_ATTR_TYPE_SUBSCRIPTION_ID_TYPE                         = 486, /* "Subscription Id type", Enum; RFC 8506 Subscription-Id-Type (450) */
  AAA_ATTR_TYPE_SUBSCRIPTION_ID_DATA                         = 487, /* "Subscription ID Data", String; RFC 8506 Subscription-Id-Data (444) */
  AAA_ATTR_TYPE_TARIFF_CHANGE_USAGE                          = 488, /* "Tariff change usage", Enum; RFC 8506 Tariff-Change-Usage (452) */
  AAA_ATTR_TYPE_TARIFF_TIME_CHANGE                           = 489, /* "Tariff time change", UTC; RFC 8506 Tariff-Time-Change (451) */
  AAA_ATTR_TYPE_UNIT_VALUE                                   = 490, /* "Unit-value", Grouped; RFC 8506 Unit-Value (445) */
  AAA_ATTR_TYPE_EXPONENT_VALUE                               = 491, /* "Exponent value", Grouped */
  AAA_ATTR_TYPE_USED_SERVICE_UNITS                           = 492, /* "Used-service-units", Grouped; RFC 8506 Used-Service-Unit (446) */
  AAA_ATTR_TYPE_USER_EQUIPMENT_INFO                          = 493, /* "User-equipment-info", Grouped; RFC 8506 User-Equipment-Info (458) */
  AAA_ATTR_TYPE_USER_EQUIPMENT_INFO_TYPE                     = 494, /* "User equipment info type", Enum; RFC 8506 User-Equipment-Info-Type (459) */
  AAA_ATTR_TYPE_USER_EQUIPMENT_VALUE_STRING                  = 495, /* "User-equipment-value-string", String */
  AAA_ATTR_TYPE_PREPAID_VALUE_DIGITS                         = 496, /* "Prepaid-value-digits", Ulonglong */
  AAA_ATTR_TYPE_PREPAID_SERVICE_VALID_TIME                   = 497, /* "Prepaid service valid time", Ulong */
  AAA_ATTR_TYPE_SERVICE_CONTEXT_ID                           = 498, /* "Service Context Id", String; RFC 8506 Service-Context-Id (461) */
  AAA_ATTR_TYPE_PREPAID_QUOTA_CONSUMPTION_TIME               = 499, /* "Prepaid quota consumption time", Ulong */
  AAA_ATTR_TYPE_PREPAID_QUOTA_HOLDING_TIME                   = 500, /* "Prepaid quota holding time", Ulong */
  AAA_ATTR_TYPE_PREPAID_QUOTA_THRESHOLD_TIME                 = 501, /* "Prepaid quota threshold time", Ulong */
  AAA_ATTR_TYPE_QT_REPORTING_REASON                          = 502, /* "qt-reporting-reason", Enum */
  AAA_ATTR_TYPE_PREPAID_QUOTA_VOLUME_THRESHOLD               = 503, /* "Prepaid quota volume threshold", Ulong */
  AAA_ATTR_TYPE_VENDOR_SPECIFIC_APPLICATION_ID               = 504, /* "Vendor Specific Application Id", Grouped; RFC 6733 Vendor-Specific-Application-Id (260) */
  AAA_ATTR_TYPE_AGW_IPV4_ADDRESS                             = 505, /* "AGW IPv4 address", String */
  AAA_ATTR_TYPE_EVENT_TRIGGER                                = 506, /* "Event Trigger", Enum */
  AAA_ATTR_TYPE_ORIGIN_STATE_ID                              = 507, /* "Origin State ID", Ulong; RFC 6733 Origin-State-Id (278) */
  AAA_ATTR_TYPE_TY_ANCID                                     = 508, /* "Ty ANCID", Grouped */
  AAA_ATTR_TYPE_ANCID_VALUE                                  = 509, /* "ANCID Value", String */
  AAA_ATTR_TYPE_CHARGING_INFO                                = 510, /* "Charging Info", Grouped */
  AAA_ATTR_TYPE_PRI_CHARGING_COLLECT_FUNC_NAME               = 511, /* "Pri Charging Collect Func Name", String */
  AAA_ATTR_TYPE_SEC_CHARGING_COLLECT_FUNC_NAME               = 512, /* "Sec Charging Collect Func Name", String */
  AAA_ATTR_TYPE_AUTHORIZED_QOS                               = 513, /* "Authorized QoS", Grouped */
  AAA_ATTR_TYPE_QOS_CLASS                                    = 514, /* "QoS Class", Enum */
  AAA_ATTR_TYPE_MAX_REQ_BANDW_DL                             = 515, /* "Max req bandw DL", Ulong */
  AAA_ATTR_TYPE_MAX_REQ_BANDW_UL                             = 516, /* "Max req bandw UL", Ulong */
  AAA_ATTR_TYPE_CHARGING_RULE_INSTALL                        = 517, /* "Charging Rule Install", Grouped */
  AAA_ATTR_TYPE_CHARGING_RULE_REMOVE                         = 518, /* "Charging Rule Remove", Grouped */
  AAA_ATTR_TYPE_CHARGING_RULE_DEF                            = 519, /* "Charging Rule Def", Grouped */
  AAA_ATTR_TYPE_CHARGING_RULE_BASE_NAME                      = 520, /* "Charging Rule Base Name", String */
  AAA_ATTR_TYPE_CHARGING_RULE_NAME                           = 521, /* "Charging Rule Name", String */
  AAA_ATTR_TYPE_CHARGING_RULE_REPORT                         = 522, /* "Charging Rule Report", Grouped */
  AAA_ATTR_TYPE_FLOW_DESCRIPTION                             = 523, /* "Flow Description", String */
  AAA_ATTR_TYPE_FLOW_STATUS                                  = 524, /* "Flow Status", Enum */
  AAA_ATTR_TYPE_PCC_RULE_STATUS                              = 525, /* "PCC Rule Status", Enum */
  AAA_ATTR_TYPE_METERING_METHOD                              = 526, /* "Metering Method", Enum */
  AAA_ATTR_TYPE_OFFLINE                                      = 527, /* "Offline", Enum */
  AAA_ATTR_TYPE_ONLINE                                       = 528, /* "Online", Enum */
  AAA_ATTR_TYPE_PRECEDENCE                                   = 529, /* "Precedence", Ulong */
  AAA_ATTR_TYPE_REPORTING_LEVEL                              = 530, /* "Reporting Level", Enum */
  AAA_ATTR_TYPE_AF_CHARGING_ID                               = 531, /* "AF Charging ID", Binary */
  AAA_ATTR_TYPE_ACN_PHYSICAL_ACCESS_ID                       = 532, /* "ACN Physical Access ID", Grouped */
  AAA_ATTR_TYPE_ACN_PHYSICAL_ACCESS_ID_VALUE                 = 533, /* "ACN Physical Access ID Value", Binary */
  AAA_ATTR_TYPE_ACN_PHYSICAL_ACCESS_ID_REALM                 = 534, /* "ACN Physical Access ID Realm", Binary */
  AAA_ATTR_TYPE_BM_INFORMATION                               = 535, /* "BM-Information", Grouped */
  AAA_ATTR_TYPE_BM_ADDRESS                                   = 536, /* "BM-Address", Address */
  AAA_ATTR_TYPE_BM_TYPE                                      = 537, /* "BM-Type", Enum */
  AAA_ATTR_TYPE_HOA_SESSION_ID                               = 538, /* "HoA Session ID", String */
  AAA_ATTR_TYPE_VOA_SESSION_ID                               = 539, /* "VoA Session ID", String */
  AAA_ATTR_TYPE_MIP_MOBILE_NODE_ADDRESS                      = 540, /* "MIP-Mobile-Node-Address", Address */
  AAA_ATTR_TYPE_IPGW_ADDRESS                                 = 541, /* "IPGW-Address", Address */
  AAA_ATTR_TYPE_ACCOUNTING_REAL_TIME_REQUIRED                = 542, /* "Accounting-Real-Time-Required", Enum; RFC 6733 Accounting-Realtime-Required (483); values count from 1 there */
  AAA_ATTR_TYPE_AUTH_REQUEST_TYPE                            = 543, /* "Auth-Request-Type", Enum; RFC 6733 Auth-Request-Type (274); values count from 1 there */
  AAA_ATTR_TYPE_ORIGIN_AAA_PROTOCOL                          = 544, /* "Origin-AAA-Protocol", Enum; RFC 7155 Origin-AAA-Protocol (408); values count from 1 there */
  AAA_ATTR_TYPE_AUTHORIZATION_LIFETIME                       = 545, /* "Authorization-Lifetime", Ulong; RFC 6733 Authorization-Lifetime (291) */
  AAA_ATTR_TYPE_AUTH_GRACE_PERIOD                            = 546, /* "Auth-Grace-Period", Ulong; RFC 6733 Auth-Grace-Period (276) */
  AAA_ATTR_TYPE_AUTH_SESSION_STATE                           = 547, /* "Auth-Session-State", Enum; RFC 6733 Auth-Session-State (277) */
  AAA_ATTR_TYPE_GX_APPLICATION_ID                            = 548, /* "Gx Application ID", Ulong */
  AAA_ATTR_TYPE_SESSION_RELEASE_CAUSE                        = 549, /* "Session Release Cause", Enum */
  AAA_ATTR_TYPE_ACCT_TRIGGER_CAUSE                           = 550, /* "acct-trigger-cause", String */
  AAA_ATTR_TYPE_IP_CAN_TYPE                                  = 551, /* "IP-CAN-Type", Enum */
  AAA_ATTR_TYPE_RAT_TYPE                                     = 552, /* "RAT-Type", Enum */
  AAA_ATTR_TYPE_CLIENT_MAC_ADDRESS_CUSTOM1                   = 553, /* "client-mac-address-custom1", String */
  AAA_ATTR_TYPE_SG_NAME                                      = 554, /* "sg-name", String */
  AAA_ATTR_TYPE_LAST_USED_V4_SERVER_IP                       = 555, /* "Last used v4 server ip", IPv4 Address */
  AAA_ATTR_TYPE_LAST_USED_SERVER_IP_V6_ADDRESS               = 556, /* "Last used server ip v6 address", IPv6 Address */
  AAA_ATTR_TYPE_LAST_USED_SERVER_AUTHEN_PORT                 = 557, /* "Last used server authen port", Ulong */
  AAA_ATTR_TYPE_SOFTWARE_IDB                                 = 558, /* "Software idb", Ulong */
  AAA_ATTR_TYPE_EAP_MSK                                      = 559, /* "eap-msk", Binary */
  AAA_ATTR_TYPE_EAP_EMSK                                     = 560, /* "eap-emsk", Binary */
  AAA_ATTR_TYPE_CLID_MAC_ADDR                                = 561, /* "clid-mac-addr", Binary */
  AAA_ATTR_TYPE_EAP_SESSION_ID                               = 562, /* "EAP-session-id", String */
  AAA_ATTR_TYPE_MS_MPPE_SEND_KEY                             = 563, /* "MS-MPPE-Send-Key", Binary */
  AAA_ATTR_TYPE_MS_MPPE_RECV_KEY                             = 564, /* "MS-MPPE-Recv-Key", Binary */
  AAA_ATTR_TYPE_FRAMED_IPV6_ADDRESS                          = 565, /* "Framed-IPV6-Address", String */
  AAA_ATTR_TYPE_PARSED_USER_NAME                             = 566, /* "parsed-user-name", String */
  AAA_ATTR_TYPE_SUPPORTED_FEATURES                           = 567, /* "Supported-Features", Grouped */
  AAA_ATTR_TYPE_FEATURE_LIST_ID                              = 568, /* "Feature-List-ID", Ulong */
  AAA_ATTR_TYPE_FEATURE_LIST                                 = 569, /* "Feature-List", Ulong */
  AAA_ATTR_TYPE_MONITORING_KEY                               = 570, /* "Monitoring-Key", String */
  AAA_ATTR_TYPE_USAGE_MONITORING_INFORMATION                 = 571, /* "Usage-Monitoring-Information", Grouped */
  AAA_ATTR_TYPE_USAGE_MONITORING_LEVEL                       = 572, /* "Usage-Monitoring-Level", Enum */
  AAA_ATTR_TYPE_BEARER_USAGE                                 = 573, /* "Bearer-Usage", Enum */
  AAA_ATTR_TYPE_BEARER_CONTROL_MODE                          = 574, /* "Bearer-Control Mode", Enum */
  AAA_ATTR_TYPE_REVALIDATION_TIME                            = 575, /* "Revalidation-Time", UTC */
  AAA_ATTR_TYPE_USAGE_MONITORING_REPORT                      = 576, /* "Usage-Monitoring-Report", Enum */
  AAA_ATTR_TYPE_USAGE_MONITORING_SUPPORT                     = 577, /* "Usage-Monitoring-Support", Enum */
  AAA_ATTR_TYPE_RELAY_INFORMATION_OPTION                     = 578, /* "relay-information-option", String */
  AAA_ATTR_TYPE_DHCP_SUBSCRIBER_ID                           = 579, /* "dhcp-subscriber-id", String */
  AAA_ATTR_TYPE_DHCPV6_LINK_ADDRESS                          = 580, /* "dhcpv6-link-address", String */
  AAA_ATTR_TYPE_DHCP_RELAY_GIADDR                            = 581, /* "dhcp-relay-giaddr", IPv4 Address */
  AAA_ATTR_TYPE_DHCPV4_IP_LEASE                              = 582, /* "dhcpv4-ip-lease", String */
  AAA_ATTR_TYPE_DHCPV4_OPTION_TO_AAA                         = 583, /* "dhcpv4-option-to-aaa", String */
  AAA_ATTR_TYPE_DHCPV6_OPTION_TO_AAA                         = 584, /* "dhcpv6-option-to-aaa", String */
  AAA_ATTR_TYPE_DHCPV4_VENDOR_CLASS                          = 585, /* "dhcpv4-vendor-class", String */
  AAA_ATTR_TYPE_DHCPV6_VENDOR_CLASS                          = 586, /* "dhcpv6-vendor-class", String */
  AAA_ATTR_TYPE_DHCPV6_VENDOR_CLASS_STRING                   = 587, /* "dhcpv6-vendor-class-string", String */
  AAA_ATTR_TYPE_DHCPV4_CLIENT_ID                             = 588, /* "dhcpv4-client-id", String */
  AAA_ATTR_TYPE_DHCPV4_CLIENT_ID_SPL                         = 589, /* "dhcpv4-client-id-spl", String */
  AAA_ATTR_TYPE_DHCPV6_CLIENT_ID                             = 590, /* "dhcpv6-client-id", String */
  AAA_ATTR_TYPE_DHCPV6_CLIENT_ID_ENT_IDENT                   = 591, /* "dhcpv6-client-id-ent-ident", String */
  AAA_ATTR_TYPE_GX_PLUS_SERVICE_TEMPLATE                     = 592, /* "Gx Plus service template", Grouped */
  AAA_ATTR_TYPE_DHCPV6_OPTION                                = 593, /* "dhcpv6-option", String */
  AAA_ATTR_TYPE_DHCPV6_IP_LEASE                              = 594, /* "dhcpv6-ip-lease", String */
  AAA_ATTR_TYPE_CLIENT_MAC_ADDRESS_CUSTOM2                   = 595, /* "client-mac-address-custom2", String */
  AAA_ATTR_TYPE_STOP_TIME                                    = 596, /* "stop_time", UTC */
  AAA_ATTR_TYPE_SERVICE_INFORMATION                          = 597, /* "Service-Information", Grouped */
  AAA_ATTR_TYPE_PS_INFORMATION                               = 598, /* "PS-Information", Grouped */
  AAA_ATTR_TYPE_PDN_CONN_CHARGING_ID                         = 599, /* "PDN-CONN-Charging-Id", Ulong */
  AAA_ATTR_TYPE_DHCPV4_MODE_CLASS                            = 600, /* "dhcpv4-mode-class", String */
  AAA_ATTR_TYPE_PELX_DEVICE_ID                               = 601, /* "pelx-device-id", String */
  AAA_ATTR_TYPE_NODE_NAME                                    = 602, /* "node-name", String */
  AAA_ATTR_TYPE_SUB_POLICY_NAME                              = 603, /* "sub-policy-name", String */
  AAA_ATTR_TYPE_CP_SESSION_ID                                = 604, /* "cp-session-id", Ulong */
  AAA_ATTR_TYPE_DHCP_VLAN_INTF_SESSION_LIMIT                 = 605, /* "dhcp-vlan-intf-session-limit", Ulong */
  AAA_ATTR_TYPE_ACCT_STOP_STORAGE_RETRY                      = 606, /* "acct-stop-storage-retry", Ulong */
  AAA_ATTR_TYPE_SUB_IPV4_GATEWAY                             = 607, /* "sub-ipv4-gateway", String */
  AAA_ATTR_TYPE_IPV6_ND_DNS_SERVERS_ADDR                     = 608, /* "ipv6-nd-dns-servers-addr", String */
  AAA_ATTR_TYPE_ND_OTHER_CONFIG                              = 609, /* "nd-other-config", Ulong */
  AAA_ATTR_TYPE_ND_MANAGED_CONFIG                            = 610, /* "nd-managed-config", Ulong */
  AAA_ATTR_TYPE_ND_RA_UINCAST                                = 611, /* "nd-ra-uincast", Ulong */
  AAA_ATTR_TYPE_ND_SUPPRESS_RA                               = 612, /* "nd-suppress-ra", Ulong */
  AAA_ATTR_TYPE_ND_NUD_ENABLE                                = 613, /* "nd-nud-enable", Ulong */
  AAA_ATTR_TYPE_ND_SUPPRESS_CACHE                            = 614, /* "nd-suppress-cache", Ulong */
  AAA_ATTR_TYPE_ND_MTU_SUPPRESS                              = 615, /* "nd-mtu-suppress", Ulong */
  AAA_ATTR_TYPE_ND_HOP_LIMIT_UNSPECIFIED                     = 616, /* "nd-hop-limit-unspecified", Ulong */
  AAA_ATTR_TYPE_ND_ROUTER_PREFERENCE                         = 617, /* "nd-router-preference", Ulong */
  AAA_ATTR_TYPE_ND_RA_LIFETIME                               = 618, /* "nd-ra-lifetime", Ulong */
  AAA_ATTR_TYPE_ND_NS_INTERVAL                               = 619, /* "nd-ns-interval", Ulong */
  AAA_ATTR_TYPE_ND_REACHABLE_TIME                            = 620, /* "nd-reachable-time", Ulong */
  AAA_ATTR_TYPE_ND_RA_INTERVAL                               = 621, /* "nd-ra-interval", String */
  AAA_ATTR_TYPE_ND_RA_INITIAL                                = 622, /* "nd-ra-initial", String */
} aaa_attr_type;

/* ---- Values ---- */

/* 1 "disc-cause-ext" */
typedef enum aaa_disc_cause_ext AAA_ATTR_UINT32 {
  AAA_DISC_CAUSE_EXT_NO_REASON                               =   0, /* "No Reason" */
  AAA_DISC_CAUSE_EXT_NO_DISCONNECT                           =   1, /* "No Disconnect" */
  AAA_DISC_CAUSE_EXT_UNKNOWN                                 =   2, /* "Unknown" */
  AAA_DISC_CAUSE_EXT_CALL_DISCONNECT                         =   3, /* "Call Disconnect" */
  AAA_DISC_CAUSE_EXT_CLID_AUTH_FAIL                          =   4, /* "CLID Auth Fail" */
  AAA_DISC_CAUSE_EXT_NO_MODEM_AVAILABLE                      =   5, /* "No Modem Available" */
  AAA_DISC_CAUSE_EXT_NO_CARRIER                              =   6, /* "No Carrier" */
  AAA_DISC_CAUSE_EXT_LOST_CARRIER                            =   7, /* "Lost Carrier" */
  AAA_DISC_CAUSE_EXT_NO_MODEM_RESULTS                        =   8, /* "No Modem Results" */
  AAA_DISC_CAUSE_EXT_TS_USER_EXIT                            =   9, /* "TS User Exit" */
  AAA_DISC_CAUSE_EXT_IDLE_TIMEOUT                            =  10, /* "Idle Timeout" */
  AAA_DISC_CAUSE_EXT_TS_EXIT_TELNET                          =  11, /* "TS Exit Telnet" */
  AAA_DISC_CAUSE_EXT_TS_NO_IP_ADDR                           =  12, /* "TS No IP Addr" */
  AAA_DISC_CAUSE_EXT_TS_TCP_RAW_EXIT                         =  13, /* "TS TCP Raw Exit" */
  AAA_DISC_CAUSE_EXT_TS_BAD_PASSWORD                         =  14, /* "TS Bad Password" */
  AAA_DISC_CAUSE_EXT_TS_NO_TCP_RAW                           =  15, /* "TS No TCP Raw" */
  AAA_DISC_CAUSE_EXT_TS_CNTL_C                               =  16, /* "TS CNTL-C" */
  AAA_DISC_CAUSE_EXT_TS_SESSION_END                          =  17, /* "TS Session End" */
  AAA_DISC_CAUSE_EXT_TS_CLOSE_VCONN                          =  18, /* "TS Close Vconn" */
  AAA_DISC_CAUSE_EXT_TS_END_VCONN                            =  19, /* "TS End Vconn" */
  AAA_DISC_CAUSE_EXT_TS_RLOGIN_EXIT                          =  20, /* "TS Rlogin Exit" */
  AAA_DISC_CAUSE_EXT_TS_RLOGIN_OPT_INVALID                   =  21, /* "TS Rlogin Opt Invalid" */
  AAA_DISC_CAUSE_EXT_TS_INSUFF_RESOURCES                     =  22, /* "TS Insuff Resources" */
  AAA_DISC_CAUSE_EXT_PPP_LCP_TIMEOUT                         =  23, /* "PPP LCP Timeout" */
  AAA_DISC_CAUSE_EXT_PPP_LCP_FAIL                            =  24, /* "PPP LCP Fail" */
  AAA_DISC_CAUSE_EXT_PPP_PAP_FAIL                            =  25, /* "PPP PAP Fail" */
  AAA_DISC_CAUSE_EXT_PPP_CHAP_FAIL                           =  26, /* "PPP CHAP Fail" */
  AAA_DISC_CAUSE_EXT_PPP_REMOTE_FAIL                         =  27, /* "PPP Remote Fail" */
  AAA_DISC_CAUSE_EXT_PPP_RECEIVE_TERM                        =  28, /* "PPP Receive Term" */
  AAA_DISC_CAUSE_EXT_PPP_LCP_CLOSE                           =  29, /* "PPP LCP Close" */
  AAA_DISC_CAUSE_EXT_PPP_NO_NCP                              =  30, /* "PPP No NCP" */
  AAA_DISC_CAUSE_EXT_PPP_MP_ERROR                            =  31, /* "PPP MP Error" */
  AAA_DISC_CAUSE_EXT_PPP_MAX_CHANNELS                        =  32, /* "PPP Max Channels" */
  AAA_DISC_CAUSE_EXT_TS_TABLES_FULL                          =  33, /* "TS Tables Full" */
  AAA_DISC_CAUSE_EXT_TS_RESOURCE_FULL                        =  34, /* "TS Resource Full" */
  AAA_DISC_CAUSE_EXT_TS_INVALID_IP_ADDR                      =  35, /* "TS Invalid IP Addr" */
  AAA_DISC_CAUSE_EXT_TS_BAD_HOSTNAME                         =  36, /* "TS Bad Hostname" */
  AAA_DISC_CAUSE_EXT_TS_BAD_PORT                             =  37, /* "TS Bad Port" */
  AAA_DISC_CAUSE_EXT_TCP_RESET                               =  38, /* "TCP Reset" */
  AAA_DISC_CAUSE_EXT_TCP_CONNECTION_REFUSED                  =  39, /* "TCP Connection Refused" */
  AAA_DISC_CAUSE_EXT_TCP_TIMEOUT                             =  40, /* "TCP Timeout" */
  AAA_DISC_CAUSE_EXT_TCP_FOREIGN_HOST_CLOSE                  =  41, /* "TCP Foreign Host Close" */
  AAA_DISC_CAUSE_EXT_TCP_NET_UNREACHABLE                     =  42, /* "TCP Net Unreachable" */
  AAA_DISC_CAUSE_EXT_TCP_HOST_UNREACHABLE                    =  43, /* "TCP Host Unreachable" */
  AAA_DISC_CAUSE_EXT_TCP_NET_ADMIN_UNREACHABLE               =  44, /* "TCP Net Admin Unreachable" */
  AAA_DISC_CAUSE_EXT_TCP_HOST_ADMIN_UNREACHABLE              =  45, /* "TCP Host Admin Unreachable" */
  AAA_DISC_CAUSE_EXT_TCP_PORT_UNREACHABLE                    =  46, /* "TCP Port Unreachable" */
  AAA_DISC_CAUSE_EXT_SESSION_TIMEOUT                         =  47, /* "Session Timeout" */
  AAA_DISC_CAUSE_EXT_SECURITY_FAIL                           =  48, /* "Security Fail" */
  AAA_DISC_CAUSE_EXT_CALLBACK                                =  49, /* "Callback" */
  AAA_DISC_CAUSE_EXT_UNSUPPORTED                             =  50, /* "Unsupported" */
  AAA_DISC_CAUSE_EXT_RADIUS_DISC                             =  51, /* "Radius Disc" */
  AAA_DISC_CAUSE_EXT_LOCAL_ADMIN_DISC                        =  52, /* "Local Admin Disc" */
  AAA_DISC_CAUSE_EXT_SNMP_DISC                               =  53, /* "SNMP Disc" */
  AAA_DISC_CAUSE_EXT_V110_RETRIES                            =  54, /* "V110 Retries" */
  AAA_DISC_CAUSE_EXT_PPP_AUTH_TIMEOUT                        =  55, /* "PPP Auth Timeout" */
  AAA_DISC_CAUSE_EXT_LOCAL_HANGUP                            =  56, /* "Local Hangup" */
  AAA_DISC_CAUSE_EXT_REMOTE_HANGUP                           =  57, /* "Remote Hangup" */
  AAA_DISC_CAUSE_EXT_T1_QUIESCED                             =  58, /* "T1 Quiesced" */
  AAA_DISC_CAUSE_EXT_CALL_DURATION                           =  59, /* "Call Duration" */
  AAA_DISC_CAUSE_EXT_VPDN_USER_DISCONNECT                    =  60, /* "VPDN User Disconnect" */
  AAA_DISC_CAUSE_EXT_VPDN_CARRIER_LOSS                       =  61, /* "VPDN Carrier Loss" */
  AAA_DISC_CAUSE_EXT_VPDN_NO_RESOURCES                       =  62, /* "VPDN No Resources" */
  AAA_DISC_CAUSE_EXT_VPDN_BAD_CONTROL_PACKET                 =  63, /* "VPDN Bad Control Packet" */
  AAA_DISC_CAUSE_EXT_VPDN_ADMIN_DISCONNECT                   =  64, /* "VPDN Admin Disconnect" */
  AAA_DISC_CAUSE_EXT_VPDN_TUNNEL_DOWN_SETUP_FAIL             =  65, /* "VPDN Tunnel Down/Setup Fail" */
  AAA_DISC_CAUSE_EXT_VPDN_LOCAL_PPP_DISCONNECT               =  66, /* "VPDN Local PPP Disconnect" */
  AAA_DISC_CAUSE_EXT_VPDN_SOFTSHUT_SESSION_LIMIT             =  67, /* "VPDN Softshut/Session Limit" */
  AAA_DISC_CAUSE_EXT_VPDN_CALL_REDIRECTED                    =  68, /* "VPDN Call Redirected" */
  AAA_DISC_CAUSE_EXT_Q850_UNASSIGNED_NUMBER                  =  69, /* "Q850 Unassigned Number" */
  AAA_DISC_CAUSE_EXT_Q850_NO_ROUTE                           =  70, /* "Q850 No Route" */
  AAA_DISC_CAUSE_EXT_Q850_NO_ROUTE_TO_DESTINATION            =  71, /* "Q850 No Route To Destination" */
  AAA_DISC_CAUSE_EXT_Q850_CHANNEL_UNACCEPTABLE               =  72, /* "Q850 Channel Unacceptable" */
  AAA_DISC_CAUSE_EXT_Q850_NORMAL_CLEARING                    =  73, /* "Q850 Normal Clearing" */
  AAA_DISC_CAUSE_EXT_Q850_USER_BUSY                          =  74, /* "Q850 User Busy" */
  AAA_DISC_CAUSE_EXT_Q850_NO_USER_RESPONDING                 =  75, /* "Q850 No User Responding" */
  AAA_DISC_CAUSE_EXT_Q850_NO_USER_ANSWER                     =  76, /* "Q850 No User Answer" */
  AAA_DISC_CAUSE_EXT_Q850_CALL_REJECTED                      =  77, /* "Q850 Call Rejected" */
  AAA_DISC_CAUSE_EXT_Q850_NUMBER_CHANGED                     =  78, /* "Q850 Number Changed" */
  AAA_DISC_CAUSE_EXT_Q850_DESTINATION_OUT_OF_ORDER           =  79, /* "Q850 Destination Out Of Order" */
  AAA_DISC_CAUSE_EXT_Q850_INVALID_NUMBER_FORMAT              =  80, /* "Q850 Invalid Number Format" */
  AAA_DISC_CAUSE_EXT_Q850_FACILITY_REJECTED                  =  81, /* "Q850 Facility Rejected" */
  AAA_DISC_CAUSE_EXT_Q850_RESPONDING_TO_STATUS_ENQUIRY       =  82, /* "Q850 Responding To Status Enquiry" */
  AAA_DISC_CAUSE_EXT_Q850_UNSPECIFIED_CAUSE                  =  83, /* "Q850 Unspecified Cause" */
  AAA_DISC_CAUSE_EXT_Q850_NO_CIRCUIT_AVAILABLE               =  84, /* "Q850 No Circuit Available" */
  AAA_DISC_CAUSE_EXT_Q850_NETWORK_OUT_OF_ORDER               =  85, /* "Q850 Network Out Of Order" */
  AAA_DISC_CAUSE_EXT_Q850_TEMPORARY_FAILURE                  =  86, /* "Q850 Temporary Failure" */
  AAA_DISC_CAUSE_EXT_Q850_NETWORK_CONGESTION                 =  87, /* "Q850 Network Congestion" */
  AAA_DISC_CAUSE_EXT_Q850_ACCESS_INFO_DISCARDED              =  88, /* "Q850 Access Info Discarded" */
  AAA_DISC_CAUSE_EXT_Q850_REQUESTED_CHANNEL_NOT_AVAILABLE    =  89, /* "Q850 Requested Channel Not Available" */
  AAA_DISC_CAUSE_EXT_Q850_CALL_PRE_EMPTED                    =  90, /* "Q850 Call Pre-Empted" */
  AAA_DISC_CAUSE_EXT_Q850_RESOURCE_UNAVAILABLE               =  91, /* "Q850 Resource Unavailable" */
  AAA_DISC_CAUSE_EXT_Q850_FACILITY_NOT_SUBSCRIBED            =  92, /* "Q850 Facility Not Subscribed" */
  AAA_DISC_CAUSE_EXT_Q850_OUTGOING_CALL_BARRED               =  93, /* "Q850 Outgoing Call Barred" */
  AAA_DISC_CAUSE_EXT_Q850_INCOMING_CALL_BARRED               =  94, /* "Q850 Incoming Call Barred" */
  AAA_DISC_CAUSE_EXT_Q850_BEARER_CAPABILITY_NOT_AVAILABLE    =  95, /* "Q850 Bearer Capability Not Available" */
  AAA_DISC_CAUSE_EXT_Q850_SERVICE_NOT_AVAILABLE              =  96, /* "Q850 Service Not Available" */
  AAA_DISC_CAUSE_EXT_Q850_BEARER_CAPABILITY_NOT_IMPLEMENTED  =  97, /* "Q850 Bearer Capability Not Implemented" */
  AAA_DISC_CAUSE_EXT_Q850_CHANNEL_NOT_IMPLEMENTED            =  98, /* "Q850 Channel Not Implemented" */
  AAA_DISC_CAUSE_EXT_Q850_FACILITY_NOT_IMPLEMENTED           =  99, /* "Q850 Facility Not Implemented" */
  AAA_DISC_CAUSE_EXT_Q850_INVALID_CALL_REFERENCE             = 100, /* "Q850 Invalid Call Reference" */
  AAA_DISC_CAUSE_EXT_Q850_CHANNEL_DOES_NOT_EXIST             = 101, /* "Q850 Channel Does Not Exist" */
  AAA_DISC_CAUSE_EXT_Q850_INCOMPATIBLE_DESTINATION           = 102, /* "Q850 Incompatible Destination" */
  AAA_DISC_CAUSE_EXT_Q850_MANDATORY_INFO_ELEMENT_IS_MISSING  = 103, /* "Q850 Mandatory Info Element Is Missing" */
  AAA_DISC_CAUSE_EXT_Q850_NON_EXISTENT_MESSAGE_TYPE          = 104, /* "Q850 Non Existent Message Type" */
  AAA_DISC_CAUSE_EXT_Q850_INVALID_MESSAGE                    = 105, /* "Q850 Invalid Message" */
  AAA_DISC_CAUSE_EXT_Q850_BAD_INFO_ELEMENT                   = 106, /* "Q850 Bad Info Element" */
  AAA_DISC_CAUSE_EXT_Q850_INVALID_ELEMENT_CONTENTS           = 107, /* "Q850 Invalid Element Contents" */
  AAA_DISC_CAUSE_EXT_Q850_WRONG_MESSAGE_FOR_STATE            = 108, /* "Q850 Wrong Message For State" */
  AAA_DISC_CAUSE_EXT_Q850_RECOVERY_ON_TIMER_EXPIRATION       = 109, /* "Q850 Recovery On Timer Expiration" */
  AAA_DISC_CAUSE_EXT_Q850_INFO_ELEMENT_ERROR                 = 110, /* "Q850 Info Element Error" */
  AAA_DISC_CAUSE_EXT_Q850_PROTOCOL_ERROR                     = 111, /* "Q850 Protocol Error" */
  AAA_DISC_CAUSE_EXT_Q850_UNSPECIFIED_INTERNETWORKING_EVENT  = 112, /* "Q850 Unspecified Internetworking Event" */
  AAA_DISC_CAUSE_EXT_USER_REQUEST                            = 113, /* "User Request" */
  AAA_DISC_CAUSE_EXT_HOST_REQUEST                            = 114, /* "Host Request" */
} aaa_disc_cause_ext;

/* 3 "Acct-Status-Type" */
typedef enum aaa_acct_status_type AAA_ATTR_UINT32 {
  AAA_ACCT_STATUS_TYPE_START                                 =   1, /* "Start" */
  AAA_ACCT_STATUS_TYPE_STOP                                  =   2, /* "Stop" */
  AAA_ACCT_STATUS_TYPE_WATCHDOG                              =   3, /* "Watchdog" */
  AAA_ACCT_STATUS_TYPE_ACCOUNTING_ON                         =   7, /* "Accounting-On" */
  AAA_ACCT_STATUS_TYPE_ACCOUNTING_OFF                        =   8, /* "Accounting-Off" */
  AAA_ACCT_STATUS_TYPE_TUNNEL_START                          =   9, /* "Tunnel-Start" */
  AAA_ACCT_STATUS_TYPE_TUNNEL_STOP                           =  10, /* "Tunnel-Stop" */
  AAA_ACCT_STATUS_TYPE_TUNNEL_REJECT                         =  11, /* "Tunnel-Reject" */
  AAA_ACCT_STATUS_TYPE_TUNNEL_LINK_START                     =  12, /* "Tunnel-Link-Start" */
  AAA_ACCT_STATUS_TYPE_TUNNEL_LINK_STOP                      =  13, /* "Tunnel-Link-Stop" */
  AAA_ACCT_STATUS_TYPE_TUNNEL_LINK_REJECT                    =  14, /* "Tunnel-Link-Reject" */
} aaa_acct_status_type;

/* 5 "auth-services" */
typedef enum aaa_auth_services AAA_ATTR_UINT32 {
  AAA_AUTH_SERVICES_FRAMED                                   =   1, /* "framed" */
  AAA_AUTH_SERVICES_VOICE                                    =   2, /* "voice" */
  AAA_AUTH_SERVICES_FAX                                      =   3, /* "fax" */
  AAA_AUTH_SERVICES_PASSTRHU                                 =   4, /* "passtrhu" */
} aaa_auth_services;

/* 17 "Authentic" */
typedef enum aaa_authentic AAA_ATTR_UINT32 {
  AAA_AUTHENTIC_RADIUS                                       =   1, /* "RADIUS" */
  AAA_AUTHENTIC_LOCAL                                        =   2, /* "Local" */
  AAA_AUTHENTIC_REMOTE                                       =   3, /* "Remote" */
  AAA_AUTHENTIC_DIAMETER                                     =   4, /* "Diameter" */
} aaa_authentic;

/* 20 "authen-status" */
typedef enum aaa_authen_status AAA_ATTR_UINT32 {
  AAA_AUTHEN_STATUS_AUTHEN                                   =   1, /* "authen" */
  AAA_AUTHEN_STATUS_UNAUTHEN                                 =   2, /* "unauthen" */
} aaa_authen_status;

/* 21 "authen-type" */
typedef enum aaa_authen_type AAA_ATTR_UINT32 {
  AAA_AUTHEN_TYPE_ASCII                                      =   0, /* "ascii" */
  AAA_AUTHEN_TYPE_PAP                                        =   1, /* "pap" */
  AAA_AUTHEN_TYPE_CHAP                                       =   2, /* "chap" */
  AAA_AUTHEN_TYPE_EAP                                        =   3, /* "eap" */
  AAA_AUTHEN_TYPE_MSCHAP                                     =   4, /* "mschap" */
  AAA_AUTHEN_TYPE_MSCHAP_V2                                  =   5, /* "mschap_v2" */
} aaa_authen_type;

/* 22 "author-type" */
typedef enum aaa_author_type AAA_ATTR_UINT32 {
  AAA_AUTHOR_TYPE_SHELL                                      =   0, /* "shell" */
  AAA_AUTHOR_TYPE_NET                                        =   1, /* "net" */
  AAA_AUTHOR_TYPE_CONN                                       =   2, /* "conn" */
  AAA_AUTHOR_TYPE_CFG                                        =   3, /* "cfg" */
  AAA_AUTHOR_TYPE_SYSTEM                                     =   4, /* "system" */
  AAA_AUTHOR_TYPE_CLID                                       =   5, /* "clid" */
  AAA_AUTHOR_TYPE_IPMOBILE                                   =   6, /* "ipmobile" */
  AAA_AUTHOR_TYPE_CMD                                        =   7, /* "cmd" */
  AAA_AUTHOR_TYPE_PREAUTH                                    =   8, /* "preauth" */
  AAA_AUTHOR_TYPE_AUTH_PROXY                                 =   9, /* "auth_proxy" */
  AAA_AUTHOR_TYPE_RM                                         =  10, /* "rm" */
  AAA_AUTHOR_TYPE_DIALER                                     =  11, /* "dialer" */
  AAA_AUTHOR_TYPE_FLTSV                                      =  12, /* "fltsv" */
  AAA_AUTHOR_TYPE_SUBSCRIBER_SERVICE                         =  13, /* "subscriber_service" */
  AAA_AUTHOR_TYPE_POLICY_IF                                  =  14, /* "policy_if" */
  AAA_AUTHOR_TYPE_PREPAID                                    =  15, /* "prepaid" */
} aaa_author_type;

/* 23 "authen-method" */
typedef enum aaa_authen_method AAA_ATTR_UINT32 {
  AAA_AUTHEN_METHOD_PAP                                      =   1, /* "pap" */
  AAA_AUTHEN_METHOD_CHAP                                     =   2, /* "chap" */
  AAA_AUTHEN_METHOD_OTP                                      =   3, /* "otp" */
  AAA_AUTHEN_METHOD_EAP                                      =   4, /* "eap" */
  AAA_AUTHEN_METHOD_EAP_MD5                                  =   5, /* "eap-md5" */
  AAA_AUTHEN_METHOD_EAP_SIM                                  =   6, /* "eap-sim" */
} aaa_authen_method;

/* 24 "authen-strength" */
typedef enum aaa_authen_strength AAA_ATTR_UINT32 {
  AAA_AUTHEN_STRENGTH_40BIT                                  =   1, /* "40bit" */
  AAA_AUTHEN_STRENGTH_128BIT                                 =   2, /* "128bit" */
} aaa_authen_strength;

/* 39 "accounting-type" */
typedef enum aaa_accounting_type AAA_ATTR_UINT32 {
  AAA_ACCOUNTING_TYPE_SUBSCRIBER                             =   1, /* "subscriber" */
  AAA_ACCOUNTING_TYPE_SERVICE                                =   2, /* "service" */
  AAA_ACCOUNTING_TYPE_FEATURE                                =   3, /* "feature" */
  AAA_ACCOUNTING_TYPE_MOBILE                                 =   4, /* "mobile" */
} aaa_accounting_type;

/* 57 "connect-progress" */
typedef enum aaa_connect_progress AAA_ATTR_UINT32 {
  AAA_CONNECT_PROGRESS_NO_PROGRESS                           =   0, /* "No Progress" */
  AAA_CONNECT_PROGRESS_N_A                                   =   1, /* "N/A" */
  AAA_CONNECT_PROGRESS_UNKNOWN                               =   2, /* "Unknown" */
  AAA_CONNECT_PROGRESS_CALL_UP                               =  10, /* "Call Up" */
  AAA_CONNECT_PROGRESS_MODEM_UP                              =  30, /* "Modem Up" */
  AAA_CONNECT_PROGRESS_MODEM_WAIT_DCD                        =  31, /* "Modem Wait DCD" */
  AAA_CONNECT_PROGRESS_MODEM_WAIT_CODES                      =  32, /* "Modem Wait Codes" */
  AAA_CONNECT_PROGRESS_MODEM_WAIT_REMOTE                     =  33, /* "Modem Wait Remote" */
  AAA_CONNECT_PROGRESS_TERM_SERV_START                       =  40, /* "Term Serv Start" */
  AAA_CONNECT_PROGRESS_ESTABLISHING_TCP_CONN                 =  41, /* "Establishing TCP Conn" */
  AAA_CONNECT_PROGRESS_ESTABLISHING_TELNET_CONN              =  42, /* "Establishing Telnet Conn" */
  AAA_CONNECT_PROGRESS_ESTABLISHED_RAW_TCP                   =  43, /* "Established Raw TCP" */
  AAA_CONNECT_PROGRESS_ESTAB_D_TELNET_CONN                   =  44, /* "Estab'd Telnet Conn" */
  AAA_CONNECT_PROGRESS_ESTABLISHING_RLOGIN_SESS              =  45, /* "Establishing Rlogin Sess" */
  AAA_CONNECT_PROGRESS_ESTAB_D_RLOGIN_SESS                   =  46, /* "Estab'd Rlogin Sess" */
  AAA_CONNECT_PROGRESS_TERM_SERV_AUTH                        =  47, /* "Term Serv Auth" */
  AAA_CONNECT_PROGRESS_LAN_SES_UP                            =  60, /* "LAN Ses Up" */
  AAA_CONNECT_PROGRESS_LCP_OPENING                           =  61, /* "LCP Opening" */
  AAA_CONNECT_PROGRESS_CCP_OPENING                           =  62, /* "CCP Opening" */
  AAA_CONNECT_PROGRESS_IPCP_OPENING                          =  63, /* "IPCP Opening" */
  AAA_CONNECT_PROGRESS_LCP_OPEN                              =  65, /* "LCP Open" */
  AAA_CONNECT_PROGRESS_CCP_OPEN                              =  66, /* "CCP Open" */
  AAA_CONNECT_PROGRESS_IPCP_OPEN                             =  67, /* "IPCP Open" */
  AAA_CONNECT_PROGRESS_BCP_OPEN                              =  68, /* "BCP Open" */
  AAA_CONNECT_PROGRESS_LCP_INIT                              =  69, /* "LCP Init" */
  AAA_CONNECT_PROGRESS_LCP_START                             =  70, /* "LCP Start" */
  AAA_CONNECT_PROGRESS_LCP_CLOSE                             =  71, /* "LCP Close" */
  AAA_CONNECT_PROGRESS_LCP_STOPPED                           =  72, /* "LCP Stopped" */
  AAA_CONNECT_PROGRESS_LCP_CLOSING                           =  73, /* "LCP Closing" */
  AAA_CONNECT_PROGRESS_LCP_STOPPING                          =  74, /* "LCP Stopping" */
  AAA_CONNECT_PROGRESS_LCP_REQ_SENT                          =  75, /* "LCP Req Sent" */
  AAA_CONNECT_PROGRESS_LCP_ACK_RCVD                          =  76, /* "LCP Ack Rcvd" */
  AAA_CONNECT_PROGRESS_LCP_ACK_SENT                          =  77, /* "LCP Ack Sent" */
  AAA_CONNECT_PROGRESS_IPXNCP_OPEN                           =  80, /* "IPXNCP Open" */
  AAA_CONNECT_PROGRESS_IPX_NCP_OPEN                          =  81, /* "IPX NCP Open" */
  AAA_CONNECT_PROGRESS_BACP_OPENING                          =  82, /* "BACP Opening" */
  AAA_CONNECT_PROGRESS_BACP_OPEN                             =  83, /* "BACP Open" */
  AAA_CONNECT_PROGRESS_CBCP_OPENING                          =  84, /* "CBCP Opening" */
  AAA_CONNECT_PROGRESS_CBCP_OPEN                             =  85, /* "CBCP Open" */
  AAA_CONNECT_PROGRESS_V110_ACC                              =  90, /* "V110 Acc" */
  AAA_CONNECT_PROGRESS_V110_OPEN                             =  91, /* "V110 Open" */
  AAA_CONNECT_PROGRESS_V110_CARRIER                          =  92, /* "V110 Carrier" */
  AAA_CONNECT_PROGRESS_V110_RESET                            =  93, /* "V110 Reset" */
  AAA_CONNECT_PROGRESS_V110_CLOSED                           =  94, /* "V110 Closed" */
  AAA_CONNECT_PROGRESS_CALLBACK_REQD                         = 100, /* "Callback Reqd" */
  AAA_CONNECT_PROGRESS_AUTH_FAILED                           = 101, /* "Auth Failed" */
  AAA_CONNECT_PROGRESS_AUTH_TIMEOUT                          = 102, /* "Auth Timeout" */
  AAA_CONNECT_PROGRESS_DLCI_INACTIVE_NEGOT                   = 120, /* "DLCI Inactive; Negot" */
  AAA_CONNECT_PROGRESS_DLCI_END_TO_END                       = 121, /* "DLCI End-To-End" */
  AAA_CONNECT_PROGRESS_AUTH_STARTING                         = 200, /* "Auth Starting" */
  AAA_CONNECT_PROGRESS_AUTH_OPENING                          = 201, /* "Auth Opening" */
  AAA_CONNECT_PROGRESS_AUTH_SKIP                             = 202, /* "Auth Skip" */
  AAA_CONNECT_PROGRESS_AUTH_OPEN                             = 203, /* "Auth Open" */
  AAA_CONNECT_PROGRESS_TUNNELLING_NEEDED                     = 240, /* "Tunnelling needed" */
  AAA_CONNECT_PROGRESS_TUNNEL_OPENING_SOCKET                 = 241, /* "Tunnel opening socket" */
  AAA_CONNECT_PROGRESS_TUNNEL_START_REQUEST_SENT             = 242, /* "Tunnel start request sent" */
  AAA_CONNECT_PROGRESS_TUNNEL_START_RESPONSE_RECVD           = 243, /* "Tunnel start response recvd" */
  AAA_CONNECT_PROGRESS_TUNNEL_START_CONFIRM_SENT             = 244, /* "Tunnel start confirm sent" */
  AAA_CONNECT_PROGRESS_IPV6CP_OPEN                           = 248, /* "IPV6CP_OPEN" */
  AAA_CONNECT_PROGRESS_DUAL_STACK_OPEN                       = 249, /* "DUAL_STACK_OPEN" */
  AAA_CONNECT_PROGRESS_SESSION_START_REQUEST_SENT            = 250, /* "Session start request sent" */
  AAA_CONNECT_PROGRESS_SESSION_START_RESPONSE_RECVD          = 251, /* "Session start response recvd" */
  AAA_CONNECT_PROGRESS_SESSION_START_CONFIRM_SENT            = 252, /* "Session start confirm sent" */
  AAA_CONNECT_PROGRESS_SESSION_LCP_OPEN_FORWARDED            = 253, /* "Session lcp open forwarded" */
} aaa_connect_progress;

/* 71 "Framed-Protocol" */
typedef enum aaa_framed_protocol AAA_ATTR_UINT32 {
  AAA_FRAMED_PROTOCOL_PPP                                    =   1, /* "PPP" */
  AAA_FRAMED_PROTOCOL_SLIP                                   =   2, /* "SLIP" */
  AAA_FRAMED_PROTOCOL_ARAP                                   =   3, /* "ARAP" */
  AAA_FRAMED_PROTOCOL_GANDALF                                =   4, /* "GANDALF" */
  AAA_FRAMED_PROTOCOL_XYLOGICS                               =   5, /* "XYLOGICS" */
  AAA_FRAMED_PROTOCOL_X75                                    =   6, /* "X75" */
  AAA_FRAMED_PROTOCOL_GPRS_PDP_CONTEXT                       =   7, /* "GPRS_PDP_CONTEXT" */
} aaa_framed_protocol;

/* 95 "parent-interface-type" */
typedef enum aaa_parent_interface_type AAA_ATTR_UINT32 {
  AAA_PARENT_INTERFACE_TYPE_ASYNC                            =   0, /* "Async" */
  AAA_PARENT_INTERFACE_TYPE_SERIAL                           =   1, /* "Serial" */
  AAA_PARENT_INTERFACE_TYPE_PRI                              =   2, /* "PRI" */
  AAA_PARENT_INTERFACE_TYPE_ASYNC_ISDN_V120                  =   3, /* "Async ISDN V120" */
  AAA_PARENT_INTERFACE_TYPE_ASYNC_ISDN_V110                  =   4, /* "Async ISDN V110" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_TERMINAL                 =   5, /* "Virtual Terminal" */
  AAA_PARENT_INTERFACE_TYPE_ASYNC_ISDN_PIAFS                 =   6, /* "Async ISDN PIAFS" */
  AAA_PARENT_INTERFACE_TYPE_HDLC_CLEAR_CHANNEL               =   7, /* "HDLC Clear Channel" */
  AAA_PARENT_INTERFACE_TYPE_X_25                             =   8, /* "X.25" */
  AAA_PARENT_INTERFACE_TYPE_X_75                             =   9, /* "X.75" */
  AAA_PARENT_INTERFACE_TYPE_G_3_FAX                          =  10, /* "G.3 Fax" */
  AAA_PARENT_INTERFACE_TYPE_SDSL_SYMMETRIC_DSL               =  11, /* "SDSL - Symmetric DSL" */
  AAA_PARENT_INTERFACE_TYPE_ADSL_CAP_ASYMMETRIC_DSL          =  12, /* "ADSL-CAP - Asymmetric DSL" */
  AAA_PARENT_INTERFACE_TYPE_ADSL_DMT                         =  13, /* "ADSL_DMT" */
  AAA_PARENT_INTERFACE_TYPE_IDSL_ISDN_DIGITAL_SUBSCRIBER_LINE =  14, /* "IDSL - ISDN Digital Subscriber Line" */
  AAA_PARENT_INTERFACE_TYPE_ETHERNET                         =  15, /* "Ethernet" */
  AAA_PARENT_INTERFACE_TYPE_DIGITAL_SUBSCRIBER_LINE          =  16, /* "Digital Subscriber Line" */
  AAA_PARENT_INTERFACE_TYPE_CABLE                            =  17, /* "Cable" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_OTHER                   =  18, /* "Wireless - Other" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_IEEE_802_11             =  19, /* "Wireless - IEEE 802.11" */
  AAA_PARENT_INTERFACE_TYPE_TOKEN_RING                       =  20, /* "Token-Ring" */
  AAA_PARENT_INTERFACE_TYPE_FDDI                             =  21, /* "FDDI" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_CDMA2000                =  22, /* "Wireless - CDMA2000" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_UMTS                    =  23, /* "Wireless - UMTS" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_1X_EV                   =  24, /* "Wireless - 1X-EV" */
  AAA_PARENT_INTERFACE_TYPE_IAPP                             =  25, /* "IAPP" */
  AAA_PARENT_INTERFACE_TYPE_FTTP                             =  26, /* "FTTP" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_IEEE_802_16             =  27, /* "Wireless - IEEE 802.16" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_IEEE_802_20             =  28, /* "Wireless - IEEE 802.20" */
  AAA_PARENT_INTERFACE_TYPE_WIRELESS_IEEE_802_22             =  29, /* "Wireless - IEEE 802.22" */
  AAA_PARENT_INTERFACE_TYPE_PPP_OVER_ATM                     =  30, /* "PPP over ATM" */
  AAA_PARENT_INTERFACE_TYPE_PPPOE_OVER_ATM                   =  31, /* "PPPoE over ATM" */
  AAA_PARENT_INTERFACE_TYPE_PPPOE_OVER_ETHERNET              =  32, /* "PPPoE over Ethernet" */
  AAA_PARENT_INTERFACE_TYPE_PPPOE_OVER_VLAN                  =  33, /* "PPPoE over VLAN" */
  AAA_PARENT_INTERFACE_TYPE_PPPOE_OVER_QINQ                  =  34, /* "PPPoE over QinQ" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_PPPOE_OVER_ETHERNET      =  35, /* "Virtual PPPoE over Ethernet" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_PPPOE_OVER_VLAN          =  36, /* "Virtual PPPoE over VLAN" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_PPPOE_OVER_QINQ          =  37, /* "Virtual PPPoE over QinQ " */
  AAA_PARENT_INTERFACE_TYPE_IPSEC                            =  38, /* "IPSEC" */
  AAA_PARENT_INTERFACE_TYPE_IP_OVER_ETHERNET                 =  39, /* "IP over Ethernet" */
  AAA_PARENT_INTERFACE_TYPE_IP_OVER_VLAN                     =  40, /* "IP over VLAN" */
  AAA_PARENT_INTERFACE_TYPE_IP_OVER_QINQ                     =  41, /* "IP over QinQ" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_IP_OVER_ETHERNET         =  42, /* "Virtual IP over Ethernet" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_IP_OVER_VLAN             =  43, /* "Virtual IP over VLAN" */
  AAA_PARENT_INTERFACE_TYPE_VIRTUAL_IP_OVER_QINQ             =  44, /* "Virtual IP over QinQ" */
  AAA_PARENT_INTERFACE_TYPE_BRI                              =  45, /* "BRI" */
  AAA_PARENT_INTERFACE_TYPE_NONE                             =  46, /* "None" */
} aaa_parent_interface_type;

/* 96 "port-type" */
typedef enum aaa_port_type AAA_ATTR_UINT32 {
  AAA_PORT_TYPE_ASYNC                                        =   0, /* "Async" */
  AAA_PORT_TYPE_SERIAL                                       =   1, /* "Serial" */
  AAA_PORT_TYPE_PRI                                          =   2, /* "PRI" */
  AAA_PORT_TYPE_ASYNC_ISDN_V120                              =   3, /* "Async ISDN V120" */
  AAA_PORT_TYPE_ASYNC_ISDN_V110                              =   4, /* "Async ISDN V110" */
  AAA_PORT_TYPE_VIRTUAL_TERMINAL                             =   5, /* "Virtual Terminal" */
  AAA_PORT_TYPE_ASYNC_ISDN_PIAFS                             =   6, /* "Async ISDN PIAFS" */
  AAA_PORT_TYPE_HDLC_CLEAR_CHANNEL                           =   7, /* "HDLC Clear Channel" */
  AAA_PORT_TYPE_X_25                                         =   8, /* "X.25" */
  AAA_PORT_TYPE_X_75                                         =   9, /* "X.75" */
  AAA_PORT_TYPE_G_3_FAX                                      =  10, /* "G.3 Fax" */
  AAA_PORT_TYPE_SDSL_SYMMETRIC_DSL                           =  11, /* "SDSL - Symmetric DSL" */
  AAA_PORT_TYPE_ADSL_CAP_ASYMMETRIC_DSL                      =  12, /* "ADSL-CAP - Asymmetric DSL" */
  AAA_PORT_TYPE_ADSL_DMT                                     =  13, /* "ADSL_DMT" */
  AAA_PORT_TYPE_IDSL_ISDN_DIGITAL_SUBSCRIBER_LINE            =  14, /* "IDSL - ISDN Digital Subscriber Line" */
  AAA_PORT_TYPE_ETHERNET                                     =  15, /* "Ethernet" */
  AAA_PORT_TYPE_DIGITAL_SUBSCRIBER_LINE                      =  16, /* "Digital Subscriber Line" */
  AAA_PORT_TYPE_CABLE                                        =  17, /* "Cable" */
  AAA_PORT_TYPE_WIRELESS_OTHER                               =  18, /* "Wireless - Other" */
  AAA_PORT_TYPE_WIRELESS_IEEE_802_11                         =  19, /* "Wireless - IEEE 802.11" */
  AAA_PORT_TYPE_TOKEN_RING                                   =  20, /* "Token-Ring" */
  AAA_PORT_TYPE_FDDI                                         =  21, /* "FDDI" */
  AAA_PORT_TYPE_WIRELESS_CDMA2000                            =  22, /* "Wireless - CDMA2000" */
  AAA_PORT_TYPE_WIRELESS_UMTS                                =  23, /* "Wireless - UMTS" */
  AAA_PORT_TYPE_WIRELESS_1X_EV                               =  24, /* "Wireless - 1X-EV" */
  AAA_PORT_TYPE_IAPP                                         =  25, /* "IAPP" */
  AAA_PORT_TYPE_FTTP                                         =  26, /* "FTTP" */
  AAA_PORT_TYPE_WIRELESS_IEEE_802_16                         =  27, /* "Wireless - IEEE 802.16" */
  AAA_PORT_TYPE_WIRELESS_IEEE_802_20                         =  28, /* "Wireless - IEEE 802.20" */
  AAA_PORT_TYPE_WIRELESS_IEEE_802_22                         =  29, /* "Wireless - IEEE 802.22" */
  AAA_PORT_TYPE_PPP_OVER_ATM                                 =  30, /* "PPP over ATM" */
  AAA_PORT_TYPE_PPPOE_OVER_ATM                               =  31, /* "PPPoE over ATM" */
  AAA_PORT_TYPE_PPPOE_OVER_ETHERNET                          =  32, /* "PPPoE over Ethernet" */
  AAA_PORT_TYPE_PPPOE_OVER_VLAN                              =  33, /* "PPPoE over VLAN" */
  AAA_PORT_TYPE_PPPOE_OVER_QINQ                              =  34, /* "PPPoE over QinQ" */
  AAA_PORT_TYPE_VIRTUAL_PPPOE_OVER_ETHERNET                  =  35, /* "Virtual PPPoE over Ethernet" */
  AAA_PORT_TYPE_VIRTUAL_PPPOE_OVER_VLAN                      =  36, /* "Virtual PPPoE over VLAN" */
  AAA_PORT_TYPE_VIRTUAL_PPPOE_OVER_QINQ                      =  37, /* "Virtual PPPoE over QinQ " */
  AAA_PORT_TYPE_IPSEC                                        =  38, /* "IPSEC" */
  AAA_PORT_TYPE_IP_OVER_ETHERNET                             =  39, /* "IP over Ethernet" */
  AAA_PORT_TYPE_IP_OVER_VLAN                                 =  40, /* "IP over VLAN" */
  AAA_PORT_TYPE_IP_OVER_QINQ                                 =  41, /* "IP over QinQ" */
  AAA_PORT_TYPE_VIRTUAL_IP_OVER_ETHERNET                     =  42, /* "Virtual IP over Ethernet" */
  AAA_PORT_TYPE_VIRTUAL_IP_OVER_VLAN                         =  43, /* "Virtual IP over VLAN" */
  AAA_PORT_TYPE_VIRTUAL_IP_OVER_QINQ                         =  44, /* "Virtual IP over QinQ" */
  AAA_PORT_TYPE_BRI                                          =  45, /* "BRI" */
  AAA_PORT_TYPE_NONE                                         =  46, /* "None" */
} aaa_port_type;

/* 109 "error-cause" */
typedef enum aaa_error_cause AAA_ATTR_UINT32 {
  AAA_ERROR_CAUSE_NO_ERROR                                   =   0, /* "No Error" */
  AAA_ERROR_CAUSE_SUCCESS                                    =   1, /* "Success" */
  AAA_ERROR_CAUSE_RESIDUAL_SESSION_CONTEXT_REMOVED           =   2, /* "Residual Session Context Removed" */
  AAA_ERROR_CAUSE_INVALID_EAP_PACKET                         =   3, /* "Invalid EAP Packet" */
  AAA_ERROR_CAUSE_UNSUPPORTED_ATTRIBUTE                      =   4, /* "Unsupported Attribute" */
  AAA_ERROR_CAUSE_MISSING_ATTRIBUTE                          =   5, /* "Missing Attribute" */
  AAA_ERROR_CAUSE_NAS_IDENTIFICATION_MISMATCH                =   6, /* "NAS Identification Mismatch" */
  AAA_ERROR_CAUSE_INVALID_REQUEST                            =   7, /* "Invalid Request" */
  AAA_ERROR_CAUSE_UNSUPPORTED_SERVICE                        =   8, /* "Unsupported Service" */
  AAA_ERROR_CAUSE_UNSUPPORTED_EXTENSION                      =   9, /* "Unsupported Extension" */
  AAA_ERROR_CAUSE_INVALID_ATTRIBUTE_VALUE                    =  10, /* "Invalid Attribute Value" */
  AAA_ERROR_CAUSE_ADMINISTRATIVELY_PROHIBITED                =  11, /* "Administratively Prohibited" */
  AAA_ERROR_CAUSE_REQUEST_NOT_ROUTABLE                       =  12, /* "Request Not Routable" */
  AAA_ERROR_CAUSE_SESSION_CONTEXT_NOT_FOUND                  =  13, /* "Session Context Not Found" */
  AAA_ERROR_CAUSE_SESSION_CONTEXT_NOT_REMOVABLE              =  14, /* "Session Context Not Removable" */
  AAA_ERROR_CAUSE_OTHER_PROXY_PROCESSING_ERROR               =  15, /* "Other Proxy Processing Error" */
  AAA_ERROR_CAUSE_RESOURCE_UNAVAILABLE                       =  16, /* "Resource Unavailable" */
  AAA_ERROR_CAUSE_REQUEST_INITIATED                          =  17, /* "Request Initiated" */
  AAA_ERROR_CAUSE_MULTIPLE_SESSION_SELECTION_UNSUPPORTED     =  18, /* "Multiple Session Selection Unsupported" */
  AAA_ERROR_CAUSE_INTERNAL_ERROR                             =  19, /* "Internal Error" */
  AAA_ERROR_CAUSE_CONNECTION_NOT_FOUND                       =  20, /* "Connection Not Found" */
  AAA_ERROR_CAUSE_SESSION_CONTEXT_ALREADY_EXISTS             =  21, /* "Session Context Already Exists" */
  AAA_ERROR_CAUSE_INVALID_ARGUMENT                           =  22, /* "Invalid Argument" */
  AAA_ERROR_CAUSE_FAILED_TO_CREATE_SUBSCRIBER_ID             =  23, /* "Failed to Create Subscriber Id" */
  AAA_ERROR_CAUSE_PEER_CONNECTION_NOT_ACTIVE                 =  24, /* "Peer Connection Not Active" */
  AAA_ERROR_CAUSE_INSUFFICIENT_IDENTITIES                    =  25, /* "Insufficient Identities" */
  AAA_ERROR_CAUSE_DROP_REQUESTED_FROM_CLIENT_DO_NOT_SEND_THIS_ERROR_OUT =  26, /* "drop requested from client, do not send this error out" */
  AAA_ERROR_CAUSE_SUBSCRIBER_DB_RECON_TRY_AGAIN_LATER        =  27, /* "subscriber db recon, try again later" */
} aaa_error_cause;

/* 163 "protocol" */
typedef enum aaa_protocol AAA_ATTR_UINT32 {
  AAA_PROTOCOL_NONE                                          =   0, /* "none" */
  AAA_PROTOCOL_INVALID                                       =   1, /* "invalid" */
  AAA_PROTOCOL_LCP                                           =   2, /* "lcp" */
  AAA_PROTOCOL_IP                                            =   3, /* "ip" */
  AAA_PROTOCOL_IPV4                                          =   4, /* "ipv4" */
  AAA_PROTOCOL_IPSEC                                         =   5, /* "ipsec" */
  AAA_PROTOCOL_IPX                                           =   6, /* "ipx" */
  AAA_PROTOCOL_ATALK                                         =   7, /* "atalk" */
  AAA_PROTOCOL_XREMOTE                                       =   8, /* "xremote" */
  AAA_PROTOCOL_TN3270                                        =   9, /* "tn3270" */
  AAA_PROTOCOL_TELNET                                        =  10, /* "telnet" */
  AAA_PROTOCOL_TCP_CLEAR                                     =  11, /* "tcp-clear" */
  AAA_PROTOCOL_RLOGIN                                        =  12, /* "rlogin" */
  AAA_PROTOCOL_LAT                                           =  13, /* "lat" */
  AAA_PROTOCOL_PAD                                           =  14, /* "pad" */
  AAA_PROTOCOL_OSICP                                         =  15, /* "osicp" */
  AAA_PROTOCOL_TAGCP                                         =  16, /* "tagcp" */
  AAA_PROTOCOL_BACP                                          =  17, /* "bacp" */
  AAA_PROTOCOL_DECCP                                         =  18, /* "deccp" */
  AAA_PROTOCOL_CCP                                           =  19, /* "ccp" */
  AAA_PROTOCOL_CDP                                           =  20, /* "cdp" */
  AAA_PROTOCOL_BRIDGING                                      =  21, /* "bridging" */
  AAA_PROTOCOL_NBF                                           =  22, /* "nbf" */
  AAA_PROTOCOL_BAP                                           =  23, /* "bap" */
  AAA_PROTOCOL_MULTILINK                                     =  24, /* "multilink" */
  AAA_PROTOCOL_H323                                          =  25, /* "h323" */
  AAA_PROTOCOL_UNKNOWN                                       =  26, /* "unknown" */
  AAA_PROTOCOL_CALL_ACCEPT                                   =  27, /* "call-accept" */
  AAA_PROTOCOL_VPDN_SESSION                                  =  28, /* "vpdn-session" */
  AAA_PROTOCOL_CALL_STATUS                                   =  29, /* "call-status" */
  AAA_PROTOCOL_NAS_STATUS                                    =  30, /* "nas-status" */
  AAA_PROTOCOL_DIAL_IN                                       =  31, /* "dial-in" */
  AAA_PROTOCOL_DIAL_OUT                                      =  32, /* "dial-out" */
  AAA_PROTOCOL_SS7                                           =  33, /* "ss7" */
  AAA_PROTOCOL_RMS_STOP                                      =  34, /* "rms-stop" */
  AAA_PROTOCOL_RMS_START                                     =  35, /* "rms-start" */
  AAA_PROTOCOL_VPDN                                          =  36, /* "vpdn" */
  AAA_PROTOCOL_SSS                                           =  37, /* "sss" */
  AAA_PROTOCOL_SUBSCRIBER                                    =  38, /* "subscriber" */
  AAA_PROTOCOL_ATM                                           =  39, /* "atm" */
  AAA_PROTOCOL_SSH                                           =  40, /* "ssh" */
  AAA_PROTOCOL_IPV6                                          =  41, /* "ipv6" */
  AAA_PROTOCOL_PPPOE                                         =  42, /* "pppoe" */
  AAA_PROTOCOL_CDMA                                          =  43, /* "cdma" */
  AAA_PROTOCOL_CRB                                           =  44, /* "crb" */
  AAA_PROTOCOL_TEMPLATE                                      =  45, /* "template" */
  AAA_PROTOCOL_AAA                                           =  46, /* "aaa" */
  AAA_PROTOCOL_EPD                                           =  47, /* "epd" */
  AAA_PROTOCOL_MAC                                           =  48, /* "mac" */
} aaa_protocol;

/* 167 "service-type" */
typedef enum aaa_service_type AAA_ATTR_UINT32 {
  AAA_SERVICE_TYPE_ERROR                                     =   0, /* "error" */
  AAA_SERVICE_TYPE_LOGIN                                     =   1, /* "Login" */
  AAA_SERVICE_TYPE_FRAMED                                    =   2, /* "Framed" */
  AAA_SERVICE_TYPE_CALLBACK_LOGIN                            =   3, /* "Callback Login" */
  AAA_SERVICE_TYPE_CALLBACK_FRAMED                           =   4, /* "Callback Framed" */
  AAA_SERVICE_TYPE_OUTBOUND                                  =   5, /* "Outbound" */
  AAA_SERVICE_TYPE_ADMINISTRATIVE                            =   6, /* "Administrative" */
  AAA_SERVICE_TYPE_NAS_PROMPT                                =   7, /* "NAS Prompt" */
  AAA_SERVICE_TYPE_AUTHEN_ONLY                               =   8, /* "Authen Only" */
  AAA_SERVICE_TYPE_CALLBACK_NAS_PROMPT                       =   9, /* "Callback NAS Prompt" */
  AAA_SERVICE_TYPE_CALL_CHECK                                =  10, /* "Call Check" */
  AAA_SERVICE_TYPE_CALLBACK_ADMIN                            =  11, /* "Callback Admin" */
  AAA_SERVICE_TYPE_VOICE                                     =  12, /* "Voice" */
  AAA_SERVICE_TYPE_FAX                                       =  13, /* "Fax" */
  AAA_SERVICE_TYPE_MODEM_RELAY                               =  14, /* "Modem Relay" */
  AAA_SERVICE_TYPE_EAPOUDP                                   =  15, /* "EAPoUDP" */
} aaa_service_type;

/* 174 "send-auth" */
typedef enum aaa_send_auth AAA_ATTR_UINT32 {
  AAA_SEND_AUTH_NONE                                         =   0, /* "none" */
  AAA_SEND_AUTH_PAP                                          =   1, /* "pap" */
  AAA_SEND_AUTH_CHAP                                         =   2, /* "chap" */
  AAA_SEND_AUTH_MS_CHAP                                      =   3, /* "ms-chap" */
  AAA_SEND_AUTH_EAP                                          =   4, /* "eap" */
} aaa_send_auth;

/* 176 "service" */
typedef enum aaa_service AAA_ATTR_UINT32 {
  AAA_SERVICE_NONE                                           =   0, /* "none" */
  AAA_SERVICE_INVALID                                        =   1, /* "invalid" */
  AAA_SERVICE_SHELL                                          =   2, /* "shell" */
  AAA_SERVICE_ARAP                                           =   3, /* "arap" */
  AAA_SERVICE_PPP                                            =   4, /* "ppp" */
  AAA_SERVICE_SLIP                                           =   5, /* "slip" */
  AAA_SERVICE_SYSTEM                                         =   6, /* "system" */
  AAA_SERVICE_RESOURCE                                       =   7, /* "resource" */
  AAA_SERVICE_CONNECTION                                     =   8, /* "connection" */
  AAA_SERVICE_TTY_DAEMON                                     =   9, /* "tty-daemon" */
  AAA_SERVICE_VPDN                                           =  10, /* "vpdn" */
  AAA_SERVICE_VPDN_OUT                                       =  11, /* "vpdn-out" */
  AAA_SERVICE_RACCESS                                        =  12, /* "raccess" */
  AAA_SERVICE_H323                                           =  13, /* "h323" */
  AAA_SERVICE_OUTBOUND                                       =  14, /* "outbound" */
  AAA_SERVICE_MOBILEIP                                       =  15, /* "mobileip" */
  AAA_SERVICE_AUTH_PROXY                                     =  16, /* "auth-proxy" */
  AAA_SERVICE_IKE                                            =  17, /* "ike" */
  AAA_SERVICE_RESOURCE_MANAGEMENT                            =  18, /* "resource-management" */
  AAA_SERVICE_CALLBACK                                       =  19, /* "callback" */
  AAA_SERVICE_GPRS                                           =  20, /* "gprs" */
  AAA_SERVICE_GPRS_PDP_CONTEXT                               =  21, /* "gprs_pdp_context" */
  AAA_SERVICE_PREAUTH                                        =  22, /* "preauth" */
  AAA_SERVICE_TRANSLATE                                      =  23, /* "translate" */
  AAA_SERVICE_PKI                                            =  24, /* "pki" */
  AAA_SERVICE_CA                                             =  25, /* "ca" */
} aaa_service;

/* 182 "accounting-record-type" */
typedef enum aaa_accounting_record_type AAA_ATTR_UINT32 {
  AAA_ACCOUNTING_RECORD_TYPE_EVENT_RECORD                    =   0, /* "event_record" */
  AAA_ACCOUNTING_RECORD_TYPE_START_RECORD                    =   1, /* "start_record" */
  AAA_ACCOUNTING_RECORD_TYPE_INTERIM_RECORD                  =   2, /* "interim_record" */
  AAA_ACCOUNTING_RECORD_TYPE_STOP_RECORD                     =   3, /* "stop_record" */
} aaa_accounting_record_type;

/* 193 "disc-cause" */
typedef enum aaa_disc_cause AAA_ATTR_UINT32 {
  AAA_DISC_CAUSE_NONE                                        =   0, /* "none" */
  AAA_DISC_CAUSE_USER_REQUEST                                =   1, /* "user-request" */
  AAA_DISC_CAUSE_LOST_CARRIER                                =   2, /* "lost-carrier" */
  AAA_DISC_CAUSE_LOST_SERVICE                                =   3, /* "lost-service" */
  AAA_DISC_CAUSE_IDLE_TIMEOUT                                =   4, /* "idle-timeout" */
  AAA_DISC_CAUSE_SESSION_TIMEOUT                             =   5, /* "session-timeout" */
  AAA_DISC_CAUSE_ADMIN_RESET                                 =   6, /* "admin-reset" */
  AAA_DISC_CAUSE_ADMIN_REBOOT                                =   7, /* "admin-reboot" */
  AAA_DISC_CAUSE_PORT_ERROR                                  =   8, /* "port-error" */
  AAA_DISC_CAUSE_NAS_ERROR                                   =   9, /* "nas-error" */
  AAA_DISC_CAUSE_NAS_REQUEST                                 =  10, /* "nas-request" */
  AAA_DISC_CAUSE_NAS_REBOOT                                  =  11, /* "nas-reboot" */
  AAA_DISC_CAUSE_PORT_UNNEEDED                               =  12, /* "port-unneeded" */
  AAA_DISC_CAUSE_PORT_PREEMPTED                              =  13, /* "port-preempted" */
  AAA_DISC_CAUSE_PORT_SUSPENDED                              =  14, /* "port-suspended" */
  AAA_DISC_CAUSE_SERVICE_UNAVAILABLE                         =  15, /* "service-unavailable" */
  AAA_DISC_CAUSE_CALLBACK                                    =  16, /* "callback" */
  AAA_DISC_CAUSE_USER_ERROR                                  =  17, /* "user-error" */
  AAA_DISC_CAUSE_HOST_REQUEST                                =  18, /* "host-request" */
  AAA_DISC_CAUSE_SUPPLICANT_RESTART                          =  19, /* "supplicant-restart" */
  AAA_DISC_CAUSE_REAUTH_FAILURE                              =  20, /* "reauth-failure" */
  AAA_DISC_CAUSE_PORT_REINIT                                 =  21, /* "port-reinit" */
  AAA_DISC_CAUSE_PORT_ADMIN_DISABLED                         =  22, /* "port-admin-disabled" */
  AAA_DISC_CAUSE_LOST_POWER                                  =  23, /* "Lost-Power" */
  AAA_DISC_CAUSE_USER_ROAMED_OUT                             =  24, /* "user-roamed-out" */
  AAA_DISC_CAUSE_SRG_SWITCHOVER                              =  25, /* "srg-switchover" */
} aaa_disc_cause;

/* 201 "login-service" */
typedef enum aaa_login_service AAA_ATTR_UINT32 {
  AAA_LOGIN_SERVICE_TELNET                                   =   0, /* "Telnet" */
  AAA_LOGIN_SERVICE_RLOGIN                                   =   1, /* "Rlogin" */
  AAA_LOGIN_SERVICE_TCP_CLEAR                                =   2, /* "TCP Clear" */
  AAA_LOGIN_SERVICE_PORTMASTER                               =   3, /* "PortMaster" */
  AAA_LOGIN_SERVICE_LAT                                      =   4, /* "LAT" */
  AAA_LOGIN_SERVICE_TCP_QUIET                                =   5, /* "TCP Quiet" */
  AAA_LOGIN_SERVICE_ASCEND_TCP_QUIET                         =   6, /* "Ascend TCP Quiet" */
} aaa_login_service;

/* 217 "MS-MPPE-Enc-Policy" */
typedef enum aaa_ms_mppe_enc_policy AAA_ATTR_UINT32 {
  AAA_MS_MPPE_ENC_POLICY_ENCRYPTION_ALLOWED                  =   0, /* "Encryption-Allowed" */
  AAA_MS_MPPE_ENC_POLICY_ENCRYPTION_REQUIRED                 =   1, /* "Encryption-Required" */
} aaa_ms_mppe_enc_policy;

/* 237 "app-result-code" */
typedef enum aaa_app_result_code AAA_ATTR_UINT32 {
  AAA_APP_RESULT_CODE_NOT_SET                                =   0, /* "NOT_SET" */
  AAA_APP_RESULT_CODE_CONVERT_TO_POSTPAID                    =   1, /* "CONVERT_TO_POSTPAID" */
  AAA_APP_RESULT_CODE_TERMINATE_SERVICE                      =   2, /* "TERMINATE_SERVICE" */
  AAA_APP_RESULT_CODE_UPDATE_REPORT_FINAL                    =   3, /* "UPDATE_REPORT_FINAL" */
  AAA_APP_RESULT_CODE_INITIAL_REPORT_FINAL                   =   4, /* "INITIAL_REPORT_FINAL" */
} aaa_app_result_code;

/* 245 "identifier-type" */
typedef enum aaa_identifier_type AAA_ATTR_UINT32 {
  AAA_IDENTIFIER_TYPE_INVALID                                =   0, /* "Invalid" */
  AAA_IDENTIFIER_TYPE_AUTHEN_STATUS                          =   1, /* "authen-status" */
  AAA_IDENTIFIER_TYPE_DNIS                                   =   2, /* "dnis" */
  AAA_IDENTIFIER_TYPE_DOMAIN                                 =   3, /* "domain" */
  AAA_IDENTIFIER_TYPE_MEDIA                                  =   4, /* "media" */
  AAA_IDENTIFIER_TYPE_MLP_NEGOTIATED                         =   5, /* "mlp-negotiated" */
  AAA_IDENTIFIER_TYPE_NAS_PORT                               =   6, /* "nas-port" */
  AAA_IDENTIFIER_TYPE_NO_USERNAME                            =   7, /* "no-username" */
  AAA_IDENTIFIER_TYPE_PROTOCOL                               =   8, /* "protocol" */
  AAA_IDENTIFIER_TYPE_SERVICE_NAME                           =   9, /* "service-name" */
  AAA_IDENTIFIER_TYPE_SOURCE_ADDRESS_IPV4                    =  10, /* "source-address-ipv4" */
  AAA_IDENTIFIER_TYPE_SOURCE_ADDRESS_IPV6                    =  11, /* "source-address-ipv6" */
  AAA_IDENTIFIER_TYPE_SOURCE_ADDRESS_MAC                     =  12, /* "source-address-mac" */
  AAA_IDENTIFIER_TYPE_TIMER                                  =  13, /* "timer" */
  AAA_IDENTIFIER_TYPE_TUNNEL_NAME                            =  14, /* "tunnel-name" */
  AAA_IDENTIFIER_TYPE_USERNAME                               =  15, /* "username" */
  AAA_IDENTIFIER_TYPE_AUTO_DETECT                            =  16, /* "auto-detect" */
  AAA_IDENTIFIER_TYPE_CIRCUIT_ID                             =  17, /* "circuit-id" */
  AAA_IDENTIFIER_TYPE_REMOTE_ID                              =  18, /* "remote-id" */
  AAA_IDENTIFIER_TYPE_DHCP_VENDOR_CLASS                      =  19, /* "dhcp-vendor-class" */
  AAA_IDENTIFIER_TYPE_DHCP_CLIENT_ID                         =  20, /* "dhcp-client-id" */
} aaa_identifier_type;

/* 246 "template-type" */
typedef enum aaa_template_type AAA_ATTR_UINT32 {
  AAA_TEMPLATE_TYPE_INVALID                                  =   0, /* "Invalid" */
  AAA_TEMPLATE_TYPE_SERVICE                                  =   1, /* "service" */
} aaa_template_type;

/* 251 "nas_port_sub_id-type" */
typedef enum aaa_nas_port_sub_id_type AAA_ATTR_UINT32 {
  AAA_NAS_PORT_SUB_ID_TYPE_INVALID                           =   0, /* "Invalid" */
  AAA_NAS_PORT_SUB_ID_TYPE_ADAPTER                           =   1, /* "adapter" */
  AAA_NAS_PORT_SUB_ID_TYPE_CHANNEL                           =   2, /* "channel" */
  AAA_NAS_PORT_SUB_ID_TYPE_IPADDR                            =   3, /* "ipaddr" */
  AAA_NAS_PORT_SUB_ID_TYPE_PORT                              =   4, /* "port" */
  AAA_NAS_PORT_SUB_ID_TYPE_SHELF                             =   5, /* "shelf" */
  AAA_NAS_PORT_SUB_ID_TYPE_SLOT                              =   6, /* "slot" */
  AAA_NAS_PORT_SUB_ID_TYPE_SUB_INTERFACE                     =   7, /* "sub-interface" */
  AAA_NAS_PORT_SUB_ID_TYPE_TYPE                              =   8, /* "type" */
  AAA_NAS_PORT_SUB_ID_TYPE_VCI                               =   9, /* "vci" */
  AAA_NAS_PORT_SUB_ID_TYPE_VLAN                              =  10, /* "vlan" */
  AAA_NAS_PORT_SUB_ID_TYPE_VPI                               =  11, /* "vpi" */
  AAA_NAS_PORT_SUB_ID_TYPE_CIRCUIT_ID                        =  12, /* "circuit-id" */
  AAA_NAS_PORT_SUB_ID_TYPE_REMOTE_ID                         =  13, /* "remote-id" */
} aaa_nas_port_sub_id_type;

/* 252 "nas_port_type_id-type" */
typedef enum aaa_nas_port_type_id_type AAA_ATTR_UINT32 {
  AAA_NAS_PORT_TYPE_ID_TYPE_INVALID                          =   0, /* "Invalid" */
  AAA_NAS_PORT_TYPE_ID_TYPE_ASYNC                            =   1, /* "async" */
  AAA_NAS_PORT_TYPE_ID_TYPE_ATM                              =   2, /* "atm" */
  AAA_NAS_PORT_TYPE_ID_TYPE_BASIC_RATE                       =   3, /* "basic-rate" */
  AAA_NAS_PORT_TYPE_ID_TYPE_ETHER                            =   4, /* "ether" */
  AAA_NAS_PORT_TYPE_ID_TYPE_IPSEC                            =   5, /* "ipsec" */
  AAA_NAS_PORT_TYPE_ID_TYPE_NONE                             =   6, /* "none" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PIAFS                            =   7, /* "piafs" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PPPATM                           =   8, /* "pppatm" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PPPETHER                         =   9, /* "pppether" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PPPOEATM                         =  10, /* "pppoeatm" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PPPQINQ                          =  11, /* "pppqinq" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PPPVLAN                          =  12, /* "pppvlan" */
  AAA_NAS_PORT_TYPE_ID_TYPE_PRIMARY_RATE                     =  13, /* "primary-rate" */
  AAA_NAS_PORT_TYPE_ID_TYPE_SYNC                             =  14, /* "sync" */
  AAA_NAS_PORT_TYPE_ID_TYPE_V110                             =  15, /* "v110" */
  AAA_NAS_PORT_TYPE_ID_TYPE_V120                             =  16, /* "v120" */
  AAA_NAS_PORT_TYPE_ID_TYPE_VTY                              =  17, /* "vty" */
  AAA_NAS_PORT_TYPE_ID_TYPE_X75                              =  18, /* "x75" */
} aaa_nas_port_type_id_type;

/* 253 "media-type" */
typedef enum aaa_media_type AAA_ATTR_UINT32 {
  AAA_MEDIA_TYPE_INVALID                                     =   0, /* "Invalid" */
  AAA_MEDIA_TYPE_ASYNC                                       =   1, /* "async" */
  AAA_MEDIA_TYPE_ATM                                         =   2, /* "atm" */
  AAA_MEDIA_TYPE_ETHER                                       =   3, /* "ether" */
  AAA_MEDIA_TYPE_IP                                          =   4, /* "ip" */
  AAA_MEDIA_TYPE_ISDN                                        =   5, /* "isdn" */
  AAA_MEDIA_TYPE_MPLS                                        =   6, /* "mpls" */
  AAA_MEDIA_TYPE_SYNC                                        =   7, /* "sync" */
} aaa_media_type;

/* 254 "protocol-type" */
typedef enum aaa_protocol_type AAA_ATTR_UINT32 {
  AAA_PROTOCOL_TYPE_INVALID                                  =   0, /* "Invalid" */
  AAA_PROTOCOL_TYPE_IP                                       =   1, /* "ip" */
  AAA_PROTOCOL_TYPE_PPP                                      =   2, /* "ppp" */
  AAA_PROTOCOL_TYPE_DHCP                                     =   3, /* "dhcp" */
  AAA_PROTOCOL_TYPE_DHCPV6                                   =   4, /* "dhcpv6" */
} aaa_protocol_type;

/* 263 "tunnel-type" */
typedef enum aaa_tunnel_type AAA_ATTR_UINT32 {
  AAA_TUNNEL_TYPE_NONE                                       =   0, /* "none" */
  AAA_TUNNEL_TYPE_PPTP                                       =   1, /* "pptp" */
  AAA_TUNNEL_TYPE_L2F                                        =   2, /* "l2f" */
  AAA_TUNNEL_TYPE_L2TP                                       =   3, /* "l2tp" */
  AAA_TUNNEL_TYPE_ATMP                                       =   4, /* "atmp" */
  AAA_TUNNEL_TYPE_VTP                                        =   5, /* "vtp" */
  AAA_TUNNEL_TYPE_AH                                         =   6, /* "ah" */
  AAA_TUNNEL_TYPE_IP_IP                                      =   7, /* "ip_ip" */
  AAA_TUNNEL_TYPE_MIN_IP_IP                                  =   8, /* "min_ip_ip" */
  AAA_TUNNEL_TYPE_ESP                                        =   9, /* "esp" */
  AAA_TUNNEL_TYPE_GRE                                        =  10, /* "gre" */
  AAA_TUNNEL_TYPE_BAY_DVS                                    =  11, /* "bay_dvs" */
  AAA_TUNNEL_TYPE_IP_IN_IP                                   =  12, /* "ip_in_ip" */
  AAA_TUNNEL_TYPE_VLAN                                       =  13, /* "vlan" */
} aaa_tunnel_type;

/* 264 "tunnel-medium-type" */
typedef enum aaa_tunnel_medium_type AAA_ATTR_UINT32 {
  AAA_TUNNEL_MEDIUM_TYPE_INVALID                             =   0, /* "Invalid" */
  AAA_TUNNEL_MEDIUM_TYPE_IPV4                                =   1, /* "IPv4" */
  AAA_TUNNEL_MEDIUM_TYPE_IPV6                                =   2, /* "IPv6" */
  AAA_TUNNEL_MEDIUM_TYPE_NSAP                                =   3, /* "NSAP" */
  AAA_TUNNEL_MEDIUM_TYPE_HDLC                                =   4, /* "HDLC" */
  AAA_TUNNEL_MEDIUM_TYPE_BBN                                 =   5, /* "BBN" */
  AAA_TUNNEL_MEDIUM_TYPE_ALL_802                             =   6, /* "ALL_802" */
} aaa_tunnel_medium_type;

/* 314 "ipv4-multicast" */
typedef enum aaa_ipv4_multicast AAA_ATTR_UINT32 {
  AAA_IPV4_MULTICAST_NONE                                    =   0, /* "None" */
  AAA_IPV4_MULTICAST_QOS_CORRELATION                         =   1, /* "Qos Correlation" */
  AAA_IPV4_MULTICAST_PASSIVE                                 =   2, /* "Passive" */
} aaa_ipv4_multicast;

/* 345 "Acct-Backoff-Status" */
typedef enum aaa_acct_backoff_status AAA_ATTR_UINT32 {
  AAA_ACCT_BACKOFF_STATUS_PASS                               =   1, /* "Pass" */
  AAA_ACCT_BACKOFF_STATUS_FAIL                               =   2, /* "Fail" */
} aaa_acct_backoff_status;

/* 348 "torvo-mpc-protocol-interface" */
typedef enum aaa_torvo_mpc_protocol_interface AAA_ATTR_UINT32 {
  AAA_TORVO_MPC_PROTOCOL_INTERFACE_NONE                      =   0, /* "none" */
  AAA_TORVO_MPC_PROTOCOL_INTERFACE_PMIPV6                    =   1, /* "pmipv6" */
  AAA_TORVO_MPC_PROTOCOL_INTERFACE_GTPV1                     =   2, /* "gtpv1" */
  AAA_TORVO_MPC_PROTOCOL_INTERFACE_PMIPV4                    =   3, /* "pmipv4" */
} aaa_torvo_mpc_protocol_interface;

/* 351 "torvo-mn-service" */
typedef enum aaa_torvo_mn_service AAA_ATTR_UINT32 {
  AAA_TORVO_MN_SERVICE_NONE                                  =   0, /* "none" */
  AAA_TORVO_MN_SERVICE_IPV4                                  =   1, /* "ipv4" */
  AAA_TORVO_MN_SERVICE_IPV6                                  =   2, /* "ipv6" */
  AAA_TORVO_MN_SERVICE_DUAL                                  =   3, /* "dual" */
} aaa_torvo_mn_service;

/* 363 "pdp-type" */
typedef enum aaa_pdp_type AAA_ATTR_UINT32 {
  AAA_PDP_TYPE_IP                                            =   0, /* "IP" */
  AAA_PDP_TYPE_PPP                                           =   1, /* "PPP" */
  AAA_PDP_TYPE_IPV4                                          =   2, /* "IPV4" */
  AAA_PDP_TYPE_IPV6                                          =   3, /* "IPV6" */
} aaa_pdp_type;

/* 381 "pmip6-encap-type" */
typedef enum aaa_pmip6_encap_type AAA_ATTR_UINT32 {
  AAA_PMIP6_ENCAP_TYPE_IPV6_IN_IPV6                          =   0, /* "ipv6-in-ipv6" */
  AAA_PMIP6_ENCAP_TYPE_IPV6_IN_IPV4                          =   1, /* "ipv6-in-ipv4" */
  AAA_PMIP6_ENCAP_TYPE_IPV6_IN_IPV4_UDP                      =   2, /* "ipv6-in-ipv4-udp" */
  AAA_PMIP6_ENCAP_TYPE_GRE_IN_IPV4                           =   3, /* "gre-in-ipv4" */
  AAA_PMIP6_ENCAP_TYPE_GRE_IN_IPV6                           =   4, /* "gre-in-ipv6" */
  AAA_PMIP6_ENCAP_TYPE_MGRE_IN_IPV4                          =   5, /* "mgre-in-ipv4" */
  AAA_PMIP6_ENCAP_TYPE_MGRE_IN_IPV6                          =   6, /* "mgre-in-ipv6" */
  AAA_PMIP6_ENCAP_TYPE_MIP_UDP                               =   7, /* "mip-udp" */
  AAA_PMIP6_ENCAP_TYPE_MIP_MUDP                              =   8, /* "mip-mudp" */
} aaa_pmip6_encap_type;

/* 404 "Device-Role" */
typedef enum aaa_device_role AAA_ATTR_UINT32 {
  AAA_DEVICE_ROLE_PRIMARY                                    =   0, /* "Primary" */
  AAA_DEVICE_ROLE_SECONDARY                                  =   1, /* "Secondary" */
} aaa_device_role;

/* 433 "disconnect cause" */
typedef enum aaa_disconnect_cause_enum AAA_ATTR_UINT32 {
  AAA_DISCONNECT_CAUSE_ENUM_REBOOTING                        =   0, /* "Rebooting" */
  AAA_DISCONNECT_CAUSE_ENUM_SERVER_BUSY                      =   1, /* "Server-busy" */
  AAA_DISCONNECT_CAUSE_ENUM_NOT_INTERESTED_IN_TALKING        =   2, /* "Not-interested-in-talking" */
} aaa_disconnect_cause_enum;

/* 434 "Re-Auth-Request-Type" */
typedef enum aaa_re_auth_request_type AAA_ATTR_UINT32 {
  AAA_RE_AUTH_REQUEST_TYPE_AUTHORIZE_ONLY                    =   0, /* "Authorize-Only" */
  AAA_RE_AUTH_REQUEST_TYPE_AUTHORIZE_AUTHENTICATE            =   1, /* "Authorize-Authenticate" */
} aaa_re_auth_request_type;

/* 441 "Security supported" */
typedef enum aaa_security_supported AAA_ATTR_UINT32 {
  AAA_SECURITY_SUPPORTED_NO_SECURITY                         =   0, /* "No security" */
  AAA_SECURITY_SUPPORTED_TLS                                 =   1, /* "TLS" */
} aaa_security_supported;

/* 449 "Session Failover" */
typedef enum aaa_session_failover AAA_ATTR_UINT32 {
  AAA_SESSION_FAILOVER_REFUSE_SERVICE                        =   0, /* "Refuse service" */
  AAA_SESSION_FAILOVER_TRY_AGAIN                             =   1, /* "Try again" */
  AAA_SESSION_FAILOVER_ALLOW_SERVICE                         =   2, /* "Allow service" */
  AAA_SESSION_FAILOVER_TRY_AGAIN_ALLOW_SERVICE               =   3, /* "Try again allow service" */
} aaa_session_failover;

/* 450 "Termination Cause" */
typedef enum aaa_termination_cause AAA_ATTR_UINT32 {
  AAA_TERMINATION_CAUSE_NONE                                 =   0, /* "none" */
  AAA_TERMINATION_CAUSE_DIAMETER_LOGOUT                      =   1, /* "Diameter Logout" */
  AAA_TERMINATION_CAUSE_DIAMETER_SERVICE_NOT_PROVIDED        =   2, /* "Diameter Service Not Provided" */
  AAA_TERMINATION_CAUSE_DIAMETER_BAD_ANSWER                  =   3, /* "Diameter Bad Answer" */
  AAA_TERMINATION_CAUSE_DIAMETER_ADMINISTRATIVE              =   4, /* "Diameter Administrative" */
  AAA_TERMINATION_CAUSE_DIAMETER_LINK_BROKEN                 =   5, /* "Diameter Link Broken" */
  AAA_TERMINATION_CAUSE_DIAMETER_AUTH_EXPIRED                =   6, /* "Diameter Auth Expired" */
  AAA_TERMINATION_CAUSE_DIAMETER_USER_MOVED                  =   7, /* "Diameter User Moved" */
  AAA_TERMINATION_CAUSE_DIAMETER_SESSION_TIMEOUT             =   8, /* "Diameter Session Timeout" */
  AAA_TERMINATION_CAUSE_NONE_9                               =   9, /* "none" */
  AAA_TERMINATION_CAUSE_NONE_10                              =  10, /* "none" */
  AAA_TERMINATION_CAUSE_USER_REQUEST                         =  11, /* "user-request" */
  AAA_TERMINATION_CAUSE_LOST_CARRIER                         =  12, /* "lost-carrier" */
  AAA_TERMINATION_CAUSE_LOST_SERVICE                         =  13, /* "lost-service" */
  AAA_TERMINATION_CAUSE_IDLE_TIMEOUT                         =  14, /* "idle-timeout" */
  AAA_TERMINATION_CAUSE_SESSION_TIMEOUT                      =  15, /* "session-timeout" */
  AAA_TERMINATION_CAUSE_ADMIN_RESET                          =  16, /* "admin-reset" */
  AAA_TERMINATION_CAUSE_ADMIN_REBOOT                         =  17, /* "admin-reboot" */
  AAA_TERMINATION_CAUSE_PORT_ERROR                           =  18, /* "port-error" */
  AAA_TERMINATION_CAUSE_NAS_ERROR                            =  19, /* "nas-error" */
  AAA_TERMINATION_CAUSE_NAS_REQUEST                          =  20, /* "nas-request" */
  AAA_TERMINATION_CAUSE_NAS_REBOOT                           =  21, /* "nas-reboot" */
  AAA_TERMINATION_CAUSE_PORT_UNNEEDED                        =  22, /* "port-unneeded" */
  AAA_TERMINATION_CAUSE_PORT_PREEMPTED                       =  23, /* "port-preempted" */
  AAA_TERMINATION_CAUSE_PORT_SUSPENDED                       =  24, /* "port-suspended" */
  AAA_TERMINATION_CAUSE_SERVICE_UNAVAILABLE                  =  25, /* "service-unavailable" */
  AAA_TERMINATION_CAUSE_CALLBACK                             =  26, /* "callback" */
  AAA_TERMINATION_CAUSE_USER_ERROR                           =  27, /* "user-error" */
  AAA_TERMINATION_CAUSE_HOST_REQUEST                         =  28, /* "host-request" */
  AAA_TERMINATION_CAUSE_SUPPLICANT_RESTART                   =  29, /* "supplicant-restart" */
  AAA_TERMINATION_CAUSE_REAUTH_FAILURE                       =  30, /* "reauth-failure" */
  AAA_TERMINATION_CAUSE_PORT_REINIT                          =  31, /* "port-reinit" */
  AAA_TERMINATION_CAUSE_PORT_ADMIN_DISABLED                  =  32, /* "port-admin-disabled" */
  AAA_TERMINATION_CAUSE_LOST_POWER                           =  33, /* "Lost-Power" */
  AAA_TERMINATION_CAUSE_USER_ROAMED_OUT                      =  34, /* "user-roamed-out" */
  AAA_TERMINATION_CAUSE_SRG_SWITCHOVER                       =  35, /* "srg-switchover" */
} aaa_termination_cause;

/* 461 "Prepaid request type" */
typedef enum aaa_prepaid_request_type AAA_ATTR_UINT32 {
  AAA_PREPAID_REQUEST_TYPE_INVALID_REQUEST                   =   0, /* "Invalid request" */
  AAA_PREPAID_REQUEST_TYPE_INITIAL_REQUEST                   =   1, /* "Initial request" */
  AAA_PREPAID_REQUEST_TYPE_UPDATE_REQUEST                    =   2, /* "Update request" */
  AAA_PREPAID_REQUEST_TYPE_FINAL_REQUEST                     =   3, /* "Final request" */
  AAA_PREPAID_REQUEST_TYPE_EVENT_REQUEST                     =   4, /* "Event request" */
} aaa_prepaid_request_type;

/* 463 "Prepaid session Failover" */
typedef enum aaa_prepaid_session_failover AAA_ATTR_UINT32 {
  AAA_PREPAID_SESSION_FAILOVER_FAILOVER_NOTSUPPORTED         =   0, /* "Failover notsupported" */
  AAA_PREPAID_SESSION_FAILOVER_FAILOVER_SUPPORTED            =   1, /* "Failover Supported" */
} aaa_prepaid_session_failover;

/* 467 "Prepaid Units" */
typedef enum aaa_prepaid_units AAA_ATTR_UINT32 {
  AAA_PREPAID_UNITS_TIME                                     =   0, /* "Time" */
  AAA_PREPAID_UNITS_MONEY                                    =   1, /* "Money" */
  AAA_PREPAID_UNITS_TOTAL_OCTETS                             =   2, /* "Total-Octets" */
  AAA_PREPAID_UNITS_INPUT_OCTETS                             =   3, /* "Input-Octets" */
  AAA_PREPAID_UNITS_OUTPUT_OCTETS                            =   4, /* "Output-Octets" */
  AAA_PREPAID_UNITS_SERVICE_UNITS                            =   5, /* "Service-units" */
} aaa_prepaid_units;

/* 469 "Prepaid Failure Handling" */
typedef enum aaa_prepaid_failure_handling AAA_ATTR_UINT32 {
  AAA_PREPAID_FAILURE_HANDLING_SESSION_SHOULD_TERMINATE      =   0, /* "Session should terminate" */
  AAA_PREPAID_FAILURE_HANDLING_SESSION_SHOULD_CONTINUE       =   1, /* "Session should continue" */
  AAA_PREPAID_FAILURE_HANDLING_RETRY_AND_TERMINATE           =   2, /* "RETRY and Terminate" */
} aaa_prepaid_failure_handling;

/* 470 "Prepaid message failure handling" */
typedef enum aaa_prepaid_message_failure_handling AAA_ATTR_UINT32 {
  AAA_PREPAID_MESSAGE_FAILURE_HANDLING_TERMINATE_OR_BUFFER_DATA =   0, /* "Terminate or buffer data" */
  AAA_PREPAID_MESSAGE_FAILURE_HANDLING_SESSION_SHOULD_CONTINUE =   1, /* "Session should continue" */
} aaa_prepaid_message_failure_handling;

/* 472 "Prepaid final unit action" */
typedef enum aaa_prepaid_final_unit_action AAA_ATTR_UINT32 {
  AAA_PREPAID_FINAL_UNIT_ACTION_TERMINATE                    =   0, /* "Terminate" */
  AAA_PREPAID_FINAL_UNIT_ACTION_REDIRECT                     =   1, /* "Redirect" */
  AAA_PREPAID_FINAL_UNIT_ACTION_RESTRICTED_ACCESS            =   2, /* "Restricted Access" */
} aaa_prepaid_final_unit_action;

/* 477 "Prepaid multiple service indicator" */
typedef enum aaa_prepaid_multiple_service_indicator AAA_ATTR_UINT32 {
  AAA_PREPAID_MULTIPLE_SERVICE_INDICATOR_MULTISERVICE_NOTSUPPORTED =   0, /* "multiservice notsupported" */
  AAA_PREPAID_MULTIPLE_SERVICE_INDICATOR_MULTISERVICE_SUPPORTED =   1, /* "multiservice supported" */
} aaa_prepaid_multiple_service_indicator;

/* 486 "Subscription Id type" */
typedef enum aaa_subscription_id_type AAA_ATTR_UINT32 {
  AAA_SUBSCRIPTION_ID_TYPE_END_USER_E164                     =   0, /* "end-user-e164" */
  AAA_SUBSCRIPTION_ID_TYPE_END_USER_IMSI                     =   1, /* "end-user-imsi" */
  AAA_SUBSCRIPTION_ID_TYPE_END_USER_SIP_URI                  =   2, /* "end-user-sip-uri" */
  AAA_SUBSCRIPTION_ID_TYPE_END_USER_SIP_NAI                  =   3, /* "end-user-sip-nai" */
  AAA_SUBSCRIPTION_ID_TYPE_END_USER_PRIVATE                  =   4, /* "end-user-private" */
} aaa_subscription_id_type;

/* 488 "Tariff change usage" */
typedef enum aaa_tariff_change_usage AAA_ATTR_UINT32 {
  AAA_TARIFF_CHANGE_USAGE_UNITS_BEFORE_TARIFF_CHANGE         =   0, /* "units-before-tariff-change" */
  AAA_TARIFF_CHANGE_USAGE_UNITS_AFTER_TARIFF_CHANGE          =   1, /* "units-after-tariff-change" */
  AAA_TARIFF_CHANGE_USAGE_UNITS_INDTERMINATE                 =   2, /* "units-indterminate" */
} aaa_tariff_change_usage;

/* 494 "User equipment info type" */
typedef enum aaa_user_equipment_info_type AAA_ATTR_UINT32 {
  AAA_USER_EQUIPMENT_INFO_TYPE_INTL_MOBILE_EQPMNT_IDEN       =   0, /* "intl-mobile-eqpmnt-iden" */
  AAA_USER_EQUIPMENT_INFO_TYPE_MAC_BASED                     =   1, /* "mac-based" */
  AAA_USER_EQUIPMENT_INFO_TYPE_EUI_64                        =   2, /* "eui-64" */
  AAA_USER_EQUIPMENT_INFO_TYPE_MODIFIED_EUI_64               =   3, /* "modified-eui-64" */
  AAA_USER_EQUIPMENT_INFO_TYPE_ESN                           =   4, /* "esn" */
  AAA_USER_EQUIPMENT_INFO_TYPE_MEID                          =   5, /* "meid" */
} aaa_user_equipment_info_type;

/* 502 "qt-reporting-reason" */
typedef enum aaa_qt_reporting_reason AAA_ATTR_UINT32 {
  AAA_QT_REPORTING_REASON_QT_THRESHOLD                       =   0, /* "qt-threshold" */
  AAA_QT_REPORTING_REASON_QT_QHT                             =   1, /* "qt-qht" */
  AAA_QT_REPORTING_REASON_QT_FINAL                           =   2, /* "qt-final" */
  AAA_QT_REPORTING_REASON_QT_EXHAUSTED                       =   3, /* "qt-exhausted" */
  AAA_QT_REPORTING_REASON_QT_VALIDITY_TIME                   =   4, /* "qt-validity-time" */
  AAA_QT_REPORTING_REASON_QT_OTHER_QT_TYPE                   =   5, /* "qt-other-qt-type" */
  AAA_QT_REPORTING_REASON_QT_RATING_CHANGE                   =   6, /* "qt-rating-change" */
  AAA_QT_REPORTING_REASON_QT_FORCED_REAUTH                   =   7, /* "qt-forced-reauth" */
} aaa_qt_reporting_reason;

/* 506 "Event Trigger" */
typedef enum aaa_event_trigger AAA_ATTR_UINT32 {
  AAA_EVENT_TRIGGER_PCF_CHANGE                               =   0, /* "PCF_CHANGE" */
  AAA_EVENT_TRIGGER_QOS_CHANGE                               =   1, /* "QOS_CHANGE" */
  AAA_EVENT_TRIGGER_RAT_CHANGE                               =   2, /* "RAT_CHANGE" */
  AAA_EVENT_TRIGGER_TFT_CHANGE                               =   3, /* "TFT_CHANGE" */
  AAA_EVENT_TRIGGER_PLMN_CHANGE                              =   4, /* "PLMN_CHANGE" */
  AAA_EVENT_TRIGGER_LOSS_OF_FLOW                             =   5, /* "LOSS_OF_FLOW" */
  AAA_EVENT_TRIGGER_RECOVERY_OF_FLOW                         =   6, /* "RECOVERY_OF_FLOW" */
  AAA_EVENT_TRIGGER_IP_CAN_CHANGE                            =   7, /* "IP_CAN_CHANGE" */
  AAA_EVENT_TRIGGER_AGW_MALFUNCTION                          =   8, /* "AGW_MALFUNCTION" */
  AAA_EVENT_TRIGGER_RESOURCES_LIMITATION                     =   9, /* "RESOURCES_LIMITATION" */
  AAA_EVENT_TRIGGER_NO_EVENT_TRIGGERS                        =  10, /* "NO_EVENT_TRIGGERS" */
  AAA_EVENT_TRIGGER_REVALIDATION_TIMEOUT                     =  11, /* "REVALIDATION_TIMEOUT" */
  AAA_EVENT_TRIGGER_UE_IP_ADDRESS_ALLOCATE                   =  12, /* "UE_IP_ADDRESS_ALLOCATE" */
  AAA_EVENT_TRIGGER_UE_IP_ADDRESS_RELEASE                    =  13, /* "UE_IP_ADDRESS_RELEASE" */
  AAA_EVENT_TRIGGER_TAI_CHANGE                               =  14, /* "TAI_CHANGE" */
  AAA_EVENT_TRIGGER_USAGE_REPORT                             =  15, /* "USAGE_REPORT" */
} aaa_event_trigger;

/* 514 "QoS Class" */
typedef enum aaa_qos_class AAA_ATTR_UINT32 {
  AAA_QOS_CLASS_A                                            =   0, /* "A" */
  AAA_QOS_CLASS_B                                            =   1, /* "B" */
  AAA_QOS_CLASS_C                                            =   2, /* "C" */
  AAA_QOS_CLASS_D                                            =   3, /* "D" */
  AAA_QOS_CLASS_E                                            =   4, /* "E" */
  AAA_QOS_CLASS_F                                            =   5, /* "F" */
} aaa_qos_class;

/* 524 "Flow Status" */
typedef enum aaa_flow_status AAA_ATTR_UINT32 {
  AAA_FLOW_STATUS_ENABLED_UPLINK                             =   0, /* "enabled-uplink" */
  AAA_FLOW_STATUS_ENABLED_DOWNLINK                           =   1, /* "enabled-downlink" */
  AAA_FLOW_STATUS_ENABLED                                    =   2, /* "enabled" */
  AAA_FLOW_STATUS_DISABLED                                   =   3, /* "disabled" */
  AAA_FLOW_STATUS_REMOVED                                    =   4, /* "removed" */
} aaa_flow_status;

/* 525 "PCC Rule Status" */
typedef enum aaa_pcc_rule_status AAA_ATTR_UINT32 {
  AAA_PCC_RULE_STATUS_ACTIVE                                 =   0, /* "active" */
  AAA_PCC_RULE_STATUS_INACTIVE                               =   1, /* "inactive" */
  AAA_PCC_RULE_STATUS_TEMP_INACTIVE                          =   2, /* "temp-inactive" */
} aaa_pcc_rule_status;

/* 526 "Metering Method" */
typedef enum aaa_metering_method AAA_ATTR_UINT32 {
  AAA_METERING_METHOD_DURATION                               =   0, /* "duration" */
  AAA_METERING_METHOD_VOLUME                                 =   1, /* "volume" */
  AAA_METERING_METHOD_DURATION_VOLUME                        =   2, /* "duration-volume" */
} aaa_metering_method;

/* 527 "Offline" */
typedef enum aaa_offline AAA_ATTR_UINT32 {
  AAA_OFFLINE_DISABLED                                       =   0, /* "disabled" */
  AAA_OFFLINE_ENABLED                                        =   1, /* "enabled" */
} aaa_offline;

/* 528 "Online" */
typedef enum aaa_online AAA_ATTR_UINT32 {
  AAA_ONLINE_DISABLED                                        =   0, /* "disabled" */
  AAA_ONLINE_ENABLED                                         =   1, /* "enabled" */
} aaa_online;

/* 530 "Reporting Level" */
typedef enum aaa_reporting_level AAA_ATTR_UINT32 {
  AAA_REPORTING_LEVEL_SERVICE_IDENTIFIER                     =   0, /* "service-identifier" */
  AAA_REPORTING_LEVEL_GROUP                                  =   1, /* "group" */
} aaa_reporting_level;

/* 537 "BM-Type" */
typedef enum aaa_bm_type AAA_ATTR_UINT32 {
  AAA_BM_TYPE_HOMEBM                                         =   0, /* "HomeBM" */
  AAA_BM_TYPE_VISITEDBM                                      =   1, /* "VisitedBM" */
} aaa_bm_type;

/* 542 "Accounting-Real-Time-Required" */
typedef enum aaa_accounting_real_time_required AAA_ATTR_UINT32 {
  AAA_ACCOUNTING_REAL_TIME_REQUIRED_DELIVER_AND_GRANT        =   0, /* "Deliver-And-Grant" */
  AAA_ACCOUNTING_REAL_TIME_REQUIRED_GRANT_AND_STORE          =   1, /* "Grant-And-Store" */
  AAA_ACCOUNTING_REAL_TIME_REQUIRED_GRANT_AND_LOSE           =   2, /* "Grant-And-Lose" */
} aaa_accounting_real_time_required;

/* 543 "Auth-Request-Type" */
typedef enum aaa_auth_request_type AAA_ATTR_UINT32 {
  AAA_AUTH_REQUEST_TYPE_AUTHENTICATE_ONLY                    =   0, /* "Authenticate-Only" */
  AAA_AUTH_REQUEST_TYPE_AUTHORIZE_ONLY                       =   1, /* "Authorize-Only" */
  AAA_AUTH_REQUEST_TYPE_AUTHORIZE_AUTHENTICATE               =   2, /* "Authorize-Authenticate" */
} aaa_auth_request_type;

/* 544 "Origin-AAA-Protocol" */
typedef enum aaa_origin_aaa_protocol AAA_ATTR_UINT32 {
  AAA_ORIGIN_AAA_PROTOCOL_RADIUS                             =   0, /* "Radius" */
} aaa_origin_aaa_protocol;

/* 547 "Auth-Session-State" */
typedef enum aaa_auth_session_state AAA_ATTR_UINT32 {
  AAA_AUTH_SESSION_STATE_STATE_MAINTAINED                    =   0, /* "State-Maintained" */
  AAA_AUTH_SESSION_STATE_NO_STATE_MAINTAINED                 =   1, /* "No-State-Maintained" */
} aaa_auth_session_state;

/* 549 "Session Release Cause" */
typedef enum aaa_session_release_cause AAA_ATTR_UINT32 {
  AAA_SESSION_RELEASE_CAUSE_UNSPECIFIED_REASON               =   0, /* "Unspecified-reason" */
  AAA_SESSION_RELEASE_CAUSE_UE_SUBSCRIPTION_REASON           =   1, /* "UE-subscription_reason" */
  AAA_SESSION_RELEASE_CAUSE_INSUFF_SERVER_RESOURCES          =   2, /* "Insuff-server-resources" */
  AAA_SESSION_RELEASE_CAUSE_IP_SESSION_TERMINATION           =   3, /* "IP-session-termination" */
  AAA_SESSION_RELEASE_CAUSE_UE_IP_ADDRESS_RELEASE            =   4, /* "UE-IP-address-release" */
} aaa_session_release_cause;

/* 551 "IP-CAN-Type" */
typedef enum aaa_ip_can_type AAA_ATTR_UINT32 {
  AAA_IP_CAN_TYPE_3GPP_GPRS                                  =   0, /* "3GPP-GPRS" */
  AAA_IP_CAN_TYPE_DOCSIS                                     =   1, /* "DOCSIS" */
  AAA_IP_CAN_TYPE_XDSL                                       =   2, /* "xDSL" */
  AAA_IP_CAN_TYPE_WIMAX                                      =   3, /* "WIMAX" */
  AAA_IP_CAN_TYPE_3GPP2                                      =   4, /* "3GPP2" */
  AAA_IP_CAN_TYPE_3GPP_EPS                                   =   5, /* "3GPP-EPS" */
  AAA_IP_CAN_TYPE_NON_3GPP_EPS                               =   6, /* "Non-3GPP-EPS" */
  AAA_IP_CAN_TYPE_FBA                                        =   7, /* "FBA" */
} aaa_ip_can_type;

/* 552 "RAT-Type" */
typedef enum aaa_rat_type AAA_ATTR_UINT32 {
  AAA_RAT_TYPE_WLAN                                          =   0, /* "WLAN" */
  AAA_RAT_TYPE_VIRTUAL                                       =   1, /* "Virtual" */
  AAA_RAT_TYPE_ULTRAN                                        =   2, /* "ULTRAN" */
  AAA_RAT_TYPE_GERAN                                         =   3, /* "GERAN" */
  AAA_RAT_TYPE_GAN                                           =   4, /* "GAN" */
  AAA_RAT_TYPE_HSPA_EVOLUTION                                =   5, /* "HSPA_EVOLUTION" */
  AAA_RAT_TYPE_EUTRAN                                        =   6, /* "EUTRAN" */
  AAA_RAT_TYPE_CDMA2000_1X                                   =   7, /* "CDMA2000_1X" */
  AAA_RAT_TYPE_HRPD                                          =   8, /* "HRPD" */
  AAA_RAT_TYPE_UMB                                           =   9, /* "UMB" */
  AAA_RAT_TYPE_EHRPD                                         =  10, /* "EHRPD" */
} aaa_rat_type;

/* 572 "Usage-Monitoring-Level" */
typedef enum aaa_usage_monitoring_level AAA_ATTR_UINT32 {
  AAA_USAGE_MONITORING_LEVEL_SESSION_LEVEL                   =   0, /* "Session-Level" */
  AAA_USAGE_MONITORING_LEVEL_PCC_RULE_LEVEL                  =   1, /* "Pcc-Rule-Level" */
  AAA_USAGE_MONITORING_LEVEL_ADC_RULE_LEVEL                  =   2, /* "Adc-Rule-Level" */
} aaa_usage_monitoring_level;

/* 573 "Bearer-Usage" */
typedef enum aaa_bearer_usage AAA_ATTR_UINT32 {
  AAA_BEARER_USAGE_GENERAL                                   =   0, /* "General" */
  AAA_BEARER_USAGE_IMS_SIGNALLING                            =   1, /* "IMS-Signalling" */
} aaa_bearer_usage;

/* 574 "Bearer-Control Mode" */
typedef enum aaa_bearer_control_mode AAA_ATTR_UINT32 {
  AAA_BEARER_CONTROL_MODE_UE_ONLY                            =   0, /* "UE_ONLY" */
  AAA_BEARER_CONTROL_MODE_NW_ONLY                            =   1, /* "NW_ONLY" */
  AAA_BEARER_CONTROL_MODE_UE_NW                              =   2, /* "UE_NW" */
} aaa_bearer_control_mode;

/* 576 "Usage-Monitoring-Report" */
typedef enum aaa_usage_monitoring_report AAA_ATTR_UINT32 {
  AAA_USAGE_MONITORING_REPORT_USAGE_MONITORING_REPORT_REQUIRED =   0, /* "USAGE_MONITORING_REPORT_REQUIRED" */
} aaa_usage_monitoring_report;

/* 577 "Usage-Monitoring-Support" */
typedef enum aaa_usage_monitoring_support AAA_ATTR_UINT32 {
  AAA_USAGE_MONITORING_SUPPORT_USAGE_MONITORING_DISABLED     =   0, /* "USAGE_MONITORING_DISABLED" */
} aaa_usage_monitoring_support;

#undef AAA_ATTR_UINT32

/* clang-format on */

#endif
