// error.hpp: what an operation of the C++ interface answers when it fails: attrmgr::error is thrown, or a result<T>
// returned by the forms whose names begin with try_.
//
// Without exceptions (-fno-exceptions) only the try_ forms report: the others end the process with the sentence.
#pragma once

#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>
#include <attrmgr/aaa_attr_types.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace attrmgr {

// The result codes of aaa_attr_types.h as values of std::error_code: `if (failure.code() ==
// attrmgr::errc::bad_buffer)`.
enum class errc : int {
  bad_buffer = static_cast<int>(AAA_ATTR_ERR_BAD_BUFFER),
  no_memory = static_cast<int>(AAA_ATTR_ERR_NO_MEMORY),
  bad_arg = static_cast<int>(AAA_ATTR_ERR_BAD_ARG),
  bad_list = static_cast<int>(AAA_ATTR_ERR_BAD_LIST),
  stale_handle = static_cast<int>(AAA_ATTR_ERR_STALE_HANDLE),
  not_found = static_cast<int>(AAA_ATTR_ERR_NOT_FOUND),
  bad_format = static_cast<int>(AAA_ATTR_ERR_BAD_FORMAT),
  bad_length = static_cast<int>(AAA_ATTR_ERR_BAD_LENGTH),
};

namespace detail {

inline const char *sentence(errc code) noexcept { return aaa_attr_cerrno_text(static_cast<aaa_attr_cerrno>(code)); }

// Visible whatever the client hides, so that the libraries of a process share one category.
class AAA_API category_of_codes final : public std::error_category {
 public:
  const char *name() const noexcept override { return "attrmgr"; }
  std::string message(int code) const override { return sentence(static_cast<errc>(code)); }
  std::error_condition default_error_condition(int code) const noexcept override {
    switch (static_cast<errc>(code)) {
      case errc::no_memory:
        return std::errc::not_enough_memory;
      case errc::bad_arg:
        return std::errc::invalid_argument;
      default:
        return {code, *this};
    }
  }
};

}  // namespace detail

inline AAA_API const std::error_category &category() noexcept {
  static const detail::category_of_codes the_category;
  return the_category;
}

inline std::error_code make_error_code(errc code) noexcept { return {static_cast<int>(code), category()}; }

// what() says which operation failed, of which attribute, and why, in a sentence.
class error : public std::system_error {
 public:
  error(errc code, const char *what) : std::system_error(make_error_code(code), what) {}
};

namespace detail {

// type: the attribute meant, 0 for none.
[[noreturn, gnu::cold]] inline void raise(aaa_attr_cerrno code, const char *operation, std::uint32_t type = 0) {
  constexpr std::size_t longest = 128;
  const errc reason = static_cast<errc>(code);
  const char *quote = type != 0 ? "\"" : "";
  char what[longest];
  std::snprintf(what, sizeof what, "attrmgr: cannot %s%s%s%s%s", operation, type != 0 ? " " : "", quote,
                type != 0 ? aaa_attr_get_name_from_type(type) : "", quote);
#ifdef __cpp_exceptions
  throw error(reason, what);
#else
  std::fprintf(stderr, "%s: %s\n", what, sentence(reason));
  std::abort();
#endif
}

inline void check(aaa_attr_cerrno code, const char *operation, std::uint32_t type = 0) {
  if (code != 0) [[unlikely]]
    raise(code, operation, type);
}

// Whether a call succeeded, and why not.
class outcome {
 public:
  bool ok() const noexcept { return code_ == 0; }
  explicit operator bool() const noexcept { return ok(); }

  // 0, or one of AAA_ATTR_ERR_*.
  aaa_attr_cerrno code() const noexcept { return code_; }
  std::error_code error_code() const noexcept {
    return ok() ? std::error_code() : make_error_code(static_cast<errc>(code_));
  }
  // The failure as a sentence.
  const char *message() const noexcept { return ok() ? "success" : detail::sentence(static_cast<errc>(code_)); }

 protected:
  outcome() = default;
  explicit outcome(errc code) : code_(static_cast<aaa_attr_cerrno>(code)) {}

 private:
  aaa_attr_cerrno code_ = 0;
};

}  // namespace detail

// What a try_ form returns, and its caller has to look at: a value, or the code of the failure.
template <class T>
class [[nodiscard]] result : public detail::outcome {
 public:
  result(T value) : value_(std::move(value)) {}
  result(errc code) : outcome(code) {}

  // The value; throws attrmgr::error when there is none.
  T &value() & { return detail::check(code(), "use the value of a failed call"), *value_; }
  const T &value() const & { return detail::check(code(), "use the value of a failed call"), *value_; }
  T &&value() && { return detail::check(code(), "use the value of a failed call"), *std::move(value_); }

  // The same unchecked, after ok().
  T &operator*() & { return *value_; }
  const T &operator*() const & { return *value_; }
  T &&operator*() && { return *std::move(value_); }
  T *operator->() { return &*value_; }
  const T *operator->() const { return &*value_; }

 private:
  std::optional<T> value_;
};

template <>
class [[nodiscard]] result<void> : public detail::outcome {
 public:
  result() = default;
  result(errc code) : outcome(code) {}
};

namespace detail {

inline result<void> as_result(aaa_attr_cerrno code) {
  return code == 0 ? result<void>() : result<void>(static_cast<errc>(code));
}

}  // namespace detail
}  // namespace attrmgr

template <>
struct std::is_error_code_enum<attrmgr::errc> : std::true_type {};
