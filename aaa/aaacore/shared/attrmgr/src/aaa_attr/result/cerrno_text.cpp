// What the result codes are called, and what they mean.
#include <attrmgr/aaa_attr.h>

namespace attrmgr {
namespace {

struct CodeText {
  const char *name;
  const char *sentence;
};

CodeText text_of(aaa_attr_cerrno code) {
  switch (code) {
#define CODE(code, sentence) \
  case code:                 \
    return {#code, sentence}
    CODE(AAA_ATTR_ERR_BAD_BUFFER, "the buffer is cut short or does not hold together");
    CODE(AAA_ATTR_ERR_NO_MEMORY, "memory is exhausted, or the list has no room for more blocks");
    CODE(AAA_ATTR_ERR_BAD_ARG, "a value is missing, out of range, of the wrong length or not what its text claims");
    CODE(AAA_ATTR_ERR_BAD_LIST,
         "there is no such list: the handle is 0, as after a move, or what it names is not a list");
    CODE(AAA_ATTR_ERR_STALE_HANDLE, "the list is gone: it was freed, spliced into another or filtered");
    CODE(AAA_ATTR_ERR_NOT_FOUND, "there is no such attribute, type or value name");
    CODE(AAA_ATTR_ERR_BAD_FORMAT,
         "the stored value is not of the length or the format asked for, or a buffer is too small");
    CODE(AAA_ATTR_ERR_BAD_LENGTH, "the lengths of the TLV buffer do not add up");
    CODE(0, "no error");
#undef CODE
    default:
      return {"<unknown>", "unknown result code"};
  }
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

const char *aaa_attr_cerrno_name(aaa_attr_cerrno code) noexcept { return text_of(code).name; }

const char *aaa_attr_cerrno_text(aaa_attr_cerrno code) noexcept { return text_of(code).sentence; }
