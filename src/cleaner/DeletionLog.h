#pragma once

#include "model/DiskItem.h"
#include "platform/basics/Date.h"

#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

/// The words of the record that a deletion leaves. One item is one line, whatever its name holds.
namespace drossbin::deletionlog {

std::string deletedLine(const DiskItem& item);
std::string failedLine(const DiskItem& item, const std::error_code& error);

/// Where the log of a deletion that began at `date` goes; two of one second share a place.
std::string path(const std::string& folder, Date date);

/// The whole file: the header for `date`, a line for each item and the total.
std::string text(Date date, const std::vector<std::string>& lines, std::int64_t bytesFreed);

} // namespace drossbin::deletionlog
