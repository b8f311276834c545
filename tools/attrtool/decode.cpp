// attrtool decode: the attributes that a buffer holds.
#include <iostream>
#include <memory>

#include "load.h"
#include "text/json_writer.h"
#include "text/printable.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr char kNotes[] = R"(Recognises flat buffers, in network form and of the foreign layout too, and TLV
buffers of either byte order. Writes the text that encode reads. Secret values
are shown as <opaque value>, and LI attributes are left out: a text that encodes
back to the whole list is written with --show-secrets.

With --hex, FILE may be the output of hexdump, hexdump -C, xxd or tcpdump -X, in
a log too, or digits alone: 01cdab01, 01 cd ab 01, 01:cd:ab:01, 0x01, 0xcd.

Examples:
  attrtool decode reply.bin                 the attributes, one a line
  attrtool decode --show-secrets reply.bin >reply.attrs
  attrtool decode --hex trace.log           out of a hexadecimal dump
  attrtool decode --skip 20 packet.bin      the buffer begins at byte 20
  attrtool decode --json reply.bin | jq '.attributes[].name'
  attrtool decode --display brief reply.bin as the library's own displays do

Exit status: 0 decoded, 1 the buffer is refused, 2 usage or a file that cannot
be read.)";

struct Arguments {
  std::string path, display;
  Reading reading;
  bool json = false, show_secrets = false;
};

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

int run(const Arguments &arguments) {
  const Loaded loaded = load_buffer(arguments.path, arguments.reading);
  if (arguments.json) {
    const attrtext::JsonOrigin origin = {loaded.form, loaded.size};
    write_json(loaded.list, secrets(arguments.show_secrets), &origin, std::cout);
  } else if (!arguments.display.empty()) {
    write_display(loaded.list, arguments.display, arguments.show_secrets);
  } else {
    write_heading(loaded, arguments.show_secrets);
    write_text(loaded.list, secrets(arguments.show_secrets), std::cout);
  }
  return kYes;
}

}  // namespace

void add_decode(CLI::App &program, const Options &, int *status) {
  CLI::App *verb = program.add_subcommand("decode", "Write the attributes of a buffer as text or JSON");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("FILE", arguments->path, "The buffer; - is the standard input")->required();
  CLI::Option *json = verb->add_flag("--json", arguments->json, "Write JSON, as docs/attrs.schema.json has it");
  verb->add_option("--display", arguments->display, "A display of the library: full, brief or summary")
      ->type_name("KIND")
      ->check(CLI::IsMember({"full", "brief", "summary"}).description(""))
      ->excludes(json);
  verb->add_flag("--show-secrets", arguments->show_secrets, "Show secret values and LI attributes");
  add_reading(verb, &arguments->reading);
  verb->footer(kNotes);
  verb->callback([arguments, status] { *status = run(*arguments); });
}

}  // namespace attrtool
