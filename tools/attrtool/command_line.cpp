// The options of attrtool, and the help that it shows of them. All that knows of CLI11 is here.
#include "command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <attrmgr/attrmgr.hpp>
#include <cstdlib>
#include <iostream>

#include "explain_words.h"
#include "verbs.h"

namespace attrtool {
namespace {

constexpr char kDecodeHelp[] = R"(Recognises flat buffers, in network form and of the foreign layout too, and TLV
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

constexpr char kEncodeHelp[] = R"(Forms: flat (for this machine), network (flat in network form), tlv, tlv-swapped
(TLV of the other byte order). Addresses of this process are taken out: a text
gives the same bytes each time. Whether FILE is text or JSON is seen from its
first character. A bad line is named with its column, the reason and what would
be right; nothing is written then.

Examples:
  attrtool encode session.attrs -o session.bin
  attrtool encode --to tlv session.attrs -o session.tlv
  attrtool encode --to network reply.json | ssh peer 'cat >reply.net'
  echo 'username = mira' | attrtool encode - | attrtool decode -

Exit status: 0 encoded, 1 a line is refused, 2 usage or a file that cannot be
read or written.)";

constexpr char kExplainHelp[] = R"(Examples:
  attrtool explain reply.bin                 every byte, and the field it is of
  attrtool explain --html reply.bin >r.html  a page with a map of the bytes
  attrtool explain --hex trace.log           out of a hexadecimal dump
  attrtool explain --json - <reply.bin | jq '.readers[] | select(.offset)'

Says first what each reader answers: the decoder, reading in place, and the
translation to the other byte order; then takes the buffer apart. For a refused
one it names the byte and the rule, and shows plainly what comes after.
Values of opaque types, LI attributes, and what may be either in bytes that no
reader gets to, are shown as ".." unless --show-secrets is given. Offsets count
from the first byte of the buffer, its marker.

Exit status: 0 the buffer can be decoded, 1 it cannot, 2 usage or a file that
cannot be read.)";

constexpr char kCheckHelp[] = R"(Examples:
  attrtool check reply.bin           good or refused: which byte, which rule
  attrtool check captures/           the refused files of a directory, a summary
  attrtool check --all captures/     the good ones as well
  attrtool check --strict reply.bin  fit for every reader
  attrtool check --json captures/ | jq -r 'select(.good == false) | .file'

Exit status: 0 all are good, 1 one is refused, 2 usage or a file that cannot be
read.)";

constexpr char kDiffHelp[] = R"(Each file may be a buffer in any form, text or JSON. Lists are compared as sets:
neither order nor repetition counts, nor producer client types, which TLV does
not carry. Lines with - are in A alone, lines with + in B alone; a - and a +
together are another value, or the same value with another meta. Groups that
hold something else are shown with what differs in them.

Examples:
  attrtool diff before.bin after.bin
  attrtool diff expected.attrs reply.bin    a text against a buffer
  attrtool diff --hex a.log b.log
  attrtool diff --json a.bin b.tlv | jq -r '.changes[] | .kind + " " + .name'

Exit status, as of diff(1): 0 nothing differs, 1 something does, 2 usage, or a
file that cannot be read or is refused.)";

constexpr char kDictHelp[] = R"(Words: part of a name, of a constant or of an RFC's name; a number; a format
(Enum), a flag (secret), a class (0x2). All of them must suit, so that more
words find less. A word can say what it means: number= name= constant= format=
flag= class= service= protocol= rfc= value=. Words that are a type's whole name
or number show all there is to know of it. Case does not matter, and blanks,
hyphens and underscores are the same.

Examples:
  attrtool dict tunnel                      types with "tunnel" in a name
  attrtool dict 3                           all of one: values, services, more
  attrtool dict User-Name                   by its name in an RFC
  attrtool dict AAA_ATTR_TYPE_ADDR          by its constant
  attrtool dict flag=secret                 never displayed; flag=LI as well
  attrtool dict service=ppp protocol=ipv6   what may be used with both
  attrtool dict class=0x2 format=Ulong
  attrtool dict value=Watchdog              the types that have such a value
  attrtool dict --json flag=LI | jq -r '.types[].name'

Exit status: 0 found, 1 nothing found (the nearest names are told), 2 usage.)";

constexpr char kErrHelp[] = R"(Examples:
  attrtool err                         all codes
  attrtool err AAA_ATTR_ERR_BAD_ARG    by its name; bad_arg will do
  attrtool err 0xAFDF8600              as a debugger shows it
  attrtool err 2950661632              the same unsigned
  attrtool err -1344305664             the same as diagnostics print it
  attrtool err --json bad_buffer | jq -r '.codes[].todo[]'

Exit status: 0 known, 1 no result code, 2 usage.)";

class CommandLine {
 public:
  CommandLine() {
    program_.get_formatter()->column_width(22);
    for (const char *noise : {"TEXT", "REQUIRED"}) program_.get_formatter()->label(noise, "");
    program_.require_subcommand(1);
    program_.fallthrough();
    one_of(program_.add_option("--color", colour_, "When to use colours: auto, always or never"), "WHEN",
           {"auto", "always", "never"});
    program_.set_version_flag("--version", std::string("attrtool ") + aaa_attr_version(nullptr), "Print the version");
    program_.footer(
        "Exit status: 0 yes, 1 no or refused, 2 usage or a file that cannot be read.\n"
        "attrtool VERB --help shows examples.");
    add_decode();
    add_encode();
    add_explain();
    add_check();
    add_diff();
    add_dict();
    add_err();
  }

  int run(int argc, char **argv) {
    try {
      program_.parse(argc, argv);
    } catch (const CLI::Success &help) {  // --help or --version: the program writes it
      program_.exit(help);
      return kYes;
    } catch (const CLI::ParseError &error) {
      std::cerr << "attrtool: " << printable(error.what()) << "; attrtool --help tells more\n";
      return kUsage;
    }
    std::cout.flush();
    return std::cout ? status_ : kUsage;
  }

 private:
  // A verb that runs, with what its options have filled, when it is called.
  template <class Verb>
  CLI::App *add(const char *name, const char *description, const char *help, Verb *asked) {
    CLI::App *verb = program_.add_subcommand(name, description);
    verb->footer(help);
    verb->callback([this, asked] {
      if constexpr (requires { asked->colours; }) asked->colours = colours();
      status_ = attrtool::run(*asked);
    });
    return verb;
  }

  static CLI::Option *one_of(CLI::Option *option, const char *shown_as, const std::vector<std::string> &words) {
    return option->type_name(shown_as)->check(CLI::IsMember(words).description(""));
  }

  static void add_reading(CLI::App *verb, Reading *reading) {
    verb->add_flag("--hex", reading->hex, "FILE is text that shows the bytes: see below");
    verb->add_option("--skip", reading->skipped, "Bytes to leave out before the buffer")->type_name("BYTES");
  }

  void add_decode() {
    CLI::App *verb = add("decode", "Write the attributes of a buffer as text or JSON", kDecodeHelp, &decode_);
    verb->add_option("FILE", decode_.path, "The buffer; - is the standard input")->required();
    CLI::Option *json = verb->add_flag("--json", decode_.json, "Write JSON, as docs/attrs.schema.json has it");
    one_of(verb->add_option("--display", decode_.display, "A display of the library: full, brief or summary"), "KIND",
           {"full", "brief", "summary"})
        ->excludes(json);
    verb->add_flag("--show-secrets", decode_.show_secrets, "Show secret values and LI attributes");
    add_reading(verb, &decode_.reading);
  }

  void add_encode() {
    CLI::App *verb = add("encode", "Write a buffer from text or JSON", kEncodeHelp, &encode_);
    verb->add_option("FILE", encode_.path, "The text or JSON; - is the standard input")->required();
    verb->add_option("-o,--output", encode_.out, "Where to write; the standard output if not given")->type_name("OUT");
    one_of(verb->add_option("--to", encode_.to, "The form, below; flat if not given"), "FORM",
           {"flat", "network", "tlv", "tlv-swapped"});
  }

  void add_explain() {
    CLI::App *verb = add("explain", "Name every byte of a buffer, and what is wrong with it", kExplainHelp, &explain_);
    verb->add_option("FILE", explain_.path, "The capture; - is the standard input")->required();
    CLI::Option *json = verb->add_flag("--json", explain_.json, "Write one JSON object");
    verb->add_flag("--html", explain_.html, "Write one HTML page that needs nothing else")->excludes(json);
    verb->add_flag("--show-secrets", explain_.show_secrets, "Show values of opaque types, and LI attributes");
    add_reading(verb, &explain_.reading);
  }

  void add_check() {
    CLI::App *verb = add("check", "Say which captures are good, and why the others are not", kCheckHelp, &check_);
    verb->add_option("FILE", check_.paths, "Captures or directories; - is the standard input")->required();
    verb->add_flag("--json", check_.json, "Write JSON lines: captures, then a summary");
    verb->add_flag("--all", check_.all, "Name the good captures of a directory, too");
    verb->add_flag("--strict", check_.strict, "Good are only captures that every reader takes");
    add_reading(verb, &check_.reading);
  }

  void add_diff() {
    CLI::App *verb = add("diff", "Say what differs between two lists in any form", kDiffHelp, &diff_);
    verb->add_option("A", diff_.before, "One list; - is the standard input")->required();
    verb->add_option("B", diff_.after, "The other")->required();
    verb->add_flag("--json", diff_.json, "Write one JSON object");
    verb->add_flag("--show-secrets", diff_.show_secrets, "Show secret values, and compare LI attributes");
    add_reading(verb, &diff_.reading);
  }

  void add_dict() {
    CLI::App *verb = add("dict", "Search the dictionary of attribute types", kDictHelp, &dict_);
    verb->add_option("WORDS", dict_.words, "What is known of the type; none for all types");
    verb->add_flag("--json", dict_.json, "Write one JSON object");
  }

  void add_err() {
    CLI::App *verb = add("err", "Say what a result code means, and what to do about it", kErrHelp, &err_);
    verb->add_option("CODE", err_.code, "A name or a number; none for all codes");
    verb->add_flag("--json", err_.json, "Write one JSON object");
  }

  // Whether what is written to the standard output may be coloured.
  bool colours() const {
    if (colour_ != "auto") return colour_ == "always";
    const char *no_colour = std::getenv("NO_COLOR");
    return isatty(STDOUT_FILENO) != 0 && (no_colour == nullptr || *no_colour == '\0');
  }

  CLI::App program_{"Shows what is in captured buffers of AAA attributes and in the dictionary.", "attrtool"};
  std::string colour_ = "auto";
  int status_ = kYes;
  Decode decode_;
  Encode encode_;
  Explain explain_;
  Check check_;
  Diff diff_;
  Dict dict_;
  Err err_;
};

}  // namespace

int run(int argc, char **argv) { return CommandLine().run(argc, argv); }

}  // namespace attrtool
