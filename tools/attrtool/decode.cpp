// attrtool decode: the attributes that a buffer holds.
#include <iostream>

#include "load.h"
#include "text/json_writer.h"
#include "text/printable.h"
#include "verbs.h"

namespace attrtool {
namespace {

// The displays of the library, line by line; what stands in values is escaped.
int write_line(char *line, std::uint64_t) noexcept {
  std::string_view text = line;
  while (text.starts_with('\n')) text.remove_prefix(1);
  while (text.ends_with('\n')) text.remove_suffix(1);
  std::cout << attrtext::printable(text) << '\n';
  return 0;
}

void write_display(attrmgr::list_view list, const std::string &display, bool show_secrets) {
  aaa_attr_set_debug_li(show_secrets ? 1 : 0);
  if (display == "full") aaa_attr_list_display(list.handle(), write_line, 0);
  if (display == "brief") aaa_attr_list_display_brief(list.handle(), write_line, 0);
  if (display == "summary") aaa_display_summ_attr_list_fn(list.handle(), 0, write_line, 0);
}

void write_heading(const Loaded &loaded, bool show_secrets) {
  std::cout << "# " << loaded.form << ", " << loaded.size << " bytes";
  if (loaded.unread > 0) std::cout << "; the last " << loaded.unread << " come after the list, and mean nothing";
  std::cout << '\n';
  if (!show_secrets) std::cout << "# Secret values and LI attributes are not shown; --show-secrets shows them.\n";
}

}  // namespace

int run(const Decode &asked) {
  const Loaded loaded = load_buffer(asked.path, asked.reading);
  if (asked.json) {
    const attrtext::JsonOrigin origin = {loaded.form, loaded.size};
    write_json(loaded.list, secrets(asked.show_secrets), &origin, std::cout);
  } else if (!asked.display.empty()) {
    write_display(loaded.list, asked.display, asked.show_secrets);
  } else {
    write_heading(loaded, asked.show_secrets);
    write_text(loaded.list, secrets(asked.show_secrets), std::cout);
  }
  return kYes;
}

}  // namespace attrtool
