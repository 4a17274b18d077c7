// Runs the fuzz target over saved inputs, so that every build checks the corpus
// without a fuzzing compiler: `prefs_reader_replay FILE_OR_FOLDER...`.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {
int Run(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return 1;
}
}  // namespace

int main(int argc, char** argv) {
  int inputs = 0;
  for (int i = 1; i < argc; ++i) {
    const std::filesystem::path path(argv[i]);
    if (std::filesystem::is_directory(path)) {
      for (const auto& entry : std::filesystem::directory_iterator(path))
        if (entry.is_regular_file()) inputs += Run(entry.path());
    } else {
      inputs += Run(path);
    }
  }
  std::printf("%d inputs replayed\n", inputs);
  return inputs > 0 ? 0 : 1;
}
