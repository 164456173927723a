// A libFuzzer program over the descriptions that the strategy lists take apart:
//   cmake --preset fuzz && cmake --build --preset fuzz
//   build/fuzz/tests/description_fuzzer -max_total_time=600 -max_len=1100 FOLDER tests/fuzz/descriptions

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/support/DescriptionTarget.h"

// The name and the types are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tactix::tests::DescriptionTarget target;
  const std::string wrong = target.Feed(std::string(data, data + size));
  if (wrong.empty()) return 0;
  std::fprintf(stderr, "%s\n", wrong.c_str());
  std::abort();
}
