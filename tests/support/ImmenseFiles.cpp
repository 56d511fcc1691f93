#include "support/ImmenseFiles.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>
#include <unistd.h>

namespace drossbin::test {

namespace fs = std::filesystem;

ImmenseFiles::ImmenseFiles(const std::string& place)
    : m_folder("/dev/shm/drossbin-" + std::to_string(::getpid())) {
    std::error_code error;
    fs::create_directories(m_folder + "/" + place, error);
    for (const char* name : {"/one", "/two"}) {
        const std::string path = m_folder + "/" + place + name;
        std::ofstream(path).close();
        if (!error) {
            fs::resize_file(path, std::numeric_limits<std::int64_t>::max(), error);
        }
    }
    m_areMade = !error;
}

ImmenseFiles::~ImmenseFiles() {
    std::error_code ignored; // what is left takes no space
    fs::remove_all(m_folder, ignored);
}

} // namespace drossbin::test
