#pragma once

#include <string>

namespace drossbin {

/// Whether this machine has a card that can draw in three dimensions, and not just show a picture.
/// Where it has none, OpenGL is played by the processor, which takes far longer than drawing
/// plainly does. `devices` is where the system lists what it has.
///
/// On Linux, such a card has a render node below /dev/dri (drivers of the kernel), /dev/nvidiactl
/// (NVIDIA's own) or /dev/dxg (Linux inside Windows). Other systems are taken to have one.
[[nodiscard]] bool hasGraphicsCard(const std::string& devices = "/dev");

} // namespace drossbin
