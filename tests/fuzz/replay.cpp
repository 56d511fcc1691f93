#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

// Stands in for the fuzzer where there is none: hands the target every file of the folders that it
// is given.
int main(int count, char** arguments) {
    std::vector<std::filesystem::path> files;
    for (const std::string& folder : std::vector<std::string>(arguments + 1, arguments + count)) {
        std::ranges::copy(std::filesystem::directory_iterator(folder), std::back_inserter(files));
    }
    std::ranges::sort(files);
    for (const std::filesystem::path& path : files) {
        std::ifstream file(path, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        std::printf("%s\n", path.filename().c_str());
        std::fflush(stdout); // the last line tells which one ended the program
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("%zu inputs\n", files.size());
    return files.empty() ? 1 : 0;
}
