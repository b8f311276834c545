/* sessions: keeps the sessions of a network as attribute lists, told of by lines on its standard input:

     start NAME ADDRESS PASSWORD    a session begins; NAME may be - for a guest
     class NAME CLASS               how it is to be treated
     update NAME OCTETS             what it has sent so far
     stop NAME CAUSE                it ends; a line about it is printed
     show                           prints the sessions that there are
     end                            all sessions end

   There are three faults in this program. docs/debugging.md, which comes with it, finds each by its symptom. */
#include <attrmgr/attrmgr.h>

#include <arpa/inet.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* ---- The attributes of a session ---- */

/* Types of the dictionary, looked up once. */
static struct {
  uint32_t name;
  uint32_t address;
  uint32_t password;
  uint32_t class_name;
  uint32_t octets;
  uint32_t cause;
  uint32_t charge; /* Grouped: what the session costs */
} types;

struct type_name {
  uint32_t *type;
  const char *name;
};

static int find_types(void) {
  const struct type_name wanted[] = {
      {&types.name, "username"},
      {&types.address, "addr"},
      {&types.password, "password"},
      {&types.class_name, "sub-policy-name"},
      {&types.octets, "Input octets"},
      {&types.cause, "disconnect-cause"},
      {&types.charge, "Used-service-units"},
  };
  for (size_t i = 0; i < sizeof wanted / sizeof *wanted; ++i) {
    *wanted[i].type = aaa_attr_get_type_from_name(wanted[i].name);
    if (*wanted[i].type == 0) {
      fprintf(stderr, "the dictionary has no attribute '%s'\n", wanted[i].name);
      return 0;
    }
  }
  return 1;
}

/* Says what a call of the library answered, unless all is well. */
static int failed(const char *call, aaa_attr_cerrno code) {
  if (code == 0) return 0;
  fprintf(stderr, "%s: %s\n", call, aaa_attr_cerrno_name(code));
  return 1;
}

static int add_text(aaa_attr_list_handle list, uint32_t type, const char *text) {
  return !failed("aaa_attr_add", aaa_attr_add(list, type, text, (uint32_t)strlen(text), NULL));
}

static int set_text(aaa_attr_list_handle list, uint32_t type, const char *text) {
  return !failed("aaa_attr_add_or_replace", aaa_attr_add_or_replace(list, type, text, (uint32_t)strlen(text), NULL));
}

static int add_address(aaa_attr_list_handle list, const char *text) {
  struct in_addr address;
  if (inet_pton(AF_INET, text, &address) != 1) {
    fprintf(stderr, "'%s' is no IPv4 address\n", text);
    return 0;
  }
  return !failed("aaa_attr_add", aaa_attr_add(list, types.address, &address, sizeof address, NULL));
}

static int set_octets(aaa_attr_list_handle list, const char *text) {
  const uint64_t octets = strtoull(text, NULL, 10);
  return !failed("aaa_attr_add_or_replace", aaa_attr_add_or_replace(list, types.octets, &octets, sizeof octets, NULL));
}

static uint64_t octets_of(aaa_attr_list_handle list) {
  uint64_t octets = 0;
  aaa_attr_get_uint64_t(list, types.octets, &octets);
  return octets;
}

static const char *text_of(aaa_attr_list_handle list, uint32_t type) {
  const char *text = NULL;
  uint32_t length = 0;
  aaa_attr_get_string(list, type, &text, &length);
  return text;
}

/* ---- The sessions that there are ---- */

#define NAME_SIZE 64
#define SESSIONS_MAX 256

struct session {
  char name[NAME_SIZE]; /* empty: no session here */
  aaa_attr_list_handle attributes;
};

static struct session sessions[SESSIONS_MAX];

/* The session that was asked for last: the next line is often about the same one. */
static struct session recent;

static struct session *free_place(void) {
  for (size_t i = 0; i < SESSIONS_MAX; ++i)
    if (sessions[i].name[0] == '\0') return &sessions[i];
  return NULL;
}

static struct session *find_session(const char *name) {
  if (strcmp(recent.name, name) == 0) return &recent;
  for (size_t i = 0; i < SESSIONS_MAX; ++i) {
    if (strcmp(sessions[i].name, name) != 0) continue;
    recent = sessions[i];
    return &sessions[i];
  }
  return NULL;
}

static int is_known(const char *name) {
  for (size_t i = 0; i < SESSIONS_MAX; ++i)
    if (strcmp(sessions[i].name, name) == 0) return 1;
  return 0;
}

/* ---- What happens to a session ---- */

/* A list with the attributes that a session begins with; 0 when it cannot be made. */
static aaa_attr_list_handle new_attributes(const char *name, const char *address, const char *password) {
  aaa_attr_list_handle list = 0;
  if (failed("aaa_attr_list_alloc", aaa_attr_list_alloc(&list))) return 0;
  const int guest = strcmp(name, "-") == 0;
  if ((guest || add_text(list, types.name, name)) && add_address(list, address) &&
      add_text(list, types.password, password))
    return list;
  aaa_attr_list_free(list);
  return 0;
}

static void start_session(const char *name, const char *address, const char *password) {
  aaa_attr_list_handle attributes = new_attributes(name, address, password);
  if (attributes == 0) return;
  if (is_known(name)) {
    fprintf(stderr, "%s: has a session already\n", name);
    return;
  }
  struct session *session = free_place();
  if (session == NULL) {
    fprintf(stderr, "%s: too many sessions\n", name);
    aaa_attr_list_free(attributes);
    return;
  }
  snprintf(session->name, sizeof session->name, "%s", name);
  session->attributes = attributes;
}

static void classify_session(const char *name, const char *class_name) {
  const struct session *session = find_session(name);
  if (session == NULL) {
    fprintf(stderr, "%s: has no session\n", name);
    return;
  }
  set_text(session->attributes, types.class_name, class_name);
}

static void update_session(const char *name, const char *octets) {
  const struct session *session = find_session(name);
  if (session == NULL) {
    fprintf(stderr, "%s: has no session\n", name);
    return;
  }
  set_octets(session->attributes, octets);
}

/* What a session costs, as a list that the session owns. */
static void add_charge(aaa_attr_list_handle attributes) {
  const uint64_t octets = octets_of(attributes);
  aaa_attr_list_handle charge = 0;
  if (failed("aaa_attr_add_group_list", aaa_attr_add_group_list(attributes, &charge, types.charge, NULL))) return;
  failed("aaa_attr_add", aaa_attr_add(charge, types.octets, &octets, sizeof octets, NULL));
}

static void stop_session(const char *name, const char *cause) {
  struct session *session = NULL;
  for (size_t i = 0; i < SESSIONS_MAX; ++i)
    if (strcmp(sessions[i].name, name) == 0) session = &sessions[i];
  if (session == NULL) {
    fprintf(stderr, "%s: has no session\n", name);
    return;
  }
  set_text(session->attributes, types.cause, cause);
  add_charge(session->attributes);
  printf("%s: %llu octets, %s\n", name, (unsigned long long)octets_of(session->attributes), cause);
  aaa_attr_list_free(session->attributes);
  memset(session, 0, sizeof *session);
}

static void end_all(void) {
  for (size_t i = 0; i < SESSIONS_MAX; ++i) {
    if (sessions[i].name[0] == '\0') continue;
    aaa_attr_list_free(sessions[i].attributes);
    memset(&sessions[i], 0, sizeof sessions[i]);
  }
  memset(&recent, 0, sizeof recent);
}

/* ---- Showing them ---- */

static size_t longest_name(void) {
  size_t longest = 0;
  for (size_t i = 0; i < SESSIONS_MAX; ++i) {
    const struct session *session = &sessions[i];
    if (session->name[0] == '\0') continue;
    const size_t length = strlen(text_of(session->attributes, types.name));
    if (length > longest) longest = length;
  }
  return longest;
}

static void show_sessions(void) {
  const int width = (int)longest_name();
  for (size_t i = 0; i < SESSIONS_MAX; ++i) {
    const struct session *session = &sessions[i];
    if (session->name[0] == '\0') continue;
    const char *class_name = text_of(session->attributes, types.class_name);
    printf("%-*s %12llu octets  %s\n", width, text_of(session->attributes, types.name),
           (unsigned long long)octets_of(session->attributes), class_name != NULL ? class_name : "");
  }
}

/* ---- Lines ---- */

#define WORDS_MAX 4

/* Cuts a line into its words. Returns how many there are, WORDS_MAX at most. */
static int split(char *line, char **words) {
  int count = 0;
  for (char *word = strtok(line, " \t\n"); word != NULL && count < WORDS_MAX; word = strtok(NULL, " \t\n"))
    words[count++] = word;
  return count;
}

static void obey(char *line) {
  char *words[WORDS_MAX];
  const int count = split(line, words);
  if (count == 0 || words[0][0] == '#') return;
  if (count == 4 && strcmp(words[0], "start") == 0) {
    start_session(words[1], words[2], words[3]);
  } else if (count == 3 && strcmp(words[0], "class") == 0) {
    classify_session(words[1], words[2]);
  } else if (count == 3 && strcmp(words[0], "update") == 0) {
    update_session(words[1], words[2]);
  } else if (count == 3 && strcmp(words[0], "stop") == 0) {
    stop_session(words[1], words[2]);
  } else if (count == 1 && strcmp(words[0], "show") == 0) {
    show_sessions();
  } else if (count == 1 && strcmp(words[0], "end") == 0) {
    end_all();
  } else {
    fprintf(stderr, "not understood: %s\n", words[0]);
  }
}

int main(void) {
  const uint16_t ids[] = {1, 2};
  if (failed("aaa_attr_client_register", aaa_attr_client_register("sessions", ids)) || !find_types()) return 1;
  char line[512];
  while (fgets(line, sizeof line, stdin) != NULL) obey(line);
  return 0;
}
