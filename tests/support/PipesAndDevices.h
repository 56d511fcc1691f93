#pragma once

#include <string>

namespace drossbin::test {

// What is no file, folder or link, and acts or waits when it is opened. Each is of 0 bytes.

void makePipe(const std::string& path);
void makeSocket(const std::string& path);

/// Returns whether it could: only the superuser may.
bool makeDevice(const std::string& path);

} // namespace drossbin::test
