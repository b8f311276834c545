// attrtool diff: what differs between two lists.
#include <iostream>
#include <sstream>

#include "list_diff.h"
#include "load.h"
#include "output.h"
#include "text/json_writer.h"
#include "verbs.h"

namespace attrtool {
namespace {

struct Writer {
  attrtext::Secrets secrets;
  bool colours;

  // "addr [service=ppp] = 203.0.113.7"; a group has several lines.
  std::string text(const attrmgr::attribute &attribute) const {
    std::string text = attrtext::name_for_text(attribute.type());
    attrtext::append_note(attribute, &text);
    text += " = ";
    if (const auto group = attribute.group()) {
      std::ostringstream inside;
      write_text(*group, secrets, inside);
      text += "{\n";
      std::istringstream lines(inside.str());
      for (std::string line; std::getline(lines, line);) text += "  " + line + '\n';
      return text + "}";
    }
    attrtext::append_value(attribute, secrets, &text);
    return text;
  }

  void write(char sign, Tone tone, const std::string &text, std::size_t depth) const {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
      std::cout << painted(colours, tone, std::string{sign, ' '}.append(2 * depth, ' ') + line) << '\n';
  }

  void write(const Change &change, std::size_t depth) const {
    if (change.kind == ChangeKind::kNested) return write_nested(change, depth);
    const std::string before = change.before ? text(*change.before) : "",
                      after = change.after ? text(*change.after) : "";
    // What is kept back reads the same.
    const bool hidden = change.kind == ChangeKind::kChanged && before == after;
    write('-', Tone::kRemoved, before, depth);
    write('+', Tone::kAdded, after + (hidden ? "  (another one)" : ""), depth);
  }

  void write_nested(const Change &change, std::size_t depth) const {
    const std::string before = head(*change.before), after = head(*change.after);
    if (before == after) {
      write(' ', Tone::kFaint, before, depth);
    } else {
      write('-', Tone::kRemoved, before, depth);
      write('+', Tone::kAdded, after, depth);
    }
    for (const Change &inside : change.nested) write(inside, depth + 1);
    write(' ', Tone::kFaint, "}", depth);
  }

  static std::string head(const attrmgr::attribute &group) {
    std::string text = attrtext::name_for_text(group.type());
    attrtext::append_note(group, &text);
    return text + " = {";
  }
};

// ---- JSON ----

const char *name_of(ChangeKind kind) {
  constexpr const char *kNames[] = {"added", "removed", "changed", "meta", "nested"};
  return kNames[static_cast<std::size_t>(kind)];
}

void write_json_change(const Change &change, const attrtext::Secrets &secrets, std::size_t indent);

void write_json_changes(const std::vector<Change> &changes, const attrtext::Secrets &secrets, std::size_t indent) {
  std::cout << '[';
  const char *before = "\n";
  for (const Change &change : changes) {
    std::cout << before << std::string(indent, ' ');
    write_json_change(change, secrets, indent);
    before = ",\n";
  }
  std::cout << ']';
}

void write_json_change(const Change &change, const attrtext::Secrets &secrets, std::size_t indent) {
  const attrmgr::attribute &either = change.before ? *change.before : *change.after;
  std::string name;
  attrtext::append_json_string(either.name(), &name);
  std::cout << R"({"kind": ")" << name_of(change.kind) << R"(", "type": )" << either.type() << R"(, "name": )" << name;
  if (change.before) write_json_attribute(*change.before, secrets, indent, std::cout << ", \"a\": ");
  if (change.after) write_json_attribute(*change.after, secrets, indent, std::cout << ", \"b\": ");
  if (change.kind == ChangeKind::kNested) {
    std::cout << ", \"changes\": ";
    write_json_changes(change.nested, secrets, indent + 2);
  }
  std::cout << '}';
}

void write_json_file(const char *key, const std::string &path, const Loaded &loaded) {
  std::string name;
  attrtext::append_json_string(path == "-" ? "standard input" : path, &name);
  std::cout << "  \"" << key << R"(": {"file": )" << name << R"(, "form": ")" << loaded.form << "\"},\n";
}

int compare(const Diff &asked) {
  if (asked.before == "-" && asked.after == "-") throw Failure("only one of the files can be the standard input");
  const Loaded before = load(asked.before, asked.reading), after = load(asked.after, asked.reading);
  const std::vector<Change> changes = difference(before.list, after.list, asked.show_secrets);
  const attrtext::Secrets kept = secrets(asked.show_secrets);
  if (asked.json) {
    std::cout << "{\n  \"version\": 1,\n  \"equal\": " << (changes.empty() ? "true" : "false") << ",\n";
    write_json_file("a", asked.before, before);
    write_json_file("b", asked.after, after);
    std::cout << "  \"changes\": ";
    write_json_changes(changes, kept, 4);
    std::cout << "\n}\n";
  } else if (!changes.empty()) {
    const Writer writer = {kept, asked.colours};
    std::cout << "--- " << shown_name(asked.before) << " (" << before.form << ")\n"
              << "+++ " << shown_name(asked.after) << " (" << after.form << ")\n";
    for (const Change &change : changes) writer.write(change, 0);
  }
  return changes.empty() ? kYes : kNo;
}

}  // namespace

int run(const Diff &asked) {
  try {
    return compare(asked);
  } catch (const Refusal &refusal) {
    throw Failure(refusal.what());  // 1 would say that the lists differ
  }
}

}  // namespace attrtool
