#include "PeakMemory.h"

#include <fstream>
#include <string>

std::int64_t PeakMemory::growth() const {
    return status("VmHWM:") - m_start;
}

std::int64_t PeakMemory::status(const char* field) {
    std::ifstream lines("/proc/self/status");
    for (std::string name; lines >> name;) {
        if (name == field) {
            std::int64_t value = 0;
            lines >> value;
            return value;
        }
    }
    return 0;
}
