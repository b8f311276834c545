/* aaa_attr_values.h: the dictionary's exported tables: value names of the Enum types and authorization bitmaps. */
#ifndef ATTRMGR_AAA_ATTR_VALUES_H
#define ATTRMGR_AAA_ATTR_VALUES_H

#include <stdint.h>

#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* The names of a type's values: the name of value v is names[v], for v below count. Numbers without a meaning have
   placeholder names. */
typedef struct aaa_attr_value_table {
  AAA_POINTER(const char *const, names);
  uint64_t count;
} aaa_attr_value_table;

/* Declares the names array and the descriptor of one table. */
#define AAA_ATTR_VALUE_TABLE(table)                \
  extern AAA_API const char *const name_##table[]; \
  extern AAA_API const aaa_attr_value_table value_##table

AAA_ATTR_VALUE_TABLE(abort_cause);                      /* 1 "disc-cause-ext" */
AAA_ATTR_VALUE_TABLE(acct_status_type);                 /* 3 "Acct-Status-Type" */
AAA_ATTR_VALUE_TABLE(authorized_services);              /* 5 "auth-services" */
AAA_ATTR_VALUE_TABLE(authentic);                        /* 17 "Authentic" */
AAA_ATTR_VALUE_TABLE(authen_status);                    /* 20 "authen-status" */
AAA_ATTR_VALUE_TABLE(authen_type);                      /* 21 "authen-type" */
AAA_ATTR_VALUE_TABLE(author_type);                      /* 22 "author-type" */
AAA_ATTR_VALUE_TABLE(authen_method);                    /* 23 "authen-method" */
AAA_ATTR_VALUE_TABLE(authen_strength);                  /* 24 "authen-strength" */
AAA_ATTR_VALUE_TABLE(accounting_type);                  /* 39 "accounting-type" */
AAA_ATTR_VALUE_TABLE(conn_prog);                        /* 57 "connect-progress" */
AAA_ATTR_VALUE_TABLE(framed_protocol);                  /* 71 "Framed-Protocol" */
AAA_ATTR_VALUE_TABLE(interface_parent_type);            /* 95 "parent-interface-type" */
AAA_ATTR_VALUE_TABLE(interface_type);                   /* 96 "port-type" */
AAA_ATTR_VALUE_TABLE(error_cause);                      /* 109 "error-cause" */
AAA_ATTR_VALUE_TABLE(protocol);                         /* 163 "protocol" */
AAA_ATTR_VALUE_TABLE(service_type);                     /* 167 "service-type" */
AAA_ATTR_VALUE_TABLE(send_auth);                        /* 174 "send-auth" */
AAA_ATTR_VALUE_TABLE(service);                          /* 176 "service" */
AAA_ATTR_VALUE_TABLE(acct_record_type);                 /* 182 "accounting-record-type" */
AAA_ATTR_VALUE_TABLE(terminate_cause);                  /* 193 "disc-cause" */
AAA_ATTR_VALUE_TABLE(login_service);                    /* 201 "login-service" */
AAA_ATTR_VALUE_TABLE(ms_mppe_encryption_policy);        /* 217 "MS-MPPE-Enc-Policy" */
AAA_ATTR_VALUE_TABLE(app_result_code);                  /* 237 "app-result-code" */
AAA_ATTR_VALUE_TABLE(identifier_type);                  /* 245 "identifier-type" */
AAA_ATTR_VALUE_TABLE(template_type);                    /* 246 "template-type" */
AAA_ATTR_VALUE_TABLE(nas_port_sub_id_type);             /* 251 "nas_port_sub_id-type" */
AAA_ATTR_VALUE_TABLE(nas_port_type_id_type);            /* 252 "nas_port_type_id-type" */
AAA_ATTR_VALUE_TABLE(media_type);                       /* 253 "media-type" */
AAA_ATTR_VALUE_TABLE(protocol_type);                    /* 254 "protocol-type" */
AAA_ATTR_VALUE_TABLE(tunnel_type);                      /* 263 "tunnel-type" */
AAA_ATTR_VALUE_TABLE(tunnel_medium_type);               /* 264 "tunnel-medium-type" */
AAA_ATTR_VALUE_TABLE(ipv4_multicast);                   /* 314 "ipv4-multicast" */
AAA_ATTR_VALUE_TABLE(acct_backoff_status);              /* 345 "Acct-Backoff-Status" */
AAA_ATTR_VALUE_TABLE(torvo_mpc_protocol_interface);     /* 348 "torvo-mpc-protocol-interface" */
AAA_ATTR_VALUE_TABLE(torvo_mn_service);                 /* 351 "torvo-mn-service" */
AAA_ATTR_VALUE_TABLE(threegenpp_pdp_type);              /* 363 "pdp-type" */
AAA_ATTR_VALUE_TABLE(pmip6_encap_type);                 /* 381 "pmip6-encap-type" */
AAA_ATTR_VALUE_TABLE(device_role);                      /* 404 "Device-Role" */
AAA_ATTR_VALUE_TABLE(peer_disconnect_cause);            /* 433 "disconnect cause" */
AAA_ATTR_VALUE_TABLE(reauth_request_type);              /* 434 "Re-Auth-Request-Type" */
AAA_ATTR_VALUE_TABLE(inband_security_id);               /* 441 "Security supported" */
AAA_ATTR_VALUE_TABLE(server_session_failover);          /* 449 "Session Failover" */
AAA_ATTR_VALUE_TABLE(termination_cause);                /* 450 "Termination Cause" */
AAA_ATTR_VALUE_TABLE(prepaid_request_type);             /* 461 "Prepaid request type" */
AAA_ATTR_VALUE_TABLE(prepaid_session_failover);         /* 463 "Prepaid session Failover" */
AAA_ATTR_VALUE_TABLE(prepaid_unit_type);                /* 467 "Prepaid Units" */
AAA_ATTR_VALUE_TABLE(prepaid_failure_handling);         /* 469 "Prepaid Failure Handling" */
AAA_ATTR_VALUE_TABLE(prepaid_message_failure_handling); /* 470 "Prepaid message failure handling" */
AAA_ATTR_VALUE_TABLE(prepaid_final_unit_action);        /* 472 "Prepaid final unit action" */
AAA_ATTR_VALUE_TABLE(prepaid_multi_service_indicator);  /* 477 "Prepaid multiple service indicator" */
AAA_ATTR_VALUE_TABLE(subscription_id_type);             /* 486 "Subscription Id type" */
AAA_ATTR_VALUE_TABLE(prepaid_tariff_change_units);      /* 488 "Tariff change usage" */
AAA_ATTR_VALUE_TABLE(prepaid_user_equipment_info_type); /* 494 "User equipment info type" */
AAA_ATTR_VALUE_TABLE(prepaid_qt_reporting_reason);      /* 502 "qt-reporting-reason" */
AAA_ATTR_VALUE_TABLE(event_trigger);                    /* 506 "Event Trigger" */
AAA_ATTR_VALUE_TABLE(qos_class);                        /* 514 "QoS Class" */
AAA_ATTR_VALUE_TABLE(flow_status);                      /* 524 "Flow Status" */
AAA_ATTR_VALUE_TABLE(pcc_rule_status);                  /* 525 "PCC Rule Status" */
AAA_ATTR_VALUE_TABLE(metering_method);                  /* 526 "Metering Method" */
AAA_ATTR_VALUE_TABLE(offline);                          /* 527 "Offline" */
AAA_ATTR_VALUE_TABLE(online);                           /* 528 "Online" */
AAA_ATTR_VALUE_TABLE(reporting_level);                  /* 530 "Reporting Level" */
AAA_ATTR_VALUE_TABLE(bm_type);                          /* 537 "BM-Type" */
AAA_ATTR_VALUE_TABLE(acct_real_time_required);          /* 542 "Accounting-Real-Time-Required" */
AAA_ATTR_VALUE_TABLE(auth_request_type);                /* 543 "Auth-Request-Type" */
AAA_ATTR_VALUE_TABLE(origin_aaa_protocol);              /* 544 "Origin-AAA-Protocol" */
AAA_ATTR_VALUE_TABLE(auth_session_state);               /* 547 "Auth-Session-State" */
AAA_ATTR_VALUE_TABLE(session_release_cause);            /* 549 "Session Release Cause" */
AAA_ATTR_VALUE_TABLE(ip_can_type);                      /* 551 "IP-CAN-Type" */
AAA_ATTR_VALUE_TABLE(rat_type);                         /* 552 "RAT-Type" */
AAA_ATTR_VALUE_TABLE(usage_monitoring_level);           /* 572 "Usage-Monitoring-Level" */
AAA_ATTR_VALUE_TABLE(bearer_usage);                     /* 573 "Bearer-Usage" */
AAA_ATTR_VALUE_TABLE(bearer_control_mode);              /* 574 "Bearer-Control Mode" */
AAA_ATTR_VALUE_TABLE(usage_monitoring_report);          /* 576 "Usage-Monitoring-Report" */
AAA_ATTR_VALUE_TABLE(usage_monitoring_support);         /* 577 "Usage-Monitoring-Support" */

#undef AAA_ATTR_VALUE_TABLE

/* ---- Authorization bitmaps ----

   Bit service * AAA_AUTHOR_PROTOCOLS + protocol (least significant bit of a byte first) tells
   whether attributes of the type may be used with that service and protocol, numbered as in name_service and
   name_protocol. The n-th type, in number order, whose flags lack AAA_ATTR_TYPE_NO_AUTHOR has bitmap n. */

#define AAA_AUTHOR_TYPES 101       /* types that have a bitmap */
#define AAA_AUTHOR_SERVICES 26     /* services, numbered from 0 */
#define AAA_AUTHOR_PROTOCOLS 49    /* protocols, numbered from 0 */
#define AAA_AUTHOR_BITMAP_SIZE 160 /* bytes; the bits after the last pair are 0 */

/* The bitmap of one type. */
typedef struct aaa_author_bitmap {
  uint8_t bits[AAA_AUTHOR_BITMAP_SIZE];
} aaa_author_bitmap;

/* The bitmaps, in the order of the types' numbers. */
extern AAA_API const aaa_author_bitmap aaa_author_flags[AAA_AUTHOR_TYPES];

AAA_END_DECLS

#endif
