// One line about a list: how many attributes, how long in all, the longest and the shortest.
#include <attrmgr/aaa_attr_display.h>

#include "aaa_attr/cursor/pooled_cursor.h"
#include "aaa_attr/store/attribute.h"
#include "dictionary/li_set.h"
#include "display/render.h"

namespace attrmgr {
namespace {

struct Extreme {
  RecordView record;
  std::uint32_t length = 0;
};

struct Summary {
  std::uint64_t total = 0;
  std::uint64_t count = 0;
  Extreme largest;
  Extreme smallest;

  void add(RecordView record, std::uint32_t length) {
    total += length;
    ++count;
    if (length > largest.length) largest = {record, length};
    // An empty value never stays the shortest: the next attribute takes its place.
    if (smallest.length == 0 || length < smallest.length) smallest = {record, length};
  }

  void put_into(TextWriter &line) const {
    line.put("Total attribute size ").put_decimal(total).put(" for ").put_decimal(count).put(" attributes, max_size ");
    put_extreme(line, largest);
    line.put(" min_size ");
    put_extreme(line, smallest);
  }

  static void put_extreme(TextWriter &line, const Extreme &extreme) {
    TextLine<kLineSize> text;
    aaa_attr_to_string(extreme.record, text, RenderMode::kList);
    line.put_decimal(extreme.length).put(" for attr ").put(text.view());
  }
};

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

void aaa_display_summ_attr_list_fn(aaa_attr_list_handle list, std::uint32_t, aaa_attr_output_fn output,
                                   std::uint64_t context) {
  if (list == 0) return;
  PooledCursor cursor(list);
  if (cursor.error()) return;
  Summary summary;
  while (const RecordView record = cursor.next())
    if (!hidden_from_display(record.type())) summary.add(record, reported_length(record));
  if (output == nullptr) return;
  TextLine<kLineSize> line;
  summary.put_into(line);
  output(line.data(), context);
}
