#pragma once

#include "model/DiskItem.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace drossbin::test {

/// Sets the modification date of an entry; of the link itself, where it is one.
void setModificationDate(const std::string& path, Date date);

/// Runs `check` where "/var/log" holds nothing but a file of `size` bytes, or nothing at all when
/// that is 0: no test looks at the real one.
void checkWithSystemLogs(std::int64_t size, const std::function<void()>& check);

/// The date that `checkWithSystemLogs` gives to the folder.
constexpr Date systemLogDate = std::chrono::sys_days{std::chrono::year{2023} / 7 / 8};

/// The date of a link, which what it leads to does not have.
constexpr Date linkDate = std::chrono::sys_days{std::chrono::year{2024} / 5 / 6};

/// The names of `items`, in their order.
std::vector<std::string> namesOf(const std::vector<DiskItem>& items);

/// All that an item says but its id and date, in one line.
std::string description(const DiskItem& item);

} // namespace drossbin::test
