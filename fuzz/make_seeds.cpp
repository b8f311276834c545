// make_seeds DIRECTORY: writes the first inputs of the fuzz targets, made from real lists, to DIRECTORY/TARGET/NAME.
#include <attrmgr/attrmgr.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t kGrouped = 485;  // Subscription ID
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
    if (aaa_attr_add_group_list(list, &sub_list, kGrouped, i == 0 ? &kMeta : nullptr) == 0)
      fill_nested(sub_list, depth - 1);
  }
}

void save(const std::filesystem::path &path, const std::vector<char> &buffer) {
  std::filesystem::create_directories(path.parent_path());
  // The targets put the marker in front themselves.
  std::ofstream(path, std::ios::binary).write(buffer.data() + 1, static_cast<std::streamsize>(buffer.size()) - 1);
}

void save_forms(const std::filesystem::path &directory, const std::string &name, aaa_attr_list_handle list) {
  std::uint32_t size = 0;
  aaa_attr_list_to_buffer(list, nullptr, &size);
  std::vector<char> flat(size);
  if (aaa_attr_list_to_buffer(list, flat.data(), &size) != 0) return;
  for (const char *target : {"flat_decode", "read_in_place", "translate"}) save(directory / target / name, flat);
  if (aaa_attrs_buffer_tran(flat.data(), CDM_ENDIAN_TRAN_HTON) == 0)
    save(directory / "translate" / (name + "-network"), flat);
  aaa_attr_list_tlv_to_buffer(list, nullptr, &size);
  std::vector<char> tlv(size);
  if (aaa_attr_list_tlv_to_buffer(list, tlv.data(), &size) == 0) save(directory / "tlv_decode" / name, tlv);
  aaa_attr_list_free(list);
}

aaa_attr_list_handle new_list() {
  aaa_attr_list_handle list = 0;
  aaa_attr_list_alloc(&list);
  return list;
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_seeds DIRECTORY\n");
    return 2;
  }
  save_forms(argv[1], "empty", new_list());
  aaa_attr_list_handle list = new_list();
  add_types(list, 1, 12, nullptr);
  save_forms(argv[1], "one-block", list);
  add_types(list = new_list(), 186, 240, &kMeta);
  save_forms(argv[1], "blocks-with-meta", list);
  fill_nested(list = new_list(), 3);
  save_forms(argv[1], "nested", list);
  add_types(list = new_list(), 1, 40, nullptr);
  fill_nested(list, 1);
  for (std::uint32_t type = 1; type < 40; type += 2) aaa_attr_remove(list, type);
  save_forms(argv[1], "removed", list);
  return 0;
}
