// make_seeds DIRECTORY: writes the first inputs of the fuzz targets, made from real lists and from the tests' table of
// malformed buffers, to DIRECTORY/TARGET/NAME.
#include <attrmgr/attrmgr.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/malformed.h"
#include "text_forms.h"

namespace {

constexpr aaa_attr_meta kMeta = {4, 3, 1, AAA_ATTR_META_MANDATORY, 7};

// An attribute of every type in the range, with a value that its format takes; sub-lists are left out.
void add_types(aaa_attr_list_handle list, std::uint32_t first, std::uint32_t last, const aaa_attr_meta *meta) {
  const char value[] = "0123456789abcdef";
  for (std::uint32_t type = first; type <= last; ++type)
    for (const std::uint32_t length : {16u, 4u, 1u})
      if (aaa_attr_get_format_from_type(type) != AAA_ATTR_FMT_GROUPED &&
          aaa_attr_add_v1(list, type, value, length, meta, 5) == 0)
        break;
}

void fill_nested(aaa_attr_list_handle list, int depth) {
  add_types(list, 1, 3, nullptr);
  for (int i = 0; i < 2 && depth > 0; ++i) {
    aaa_attr_list_handle sub_list = 0;
    if (aaa_attr_add_group_list(list, &sub_list, type::kGrouped, i == 0 ? &kMeta : nullptr) == 0)
      fill_nested(sub_list, depth - 1);
  }
}

constexpr std::size_t kSizeMax = 8192;  // larger ones would only slow the fuzzer down
constexpr const char *kFlatTargets[] = {"flat_decode", "read_in_place", "translate", "text_write"};

void save(const std::filesystem::path &path, const Bytes &buffer) {
  if (buffer.size() > kSizeMax) return;
  std::filesystem::create_directories(path.parent_path());
  // The targets put the marker in front themselves.
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char *>(buffer.data()) + 1, static_cast<std::streamsize>(buffer.size()) - 1);
}

void save_text(const std::filesystem::path &path, const std::string &text) {
  if (text.size() > kSizeMax) return;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

void save_forms(const std::filesystem::path &directory, const std::string &name, List list) {
  Bytes flat = flat_buffer(list);
  for (const char *target : kFlatTargets) save(directory / target / name, flat);
  if (aaa_attrs_buffer_tran(reinterpret_cast<char *>(flat.data()), CDM_ENDIAN_TRAN_HTON) == 0)
    save(directory / "translate" / (name + "-network"), flat);
  save(directory / "tlv_decode" / name, tlv_buffer(list));
  const attrmgr::list_view view{list};
  save_text(directory / "text_read" / name, text_forms::text_of(view));
  save_text(directory / "json_read" / name, text_forms::json_of(view));
}

void save_malformed(const std::filesystem::path &directory) {
  int number = 0;
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases) {
      const std::string name = "malformed-" + std::to_string(++number);
      if (row.buffer[0] == AAA_MARSHAL_TLV) save(directory / "tlv_decode" / name, row.buffer);
      if (row.buffer[0] != AAA_MARSHAL_BUFFER) continue;
      for (const char *target : kFlatTargets) save(directory / target / name, row.buffer);
    }
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_seeds DIRECTORY\n");
    return 2;
  }
  List one_block, with_meta, nested, removed;
  add_types(one_block, 1, 12, nullptr);
  add_types(with_meta, 186, 240, &kMeta);
  fill_nested(nested, 3);
  add_types(removed, 1, 40, nullptr);
  fill_nested(removed, 1);
  for (std::uint32_t type = 1; type < 40; type += 2) aaa_attr_remove(removed, type);
  save_forms(argv[1], "empty", List());
  save_forms(argv[1], "one-block", std::move(one_block));
  save_forms(argv[1], "blocks-with-meta", std::move(with_meta));
  save_forms(argv[1], "nested", std::move(nested));
  save_forms(argv[1], "removed", std::move(removed));
  save_malformed(argv[1]);
  return 0;
}
