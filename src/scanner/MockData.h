#pragma once

#include "model/DiskItem.h"

#include <vector>

namespace drossbin {

/// Sample results for demonstrations, below a made-up home folder: they match nothing on disk.
class MockData {
  public:
    /// 33 items, largest first. Names, sizes and notes are fixed; dates are drawn at random from
    /// fixed ranges, and every call makes new ids.
    static std::vector<DiskItem> generate();
};

} // namespace drossbin
