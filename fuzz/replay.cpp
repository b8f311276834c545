// Stands in for libFuzzer where there is none: runs a target over every file of the directories given, and then, for so
// many seconds, over inputs made from them.
//
//   fuzz_TARGET [-max_total_time=SECONDS] DIRECTORY...
//
// Inputs are made by the target's mutator, or by changing, inserting and removing bytes; nothing tells which are new,
// so this finds less than libFuzzer would. The same directories give the same inputs.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t max_size);
extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" [[gnu::weak]] std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size,
                                                             unsigned seed);

namespace {

using Input = std::vector<std::uint8_t>;

constexpr std::size_t kSizeMax = 6144;  // as scripts/fuzz has it

std::mt19937 engine(1);

std::size_t below(std::size_t bound) { return bound == 0 ? 0 : engine() % bound; }

std::vector<Input> inputs_in(const std::vector<std::filesystem::path> &directories) {
  std::vector<std::filesystem::path> files;
  for (const auto &directory : directories)
    for (const auto &entry : std::filesystem::directory_iterator(directory)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  std::vector<Input> inputs;
  for (const auto &file : files) {
    std::ifstream in(file, std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return inputs;
}

Input made_from(const std::vector<Input> &inputs) {
  Input input = inputs[below(inputs.size())];
  const std::size_t size = std::min(input.size(), kSizeMax);
  input.resize(kSizeMax);
  const auto mutate = LLVMFuzzerCustomMutator;
  const std::size_t made = mutate != nullptr ? mutate(input.data(), size, kSizeMax, static_cast<unsigned>(engine()))
                                             : LLVMFuzzerMutate(input.data(), size, kSizeMax);
  input.resize(made);
  return input;
}

void run(const Input &input) { LLVMFuzzerTestOneInput(input.data(), input.size()); }

}  // namespace

// One to four places are changed.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t max_size) {
  constexpr std::uint8_t kOften[] = {0, 1, 2, 4, 8, 0x7F, 0x80, 0xFF};
  for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
    const std::size_t at = below(size);
    switch (below(5)) {
      case 0:
        if (size > 0) data[at] = static_cast<std::uint8_t>(engine());
        break;
      case 1:
        if (size > 0) data[at] = kOften[below(std::size(kOften))];
        break;
      case 2:
        if (size > 0) data[at] = static_cast<std::uint8_t>(data[at] ^ 1u << below(8));
        break;
      case 3:  // a byte more
        if (size == max_size) break;
        std::copy_backward(data + at, data + size, data + size + 1);
        data[at] = static_cast<std::uint8_t>(engine());
        ++size;
        break;
      default: {  // some bytes less
        const std::size_t gone = std::min(size - at, 1 + below(16));
        std::copy(data + at + gone, data + size, data + at);
        size -= gone;
      }
    }
  }
  return size;
}

int main(int argc, char **argv) {
  if (LLVMFuzzerInitialize != nullptr) LLVMFuzzerInitialize(&argc, &argv);
  constexpr std::string_view kTime = "-max_total_time=";
  std::chrono::seconds time(0);
  std::vector<std::filesystem::path> directories;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument.starts_with(kTime)) {
      time = std::chrono::seconds(std::atoi(argument.data() + kTime.size()));
    } else {
      directories.emplace_back(argument);
    }
  }
  const std::vector<Input> inputs = inputs_in(directories);
  if (inputs.empty()) {
    std::fprintf(stderr, "no inputs\n");
    return 1;
  }
  for (const Input &input : inputs) run(input);
  unsigned long made = 0;
  const auto end = std::chrono::steady_clock::now() + time;
  for (; std::chrono::steady_clock::now() < end; ++made) run(made_from(inputs));
  std::fprintf(stderr, "%zu files, %lu inputs made from them\n", inputs.size(), made);
}
