// write_buffers DIRECTORY: the buffers that attrtool is tried on. DIRECTORY/malformed has those of the tests' table,
// and DIRECTORY/malformed.json what each is expected to be told; DIRECTORY/good and DIRECTORY/secret have a few more.
#include <attrmgr/attrmgr.h>

#include <filesystem>
#include <fstream>

#include "support/malformed.h"

namespace {

void save(const std::filesystem::path &path, const Bytes &buffer) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char *>(buffer.data()), static_cast<std::streamsize>(buffer.size()));
}

Bytes in_network_form(Bytes flat) {
  const aaa_attr_cerrno code =
      aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(flat.data()), size_of(flat), CDM_ENDIAN_TRAN_HTON);
  return code == 0 ? flat : Bytes();
}

// What a reader is expected to answer.
std::string answer(const char *reader, aaa_attr_cerrno code, const aaa_attr_fault &fault) {
  std::string json = std::string("\"") + reader + "\": {\"accepted\": " + (code == 0 ? "true" : "false");
  if (code != 0)
    json += std::string(", \"code\": \"") + aaa_attr_cerrno_name(code) + "\", \"rule\": " + std::to_string(fault.rule) +
            ", \"offset\": " + std::to_string(fault.offset);
  return json + "}";
}

void save_malformed(const std::filesystem::path &directory) {
  std::ofstream expected(directory / "malformed.json");
  int number = 0;
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases) {
      const std::string name = std::to_string(++number);
      save(directory / "malformed" / name, row.buffer);
      const bool network = section.direction == CDM_ENDIAN_TRAN_NTOH;
      expected << "{\"file\": \"" << name << "\", \"what\": \"" << section.title << ": " << row.what << "\", ";
      if (network) {
        expected << answer("to_host", row.translate, row.fault_to('T'));
      } else {
        expected << answer("list", row.decode, row.fault_to('D'));
        if (row.buffer[0] == AAA_MARSHAL_BUFFER)
          expected << ", " << answer("in_place", row.check, row.fault_to('V')) << ", "
                   << answer("to_network", row.translate, row.fault_to('T'));
      }
      expected << "}\n";
    }
}

void add(const List &list, std::uint32_t type, std::string_view value) {
  if (aaa_attr_add(list, type, value.data(), static_cast<std::uint32_t>(value.size()), nullptr) != 0) std::abort();
}

// What is not to be shown, and what would drive a terminal or a browser.
void save_secrets(const std::filesystem::path &directory) {
  List list;
  add(list, AAA_ATTR_TYPE_TUNNEL_PASSWORD, "open-sesame");
  add(list, AAA_ATTR_TYPE_USERNAME, "\x1b[31m<script>alert('x')</script>\x07\xff\xfe\xc2\x9b");
  add(list, AAA_ATTR_TYPE_INTERCEPT_ID, "wiretap-7");
  add(list, AAA_ATTR_TYPE_CLASS, "in the clear");
  const Bytes flat = flat_buffer(list), tlv = tlv_buffer(list);
  save(directory / "flat", flat);
  save(directory / "network", in_network_form(flat));
  save(directory / "tlv", tlv);
  save(directory / "no-magic", patched(flat, "1=00"));
  save(directory / "used-bytes", patched(flat, "11=1000"));
  save(directory / "cut-short", head_of(flat, 40));
  save(directory / "network-no-magic", patched(in_network_form(flat), "11=0010"));
  save(directory / "tlv-total", patched(tlv, "1=ffffffff"));
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) return 2;
  const std::filesystem::path directory = argv[1];
  std::filesystem::remove_all(directory);
  const Bytes nested = golden_buffer(golden::kNested, "17=0100000000000000");
  save(directory / "good" / "nested", nested);
  save(directory / "good" / "network", in_network_form(nested));
  save(directory / "good" / "foreign", golden_buffer(golden::kForeign));
  save(directory / "good" / "tlv", golden_buffer(golden::kTlvNested));
  save(directory / "good" / "trailing", join({nested, hex("de ad")}));
  save(directory / "bad" / "no-nul", patched(nested, "44=21"));
  save(directory / "bad" / "used", patched(nested, "171=1900"));
  save_malformed(directory);
  save_secrets(directory / "secret");
  return 0;
}
